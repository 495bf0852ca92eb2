// The RHS and RANGES sections of an MPS file. Only the first set of each is used.
#include <cmath>

#include "input/mps_read_state.h"

namespace tarvo::input::mps {

namespace {

const lp::Name8 kLagrange = lp::make_name("LAGRANGE");

void report_rhs_card_missing(ReadState& state) {
  ++state.result.errors;
  section_fault(state, " XXXX  RHS card not found");
}

void report_lagrange(ReadState& state) {
  section_message(state, " XXXX  Warning - first RHS is LAGRANGE.");
  section_message(state, "   Other RHS's will be ignored.");
}

void report_objective_constant(ReadState& state) {
  section_message(state, laid_out("(a, 1p, e15.6, a)", {" XXXX  Note:  constant",
                                                        state.slot.objadd,
                                                        "  is added to the objective."}));
}

void report_rhs_zero(ReadState& state) { section_message(state, " XXXX  Warning - the RHS is zero"); }

// Both (row, value) pairs of the line, the second only when its name is not blank. False when a
// used value is not a number (reported).
struct LinePairs {
  int count = 0;
  lp::Name8 names[2];
  double values[2] = {0.0, 0.0};
};

bool read_pairs(ReadState& state, LinePairs& pairs) {
  const MpsLine& line = state.line;
  pairs.count = is_blank(line.name3()) ? 1 : 2;
  pairs.names[0] = line.name2();
  pairs.names[1] = line.name3();
  if (!read_value(state, line.value1_field(), pairs.values[0])) return false;
  return pairs.count == 1 || read_value(state, line.value2_field(), pairs.values[1]);
}

int find_row(ReadState& state, const lp::Name8& name) {
  const HashProbe probe = hash_lookup(state.hash, state.row_names, name, kHashSearch);
  if (!probe.found) report_unknown_row(state, name);
  return probe.found ? probe.row : 0;
}

void apply_rhs(ReadState& state, int row, double value) {
  state.row_rhs[row] = value;
  if (row == state.objective_row) {
    state.slot.objadd = -value;
    return;
  }
  const double limit = as_bound(value);
  switch (state.row_type[row]) {
    case lp::kRowE: state.row_lower[row] = state.row_upper[row] = limit; break;
    case lp::kRowG: state.row_lower[row] = limit; break;
    case lp::kRowL: state.row_upper[row] = limit; break;
    default: break;  // other free rows take no right-hand side
  }
}

// A range counts from the row's right-hand side, whatever ranges came before.
void apply_range(ReadState& state, int row, double range) {
  const double r = state.row_rhs[row];
  const double size = std::fabs(range);
  switch (state.row_type[row]) {
    case lp::kRowG:
      state.row_lower[row] = as_bound(r);
      state.row_upper[row] = as_bound(r + size);
      break;
    case lp::kRowL:
      state.row_lower[row] = as_bound(r - size);
      state.row_upper[row] = as_bound(r);
      break;
    case lp::kRowE:
      state.row_lower[row] = as_bound(range < 0.0 ? r - size : r);
      state.row_upper[row] = as_bound(range > 0.0 ? r + size : r);
      break;
    default: break;
  }
}

void read_rhs_line(ReadState& state, SetChoice& set, bool& lagrange) {
  const bool first = !set.chosen;
  if (!in_chosen_set(state, set, state.settings.rhs)) return;
  if (first && is_blank(state.settings.rhs) && set.name == kLagrange) {
    lagrange = true;
    report_lagrange(state);
  }
  if (lagrange) return;
  LinePairs pairs;
  if (!read_pairs(state, pairs)) return;
  for (int k = 0; k < pairs.count; ++k) {
    const int row = find_row(state, pairs.names[k]);
    if (row == 0) continue;
    apply_rhs(state, row, pairs.values[k]);
    ++state.result.rhs_entries;
  }
}

void read_range_line(ReadState& state, SetChoice& set) {
  if (!in_chosen_set(state, set, state.settings.ranges)) return;
  LinePairs pairs;
  if (!read_pairs(state, pairs)) return;
  for (int k = 0; k < pairs.count; ++k) {
    const int row = find_row(state, pairs.names[k]);
    if (row == 0) continue;
    apply_range(state, row, pairs.values[k]);
    ++state.result.ranges_entries;
  }
}

}  // namespace

void read_rhs_section(ReadState& state) {
  if (!card_is(state, "RHS ") && !card_is(state, "RHS'")) {
    report_rhs_card_missing(state);
    return;
  }
  SetChoice set;
  bool lagrange = false;
  while (next_data_line(state)) read_rhs_line(state, set, lagrange);
  state.result.names.rhs = set.chosen ? set.name : state.settings.rhs;
  if (state.slot.objadd != 0.0) report_objective_constant(state);
  if (state.result.rhs_entries == 0) report_rhs_zero(state);
}

void read_ranges_section(ReadState& state) {
  if (!card_is(state, "RANG")) return;
  SetChoice set;
  while (next_data_line(state)) read_range_line(state, set);
  state.result.names.ranges = set.chosen ? set.name : state.settings.ranges;
}

}  // namespace tarvo::input::mps
