// The BOUNDS section of an MPS file. Only the first bound set is used.
#include "input/mps_read_state.h"

namespace tarvo::input::mps {

namespace {

const lp::Name8 kInitial = lp::make_name("INITIAL");

enum class BoundType { none, up, lo, fx, fr, mi, pl, bv, li, ui };

BoundType bound_type_of(std::string_view key) {
  static constexpr std::pair<std::string_view, BoundType> kKeys[] = {
      {" UP ", BoundType::up}, {" LO ", BoundType::lo}, {" FX ", BoundType::fx},
      {" FR ", BoundType::fr}, {" MI ", BoundType::mi}, {" PL ", BoundType::pl},
      {" BV ", BoundType::bv}, {" LI ", BoundType::li}, {" UI ", BoundType::ui}};
  for (const auto& [text, type] : kKeys) {
    if (key == text) return type;
  }
  return BoundType::none;
}

bool takes_value(BoundType type) {
  switch (type) {
    case BoundType::up:
    case BoundType::lo:
    case BoundType::fx:
    case BoundType::li:
    case BoundType::ui: return true;
    default: return false;
  }
}

bool marks_integer(BoundType type) {
  switch (type) {
    case BoundType::bv:
    case BoundType::li:
    case BoundType::ui: return true;
    default: return false;
  }
}

void report_initial(ReadState& state) {
  section_message(state, " XXXX  Warning - first bounds set is  INITIAL .");
  section_message(state, "   Other bounds will be ignored.");
}

void report_illegal_bound_type(ReadState& state) {
  if (!count_fault(state, kIllegalBoundType)) return;
  const MpsLine& line = state.line;
  const lp::Name8 set = line.name1();
  const lp::Name8 column = line.name2();
  fault_message(state, laid_out("(a, i7, a, a, a, 2x, a, 2x, a)",
                               {" XXXX  Illegal bound type at line", line.number, "... ",
                                line.key(), lp::name_view(set), lp::name_view(column),
                                line.value1_field()}));
}

void report_unknown_column(ReadState& state, const lp::Name8& name) {
  report_unknown_name(state, kUnknownColumn, " XXXX  Non-existent column specified -- ", name);
}

// MI leaves a finite upper bound alone but turns an infinite one into 0.
void apply_bound(lp::ProblemSlot& slot, int j, BoundType type, double value) {
  double& lower = slot.bl[j];
  double& upper = slot.bu[j];
  switch (type) {
    case BoundType::up: upper = value; break;
    case BoundType::lo: lower = value; break;
    case BoundType::fx: lower = upper = value; break;
    case BoundType::fr:
      lower = -lp::kInfiniteBound;
      upper = lp::kInfiniteBound;
      break;
    case BoundType::mi:
      lower = -lp::kInfiniteBound;
      if (upper >= lp::kInfiniteBound) upper = 0.0;
      break;
    case BoundType::pl: upper = lp::kInfiniteBound; break;
    case BoundType::bv:
      lower = 0.0;
      upper = 1.0;
      break;
    case BoundType::li: lower = value; break;
    case BoundType::ui: upper = value; break;
    case BoundType::none: break;
  }
}

int find_bound_column(ReadState& state, const lp::Name8& name) {
  const int last = std::min(state.columns, state.slot.nmax);
  return cursor_search_reported(state.slot.names, 1, last, name, state.column_cursor, state.units,
                                state.print_unit, state.line.number, state.settings.message_limit);
}

void read_bound_line(ReadState& state, SetChoice& set, bool& initial) {
  const bool first = !set.chosen;
  if (!in_chosen_set(state, set, state.settings.bounds)) return;
  if (first && is_blank(state.settings.bounds) && set.name == kInitial) {
    initial = true;
    report_initial(state);
  }
  if (initial) return;
  const BoundType type = bound_type_of(state.line.key());
  if (type == BoundType::none) {
    report_illegal_bound_type(state);
    return;
  }
  const lp::Name8 column = state.line.name2();
  const int j = find_bound_column(state, column);
  if (j == 0) {
    report_unknown_column(state, column);
    return;
  }
  double value = 0.0;
  if (takes_value(type) && !read_value(state, state.line.value1_field(), value)) return;
  apply_bound(state.slot, j, type, as_bound(value));
  if (marks_integer(type) && state.slot.reader_work[j] == 0) {
    state.slot.reader_work[j] = 1;
    ++state.result.integer_columns;
  }
  ++state.result.bounds_entries;
}

}  // namespace

void read_bounds_section(ReadState& state) {
  if (!card_is(state, "BOUN")) return;
  SetChoice set;
  bool initial = false;
  while (next_data_line(state)) read_bound_line(state, set, initial);
  state.result.names.bounds = set.chosen ? set.name : state.settings.bounds;
}

}  // namespace tarvo::input::mps
