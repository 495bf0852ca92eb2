#include "input/decompose.h"

#include <algorithm>

#include "common/free_format.h"
#include "input/mps_writer.h"
#include "input/name_lookup.h"

namespace tarvo::input {

namespace {

constexpr double kThetaLower = -1.0e9;
constexpr int kEndMark = -1313;

// A column-wise element store that counts past its capacity, so that a message can say how
// much room was needed.
struct EntrySink {
  std::vector<double>& a;
  std::vector<int>& ha;
  int capacity;
  int count = 0;
};

void append(EntrySink& sink, int row, double value) {
  ++sink.count;
  if (sink.count > sink.capacity) return;
  sink.ha[sink.count] = row;
  sink.a[sink.count] = value;
}

void report_name_not_found(Units& units, const MessageUnits& to, const lp::Name8& name) {
  write_run_message(units, to, free_line("ERROR: name not found = ", lp::name_view(name)));
}

void report_not_staircase(Units& units, const MessageUnits& to) {
  write_run_message(units, to, free_line("ERROR: matrix not in staircase form!"));
}

// "ERROR: need <count> <what>" for every capacity shortfall.
void report_need(Units& units, const MessageUnits& to, int count, const char* what) {
  write_run_message(units, to, free_line("ERROR: need ", count, what));
}

// B's shape before the adjustment is (M2, N1), or (0, 0) when it has no entries.
void report_success(const lp::ProblemSlot& core, const Decomposition& dec, int sub_ne,
                    Units& units, int log) {
  const bool coupled = dec.b_nonzeros > 0;
  const auto line = [&](const auto&... items) { write_if_open(units, log, free_line(items...)); };
  line("Successful decomposition:");
  line("core:   rows", core.m, " cols", core.n, " nonz", core.ne);
  line("master: rows", dec.m1, " cols", dec.n1 + 1, " nonz", dec.master_nonzeros);
  line("B:      rows", coupled ? dec.m2 : 0, " cols", coupled ? dec.n1 : 0, " nonz", dec.b_nonzeros);
  line("sub:    rows", dec.m2, " cols", dec.n2, " nonz", sub_ne);
  line("matrix b adjusted:");
  line("rows:", dec.b_rows, " cols:", dec.b_cols, " nonz:", dec.b_nonzeros);
}

bool find_stages(const lp::ProblemSlot& core, const StageNames& names, Decomposition& dec,
                 Units& units, const MessageUnits& to) {
  const auto found = [&](int index, const lp::Name8& name) {
    if (index == kNotFound) report_name_not_found(units, to, name);
    return index != kNotFound;
  };
  dec.j1 = find_column(core, names.stage1_column);
  if (!found(dec.j1, names.stage1_column)) return false;
  dec.j2 = find_column(core, names.stage2_column, dec.j1 + 1);
  if (!found(dec.j2, names.stage2_column)) return false;
  dec.i1 = find_row(core, names.stage1_row);
  if (!found(dec.i1, names.stage1_row)) return false;
  // A first stage of bounds and costs only names its stage-1 row again for stage 2.
  if (names.stage2_row == names.stage1_row) {
    dec.i2 = std::max(dec.i1, 2);
    return true;
  }
  dec.i2 = find_row(core, names.stage2_row, dec.i1 + 1);
  return found(dec.i2, names.stage2_row);
}

void set_stage_sizes(const lp::ProblemSlot& core, int nzrows, Decomposition& dec) {
  dec.nzrows = nzrows;
  dec.n1 = dec.j2 - dec.j1;
  dec.n2 = core.n - dec.j2 + 1;
  dec.m1 = dec.i1 == 1 ? dec.i2 - 1 : dec.i2 - dec.i1 + 1;
  dec.m2 = core.m - dec.i2 + 2;
  dec.master_variables = nzrows + dec.m1 + dec.n1 + 1;
  dec.sub_variables = dec.m2 + dec.n2;
}

// Shapes the slots need beyond their element capacity (rows first, as the messages go).
bool shapes_fit(const lp::ProblemSlot& master, const lp::ProblemSlot& sub, const Decomposition& dec,
                Units& units, const MessageUnits& to) {
  if (dec.nzrows + dec.m1 > master.mmax) {
    report_need(units, to, dec.nzrows + dec.m1, " rows for master");
    return false;
  }
  if (dec.n1 + 1 > master.nmax) {
    report_need(units, to, dec.n1 + 1, " columns for master");
    return false;
  }
  if (dec.m2 > sub.mmax) {
    report_need(units, to, dec.m2, " rows for sub");
    return false;
  }
  if (dec.n2 > sub.nmax) {
    report_need(units, to, dec.n2, " columns for sub");
    return false;
  }
  return true;
}

// Master row of a first-stage core row r (1 or i1 <= r < i2).
int master_row(const Decomposition& dec, int r) { return dec.i1 == 1 || r == 1 ? r : r - dec.i1 + 2; }

void copy_column_data(const lp::ProblemSlot& from, int j, lp::ProblemSlot& to, int k) {
  to.bl[k] = from.bl[j];
  to.bu[k] = from.bu[j];
  to.xn[k] = from.xn[j];
  to.hs[k] = from.hs[j];
  to.names[k] = from.names[j];
}

void copy_row_data(const lp::ProblemSlot& from, int i, lp::ProblemSlot& to, int k) {
  const int p = from.n + i;
  const int q = to.n + k;
  to.bl[q] = from.bl[p];
  to.bu[q] = from.bu[p];
  to.xn[q] = from.xn[p];
  to.hs[q] = from.hs[p];
  to.names[q] = from.names[p];
  to.row_type[k] = from.row_type[i];
}

void set_free_row(lp::ProblemSlot& slot, int k, const lp::Name8& name) {
  const int q = slot.n + k;
  slot.bl[q] = -lp::kInfiniteBound;
  slot.bu[q] = lp::kInfiniteBound;
  slot.xn[q] = 0.0;
  slot.hs[q] = 0;
  slot.names[q] = name;
  slot.row_type[k] = lp::kRowN;
}

lp::Name8 objective_name(const lp::ProblemSlot& core) { return core.names[core.n + 1]; }

void set_master_rows(const lp::ProblemSlot& core, const Decomposition& dec, lp::ProblemSlot& master) {
  set_free_row(master, 1, objective_name(core));
  const int first = std::max(dec.i1, 2);
  for (int r = first; r < dec.i2; ++r) copy_row_data(core, r, master, master_row(dec, r));
  for (int c = 1; c <= dec.nzrows; ++c) {
    set_free_row(master, dec.m1 + c,
                 lp::make_name(laid_out("(a3, i2.2, i3.3)", {"CUT", lp::kMasterSlot, c})));
  }
}

void set_theta_column(lp::ProblemSlot& master, int k) {
  master.bl[k] = kThetaLower;
  master.bu[k] = lp::kInfiniteBound;
  master.xn[k] = 0.0;
  master.hs[k] = 0;
  master.names[k] = lp::make_name(laid_out("(a5, i3.3)", {"THETA", lp::kMasterSlot}));
}

// Copies first-stage column j of the core into master column k and its second-stage entries
// into B. False when the column has an entry in a dropped row.
bool copy_master_column(const lp::ProblemSlot& core, const Decomposition& dec, int j,
                        EntrySink& m, EntrySink& b, int& own_entries) {
  bool coupled = false;
  for (int p = core.ka[j]; p < core.ka[j + 1]; ++p) {
    const int r = core.ha[p];
    if (r != 1 && r < dec.i1) return false;
    if (r >= dec.i2) {
      append(b, r - dec.i2 + 2, -core.a[p]);
      coupled = true;
    } else {
      append(m, master_row(dec, r), core.a[p]);
      ++own_entries;
    }
  }
  if (coupled) {
    for (int c = 1; c <= dec.nzrows; ++c) append(m, dec.m1 + c, 0.0);
  }
  return true;
}

bool build_master(const lp::ProblemSlot& core, Decomposition& dec, lp::ProblemSlot& master,
                  EntrySink& m, EntrySink& b) {
  master.n = dec.n1 + 1;
  master.m = dec.m1 + dec.nzrows;
  master.nb = master.n + master.m;
  dec.master_nonzeros = 0;
  for (int k = 1; k <= dec.n1; ++k) {
    const int j = dec.j1 + k - 1;
    master.ka[k] = m.count + 1;
    dec.kb[k] = b.count + 1;
    copy_column_data(core, j, master, k);
    if (!copy_master_column(core, dec, j, m, b, dec.master_nonzeros)) return false;
  }
  const int theta = dec.n1 + 1;
  master.ka[theta] = m.count + 1;
  dec.kb[theta] = b.count + 1;
  dec.kb[theta + 1] = kEndMark;
  set_theta_column(master, theta);
  append(m, 1, 1.0);
  for (int c = 1; c <= dec.nzrows; ++c) append(m, dec.m1 + c, 1.0);
  master.ka[theta + 1] = m.count + 1;
  set_master_rows(core, dec, master);
  return true;
}

bool build_sub(const lp::ProblemSlot& core, const Decomposition& dec, lp::ProblemSlot& sub,
               EntrySink& s) {
  sub.n = dec.n2;
  sub.m = dec.m2;
  sub.nb = sub.n + sub.m;
  for (int k = 1; k <= dec.n2; ++k) {
    const int j = dec.j2 + k - 1;
    sub.ka[k] = s.count + 1;
    copy_column_data(core, j, sub, k);
    for (int p = core.ka[j]; p < core.ka[j + 1]; ++p) {
      const int r = core.ha[p];
      if (r != 1 && r < dec.i2) return false;
      append(s, r == 1 ? 1 : r - dec.i2 + 2, core.a[p]);
    }
  }
  sub.ka[dec.n2 + 1] = s.count + 1;
  set_free_row(sub, 1, objective_name(core));
  for (int r = dec.i2; r <= core.m; ++r) copy_row_data(core, r, sub, r - dec.i2 + 2);
  return true;
}

void set_base_rhs(const lp::ProblemSlot& sub, Decomposition& dec) {
  for (int i = 1; i <= dec.m2; ++i) {
    const double lower = lp::row_lower(sub, i);
    const double upper = lp::row_upper(sub, i);
    if (upper < lp::kInfiniteBound) {
      dec.h[i] = upper;
    } else if (lower > -lp::kInfiniteBound) {
      dec.h[i] = lower;
    } else {
      dec.h[i] = 0.0;
    }
  }
}

void finish_slot(const lp::ProblemSlot& core, lp::ProblemSlot& slot, int ne, double objadd) {
  slot.ne = ne;
  slot.iobj = 1;
  slot.objadd = objadd;
  slot.problem_name = core.problem_name;
  slot.loaded = true;
}

}  // namespace

void allocate_decomposition(Decomposition& dec, const lp::ProblemSlot& core) {
  const std::size_t elements = static_cast<std::size_t>(std::max(core.ne, 0)) + 1;
  dec.b.assign(elements, 0.0);
  dec.hb.assign(elements, 0);
  dec.kb.assign(static_cast<std::size_t>(std::max(core.n, 0)) + 3, 0);
  dec.h.assign(static_cast<std::size_t>(std::max(core.m, 0)) + 2, 0.0);
}

InputStatus decompose(const lp::ProblemSlot& core, const StageNames& names, int nzrows,
                      lp::ProblemSlot& master, lp::ProblemSlot& sub, Decomposition& dec,
                      Units& units, const MessageUnits& to) {
  if (!find_stages(core, names, dec, units, to)) return InputStatus::name_not_found;
  set_stage_sizes(core, std::max(nzrows, 0), dec);
  if (!shapes_fit(master, sub, dec, units, to)) return InputStatus::storage;
  if (static_cast<int>(dec.kb.size()) < dec.n1 + 3 || static_cast<int>(dec.h.size()) <= dec.m2) {
    allocate_decomposition(dec, core);
  }

  EntrySink m{master.a, master.ha, master.nemax};
  EntrySink b{dec.b, dec.hb, static_cast<int>(dec.b.size()) - 1};
  if (!build_master(core, dec, master, m, b)) {
    report_not_staircase(units, to);
    return InputStatus::not_staircase;
  }
  dec.b_nonzeros = b.count;
  if (b.count > b.capacity) {
    report_need(units, to, b.count, " nonzeros for B matrix");
    return InputStatus::storage;
  }
  if (m.count > m.capacity) {
    report_need(units, to, m.count, " nonzeros for master");
    return InputStatus::storage;
  }
  finish_slot(core, master, m.count, core.objadd);

  // Without second-stage columns there is no subproblem (never the case when both stage
  // columns were found, kept for cores split by hand).
  EntrySink s{sub.a, sub.ha, sub.nemax};
  if (dec.n2 == 0) {
    sub.m = sub.n = sub.nb = sub.ne = 0;
    dec.m2 = 0;
  } else if (!build_sub(core, dec, sub, s)) {
    report_not_staircase(units, to);
    return InputStatus::not_staircase;
  }
  if (s.count > s.capacity) {
    report_need(units, to, s.count, " nonzeros for sub");
    return InputStatus::storage;
  }
  if (dec.n2 > 0) finish_slot(core, sub, s.count, 0.0);
  set_base_rhs(sub, dec);

  dec.b_rows = dec.m2;
  dec.b_cols = dec.n1 + 1;
  report_success(core, dec, s.count, units, to.log);
  return InputStatus::ok;
}

namespace {

// Moves the row part of the column-then-row arrays `shift` places up, to make room for columns.
void shift_rows(lp::ProblemSlot& master, int shift) {
  for (int k = master.n + master.m; k > master.n; --k) {
    master.bl[k + shift] = master.bl[k];
    master.bu[k + shift] = master.bu[k];
    master.xn[k + shift] = master.xn[k];
    master.hs[k + shift] = master.hs[k];
    master.names[k + shift] = master.names[k];
  }
}

bool group_capacity(const lp::ProblemSlot& master, const Decomposition& dec, int groups,
                    Units& units, const MessageUnits& to) {
  const long long rows = master.m + 1LL;
  const long long columns = static_cast<long long>(master.n) + groups;
  // THETASUM's entries in THETA and every group column, one group coefficient per cut row.
  const long long elements = static_cast<long long>(master.ne) + 1 + groups + dec.nzrows;
  const auto need = [&](long long count, const char* what) {
    report_need(units, to, static_cast<int>(std::min<long long>(count, 2147483647)), what);
    return false;
  };
  if (rows > master.mmax) return need(rows, " rows for master");
  if (columns > master.nmax) return need(columns, " columns for master");
  if (elements > master.nemax) return need(elements, " nonzeros for master");
  return true;
}

}  // namespace

InputStatus add_cut_groups(lp::ProblemSlot& master, Decomposition& dec, int groups, Units& units,
                           const MessageUnits& to) {
  if (!group_capacity(master, dec, groups, units, to)) return InputStatus::storage;
  shift_rows(master, groups);
  master.n += groups;
  master.m += 1;
  master.nb = master.n + master.m;
  const int link = master.m;
  set_free_row(master, link, lp::make_name("THETASUM"));
  master.bl[master.n + link] = master.bu[master.n + link] = 0.0;
  master.row_type[link] = lp::kRowE;
  const int theta = dec.n1 + 1;
  int p = master.ne + 1;
  master.ha[p] = link;
  master.a[p] = 1.0;
  for (int g = 1; g <= groups; ++g) {
    const int k = theta + g;
    master.ka[k] = ++p;
    master.ha[p] = link;
    master.a[p] = -1.0;
    set_theta_column(master, k);
    master.names[k] = lp::make_name(laid_out("(a3, i5.5)", {"THG", g}));
  }
  master.ka[master.n + 1] = p + 1;
  master.ne = p;
  dec.groups = groups;
  write_if_open(units, to.log, free_line("cut groups:", groups, " master rows", master.m, " cols",
                                         master.n, " nonz", master.ne));
  return InputStatus::ok;
}

InputStatus dump_split_problems(const lp::ProblemSlot& master, const lp::ProblemSlot& sub,
                                const MpsNames& names, Units& units, int dump_unit) {
  const InputStatus first = dump_problem(master, lp::kMasterSlot, names, units, "MODEL.P01", dump_unit);
  const InputStatus second = dump_problem(sub, lp::kSubproblemSlot, names, units, "MODEL.P02", dump_unit);
  return failed(first) ? first : second;
}

}  // namespace tarvo::input
