#include "driver/model_phase.h"

#include <algorithm>
#include <string>

#include "common/free_format.h"
#include "driver/banner.h"
#include "input/core_file.h"
#include "input/decompose.h"
#include "input/mps_sizes.h"
#include "input/stoch_file.h"
#include "input/time_file.h"

namespace tarvo::driver {
namespace {

constexpr int kTimeUnit = 32;
constexpr int kDumpUnit = 27;
constexpr int kDebugListingLevel = 8;
constexpr int kSplitDumpLevel = 6;
// Slots sized from the model: far beyond what any one solve needs.
constexpr long long kIterationsPerVariable = 10;
constexpr long long kSpareIterations = 1000;
constexpr long long kLargestCapacity = 1LL << 28;

input::MessageUnits message_units(const RunState& run) {
  return input::MessageUnits{run.log_unit, run.message_unit};
}

int capped(long long value) { return static_cast<int>(std::clamp(value, 1LL, kLargestCapacity)); }

// The master's group columns when their number is known before the model is read: `ncuts` groups,
// or one per point of a presample. A cut per outcome of the universe is sized by the core alone.
long long known_group_columns(const RunParams& params) {
  if (params.ncuts > 1) return params.ncuts;
  const bool presampling = params.istrat == 8 || params.istrat == 9;
  if (params.ncuts == 0 && presampling) return std::max(params.nsamples, 0);
  return 0;
}

// Room for the core in slot 3 and for what the split makes of it: the master's cut rows, THETA
// and its group columns with the row that sums them, and a cut-row placeholder in every column.
lp::SlotCapacity capacity_for(const std::string& core_file, const RunParams& params) {
  const input::MpsSizes core = input::count_mps_sizes(core_file);
  const long long cuts = std::max(params.nzrows, 0);
  const long long groups = known_group_columns(params);
  lp::SlotCapacity capacity;
  capacity.rows = capped(core.rows + cuts + 2);
  capacity.columns = capped(core.columns + 1 + groups);
  capacity.elements =
      capped(core.entries + (core.columns + 1) * (cuts + 1) + 2 * groups + cuts + 2);
  capacity.iteration_limit =
      capped(kIterationsPerVariable * (capacity.rows + capacity.columns) + kSpareIterations);
  return capacity;
}

std::string trimmed(const lp::Name8& name) {
  std::string text(lp::name_view(name));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

// Each of the units once: screen log, message unit and console.
void write_everywhere(RunState& run, const std::string& line) {
  const int units[] = {run.log_unit, run.message_unit, kConsoleUnit};
  for (int k = 0; k < 3; ++k) {
    if (std::find(units, units + k, units[k]) == units + k) input::write_if_open(run.units, units[k], line);
  }
}

// "column X" and, when there are more, how many.
std::string integer_columns_text(const RunState& run) {
  const int count = run.core_read.integer_columns;
  std::string text = "column " + trimmed(run.optimizer.slot[lp::kCoreSlot].names[run.core_read.first_integer_column]);
  if (count > 1) text += " (and " + std::to_string(count - 1) + " more)";
  return text;
}

// Integer columns are solved as continuous. By path that is done only when asked for.
bool accept_integer_columns(RunState& run) {
  if (run.core_read.integer_columns == 0) return true;
  if (run.params.irelax == 1) {
    const std::string warning = free_line("WARNING: integer ", integer_columns_text(run),
                                          " solved as continuous: the LP relaxation");
    input::write_if_open(run.units, run.log_unit, warning);
    input::write_if_open(run.units, kSolutionUnit, warning);
    return true;
  }
  if (!run.request.by_path) return true;
  write_everywhere(run, free_line("ERROR: ", integer_columns_text(run),
                                  " is integer; TARVO solves linear programs: run with --relax (or 1 irelax in the "
                                  "parameter file) to solve the LP relaxation"));
  return false;
}

void echo_store_sizes(RunState& run) {
  Units& u = run.units;
  const int log = run.log_unit;
  write_free(u, log, "stoch array sizes:");
  write_free(u, log, "jele:  ", run.store.jele);
  write_free(u, log, "jsum:  ", run.store.jsum);
  write_free(u, log, "itoc:  ", run.store.itoc);
  write_free(u, log, "itele: ", run.store.itele);
  write_free(u, log);
}

}  // namespace

bool start_optimizer(RunState& run) {
  const RunRequest& r = run.request;
  if (r.specs_file.empty()) {
    return lp::optimizer_init_sized(run.optimizer, run.units, run.log_unit, kErrorUnit,
                                    run.params.iwrite,
                                    capacity_for(r.core, run.params)) == 0;
  }
  return lp::optimizer_init(run.optimizer, run.units, run.log_unit, kErrorUnit,
                            run.params.iwrite, r.specs_file) == 0;
}

bool prescan_model(RunState& run) {
  Units& u = run.units;
  int debug_unit = 0;
  if (run.params.ibug >= kDebugListingLevel) {
    open_unit(u, kSprUnit, "MODEL.SPR", OpenStatus::unknown);
    write_short_banner(u, kSprUnit);
    debug_unit = kSprUnit;
  }
  if (!open_unit(u, kStochUnit, run.request.stoch, OpenStatus::old_file)) {
    write_free(u, run.message_unit, "ERROR in file ", run.request.stoch);
    return false;
  }
  const input::InputStatus status =
      input::prescan_stoch_file(u, kStochUnit, debug_unit, message_units(run), run.store);
  close_unit(u, kStochUnit);
  if (input::failed(status)) return false;
  echo_store_sizes(run);
  if (debug_unit != 0) close_unit(u, debug_unit);
  return true;
}

bool read_model(RunState& run) {
  Units& u = run.units;
  const input::MessageUnits to = message_units(run);
  lp::Optimizer& opt = run.optimizer;
  const RunRequest& files = run.request;
  if (input::failed(input::read_time_file(u, files.time, kTimeUnit, 0, to, run.stage_names))) {
    return false;
  }
  lp::ProblemSlot& core = opt.slot[lp::kCoreSlot];
  // The reader writes to the optimizer's print and summary files; faults also to MODEL.ERR.
  if (input::failed(input::read_core_problem(core, opt.options, u, opt.options.ival[lp::kPrintFile],
                                             opt.options.ival[lp::kSummaryFile], to,
                                             run.params.iwrite, run.core_read, files.core)) ||
      !accept_integer_columns(run)) {
    return false;
  }
  const input::MpsNames& names = run.core_read.names;
  opt.names = {names.problem, names.objective, names.rhs, names.ranges, names.bounds};
  input::allocate_decomposition(run.model, core);
  input::allocate_outcome_store(run.store);
  if (input::failed(input::decompose(core, run.stage_names, run.params.nzrows,
                                     opt.slot[lp::kMasterSlot], opt.slot[lp::kSubproblemSlot],
                                     run.model, u, to))) {
    return false;
  }
  if (run.params.iwrite >= kSplitDumpLevel) {
    input::dump_split_problems(opt.slot[lp::kMasterSlot], opt.slot[lp::kSubproblemSlot], names, u,
                               kDumpUnit);
  }
  const input::StochContext context{opt.slot[lp::kMasterSlot], opt.slot[lp::kSubproblemSlot],
                                    run.model, names.rhs,
                                    {run.stage_names.stage1_period, run.stage_names.stage2_period}};
  return !input::failed(
      input::read_stoch_file(u, files.stoch, kStochUnit, 0, to, context, run.store));
}

}  // namespace tarvo::driver
