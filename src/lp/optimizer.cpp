#include "lp/optimizer.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <string_view>

#include "common/free_format.h"

namespace tarvo::lp {

namespace {

constexpr int kWorkspacePerElement = 2;

// What the three slots may take in all. Capacities beyond it would zero-fill memory for minutes
// or be killed by the system, so they are refused before anything is allocated; the limit also
// keeps the workspace size within an int.
constexpr double kSlotMemoryLimitBytes = 16.0 * 1024 * 1024 * 1024;
// Bytes a slot and its simplex state hold per element and per row or column (the matrix in
// columns and in rows with its copy, the factors' room; the vectors over rows and columns).
constexpr double kBytesPerElement = 64.0;
constexpr double kBytesPerRowOrColumn = 256.0;
constexpr int kSlotCount = kCoreSlot - kMasterSlot + 1;

bool valid_slot(int slot) { return slot >= kMasterSlot && slot <= kCoreSlot; }

// Without debugging the print file holds only the options echo: the optimizer writes nothing
// further to it or to a summary file.
void switch_print_files_off(Optimizer& opt, Units& units) {
  set_option_int(opt.options, units, "SUMMARY FILE", 0, kPrintUnit, 0);
  set_option_int(opt.options, units, "PRINT   FILE", 0, kPrintUnit, 0);
  close_unit(units, kPrintUnit);
}

void write_sizes(const Options& options, Units& units, int out_unit, std::string_view heading) {
  write_free(units, out_unit, heading);
  write_free(units, out_unit, "rows:    ", options.ival[kRowLimit]);
  write_free(units, out_unit, "columss: ", options.ival[kColumnLimit]);
  write_free(units, out_unit, "elements:", options.ival[kElementsLimit]);
  write_free(units, out_unit);
}

double slot_memory_bytes(const Options& o) {
  const double rows_and_columns =
      static_cast<double>(o.ival[kRowLimit]) + static_cast<double>(o.ival[kColumnLimit]);
  return kSlotCount * (kBytesPerElement * o.ival[kElementsLimit] +
                       kBytesPerRowOrColumn * rows_and_columns);
}

// Refuses capacities whose slots would not fit the memory limit, naming the three sizes.
bool capacities_fit_memory(const Options& o, Units& units, int err_unit) {
  const double bytes = slot_memory_bytes(o);
  if (bytes <= kSlotMemoryLimitBytes) return true;
  constexpr double kMegabyte = 1024.0 * 1024.0;
  write_free(units, err_unit, "ERROR: slots of", o.ival[kRowLimit], " rows,",
             o.ival[kColumnLimit], " columns and", o.ival[kElementsLimit], " elements need about",
             static_cast<long long>(bytes / kMegabyte), " MB; the limit is",
             static_cast<long long>(kSlotMemoryLimitBytes / kMegabyte), " MB");
  return false;
}

// Every slot is sized here once for the whole run. Its simplex state is sized by its first solve,
// for that problem: states at the capacities would zero-fill memory no problem uses.
void allocate_slots(Optimizer& opt) {
  const Options& o = opt.options;
  opt.mmax = o.ival[kRowLimit];
  opt.nmax = o.ival[kColumnLimit];
  opt.nbmax = opt.mmax + opt.nmax;
  opt.nemax = o.ival[kElementsLimit];
  opt.nwcore = kWorkspacePerElement * opt.nemax;
  opt.options.ival[kWorkspaceTotal] = opt.nwcore;
  for (int k = kMasterSlot; k <= kCoreSlot; ++k) {
    allocate_slot(opt.slot[k], opt.mmax, opt.nmax, opt.nemax);
  }
}

// Completes the capacities (a file without ROWS, COLUMNS or ELEMENTS still sizes the slots: by the
// defaults of a solve), writes them under `heading` and fills the slots; false when they would not
// fit the memory limit.
bool size_slots(Optimizer& opt, Units& units, int out_unit, int err_unit,
                std::string_view heading) {
  complete_capacities(opt.options);
  write_sizes(opt.options, units, out_unit, heading);
  if (!capacities_fit_memory(opt.options, units, err_unit)) return false;
  allocate_slots(opt);
  return true;
}

// Only pi: a subproblem whose solution is not collected needs its row duals for the cut, and
// copying the rest of every solution costs a few percent of a large evaluation.
void copy_row_duals(const ProblemSlot& s, std::vector<double>& duals) {
  if (duals.size() < static_cast<std::size_t>(s.m) + 1) duals.resize(static_cast<std::size_t>(s.m) + 1);
  std::copy_n(s.pi.begin() + 1, s.m, duals.begin() + 1);
}

void copy_solution(const ProblemSlot& s, std::vector<double>& duals,
                   std::vector<double>& primal) {
  const std::size_t nb = static_cast<std::size_t>(s.n) + s.m;
  if (primal.size() < nb + 1) primal.resize(nb + 1);
  if (duals.size() < nb + 1) duals.resize(nb + 1);
  std::copy_n(s.xn.begin() + 1, nb, primal.begin() + 1);
  copy_row_duals(s, duals);
  std::copy_n(s.rc.begin() + 1, s.n, duals.begin() + 1 + s.m);
}

// The optimizer's start word for start 0, 1 or any other value.
std::string_view start_word(int start) {
  if (start == 0) return "cold";
  if (start == 1) return "warm";
  return "hot ";
}

}  // namespace

int optimizer_init(Optimizer& opt, Units& units, int out_unit, int err_unit, int debug,
                   const std::string& specs_file) {
  if (opt.active == 0) opt.active = kMasterSlot;
  if (!open_unit(units, kSpecsUnit, specs_file, OpenStatus::old_file)) {
    write_free(units, err_unit, "ERROR: SPECS file ", specs_file, " not found");
    return kInitFailed;
  }
  open_unit(units, kPrintUnit, "MODEL.MO", OpenStatus::unknown);
  // The workspace is sized from ELEMENTS, so its total is known only after the read.
  const int status = read_specs(opt.options, units, kSpecsUnit, kPrintUnit, 0, 0);
  close_unit(units, kSpecsUnit);
  int result = 0;
  if (status >= 1) {
    write_free(units, err_unit, "ERROR: while reading SPECS file");
    result = kInitFailed;
  } else if (debug == 0) {
    switch_print_files_off(opt, units);
  }
  if (!size_slots(opt, units, out_unit, err_unit, "Simplex specs file:")) return kInitFailed;
  return result;
}

int optimizer_init_sized(Optimizer& opt, Units& units, int out_unit, int err_unit, int debug,
                         const SlotCapacity& capacity) {
  if (opt.active == 0) opt.active = kMasterSlot;
  const int print_unit = debug != 0 ? kPrintUnit : 0;
  if (print_unit != 0) open_unit(units, print_unit, "MODEL.MO", OpenStatus::unknown);
  read_specs(opt.options, units, 0, print_unit, 0, 0);  // every option unset
  opt.options.ival[kRowLimit] = capacity.rows;
  opt.options.ival[kColumnLimit] = capacity.columns;
  opt.options.ival[kElementsLimit] = capacity.elements;
  opt.options.ival[kIterationLimit] = capacity.iteration_limit;
  const std::string_view heading = "Simplex slots sized from the model:";
  return size_slots(opt, units, out_unit, err_unit, heading) ? 0 : kInitFailed;
}

void select_problem(Optimizer& opt, int slot) {
  if (valid_slot(slot)) opt.active = slot;
}

ProblemSlot& active_slot(Optimizer& opt) { return opt.slot[opt.active]; }

void set_objective_mode(Optimizer& opt, Units& units, int quadratic, int out_unit) {
  ProblemSlot& s = active_slot(opt);
  s.nncon = 0;
  s.nnjac = 0;
  if (quadratic != 1) {
    s.nnobj = 0;
    set_option_int(opt.options, units, "SUPERBASICS LIMIT", 1, out_unit, 0);
    return;
  }
  s.nnobj = s.n;
  set_option_int(opt.options, units, "SUPERBASICS LIMIT", s.n + 1, out_unit, 0);
  set_option_int(opt.options, units, "HESSIAN DIMENSION", s.n + 1, out_unit, 0);
  set_option_int(opt.options, units, "PARTIAL PRICE", 1, out_unit, 0);
}

int solve_problem(Optimizer& opt, Units& units, int out_unit, int& inform, int start,
                  double& objective, double& /*spare1*/, std::vector<double>& duals,
                  double& /*spare2*/, std::vector<double>& primal) {
  inform = solve_quietly(active_slot(opt), opt.solver[opt.active], opt.options, opt, units,
                         start, SolutionCopy::full, objective, duals, primal);
  report_solve_status(units, out_unit, inform);
  return 0;
}

void hold_problem(HeldProblem& held, const ProblemSlot& from) {
  allocate_slot(held.slot, from.m, from.n, from.ne);
  const std::size_t nb = static_cast<std::size_t>(from.n) + from.m;
  const std::size_t ne = static_cast<std::size_t>(from.ne);
  ProblemSlot& to = held.slot;
  to.m = from.m;
  to.n = from.n;
  to.nb = from.nb;
  to.ne = from.ne;
  to.nncon = from.nncon;
  to.nnobj = from.nnobj;
  to.nnjac = from.nnjac;
  to.iobj = from.iobj;
  to.objadd = from.objadd;
  to.ns = from.ns;
  to.loaded = from.loaded;
  to.problem_name = from.problem_name;
  std::copy_n(from.a.begin(), ne + 1, to.a.begin());
  std::copy_n(from.ha.begin(), ne + 1, to.ha.begin());
  std::copy_n(from.ka.begin(), from.n + 2, to.ka.begin());
  for (auto [f, t] : {std::pair{&from.bl, &to.bl}, {&from.bu, &to.bu}, {&from.xn, &to.xn}}) {
    std::copy_n(f->begin(), nb + 1, t->begin());
  }
  std::copy_n(from.hs.begin(), nb + 1, to.hs.begin());
  std::copy_n(from.names.begin(), nb + 1, to.names.begin());
  std::copy_n(from.row_type.begin(), from.m + 1, to.row_type.begin());
  // The simplex state is sized by its first solve, on whichever thread makes it.
  held.solver = SimplexState{};
}

int solve_quietly(ProblemSlot& slot, SimplexState& solver, Options& options, const Optimizer& opt,
                  Units& units, int start, SolutionCopy copy, double& objective,
                  std::vector<double>& duals, std::vector<double>& primal) {
  // "MPS file 0" for every solve, set directly: parsing the phrase would cost more than the
  // re-solve of a subproblem and writes nothing anyway.
  options.ival[kMpsFile] = 0;
  const int inform = optimizer_solve(solver, options, units, slot, start_word(start), opt.names,
                                     opt.nwcore, opt.regularization);
  objective = inform == 1 ? slot.sinf : slot.obj;
  if (copy == SolutionCopy::full) {
    copy_solution(slot, duals, primal);
  } else {
    copy_row_duals(slot, duals);
  }
  return inform;
}

void report_solve_status(Units& units, int out_unit, int inform) {
  if (inform == 1) {
    write_free(units, out_unit, "ERROR: PROBLEM INFEASIBLE");
  } else if (inform == 2) {
    write_free(units, out_unit, "ERROR: PROBLEM UNBOUNDED");
  } else if (inform != 0) {
    write_free(units, out_unit, "ERROR: ERROR CODE: ", inform);
  }
}

}  // namespace tarvo::lp
