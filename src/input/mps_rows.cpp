// The NAME card and the ROWS section of an MPS file.
#include "input/mps_read_state.h"

namespace tarvo::input::mps {

namespace {

constexpr int kNoRowType = -99;

// Row type keys stand in column 2 or column 3.
int row_type_of(std::string_view key) {
  if (key.size() != 4 || key[0] != ' ' || key[3] != ' ') return kNoRowType;
  char letter;
  if (key[1] != ' ' && key[2] == ' ') {
    letter = key[1];
  } else if (key[1] == ' ' && key[2] != ' ') {
    letter = key[2];
  } else {
    return kNoRowType;
  }
  switch (letter) {
    case 'E': return lp::kRowE;
    case 'G': return lp::kRowG;
    case 'L': return lp::kRowL;
    case 'N': return lp::kRowN;
    default: return kNoRowType;
  }
}

void report_garbage_before_name(ReadState& state) {
  ++state.result.errors;
  section_fault(state, " XXXX  Garbage before NAME card");
}

void report_problem_name(ReadState& state) {
  line_message(state, laid_out("(a, a)", {" Name   ", lp::name_view(state.result.names.problem)}));
}

void report_rows_card_missing(ReadState& state) {
  ++state.result.errors;
  section_fault(state, " XXXX  ROWS card not found");
}

void report_illegal_row_type(ReadState& state) {
  if (!count_fault(state, kIllegalRowType)) return;
  const lp::Name8 name = state.line.name1();
  fault_message(state, laid_out("(a, i7, 4x, a, 2x, a)", {" XXXX  Illegal row type at line",
                                                         state.line.number, state.line.key(),
                                                         lp::name_view(name)}));
}

void report_duplicate_row(ReadState& state, const lp::Name8& name) {
  if (!count_fault(state, kDuplicateRow)) return;
  fault_message(state, laid_out("(a, a, a)", {" XXXX  Duplicate row name --", lp::name_view(name),
                                             " -- ignored"}));
}

void report_objective_note(ReadState& state, const lp::Name8& name) {
  section_message(state, laid_out("(a, a, a)", {" XXXX  Note:  row  ", lp::name_view(name),
                                                "  selected as linear part of objective."}));
}

void report_columns_card_missing(ReadState& state) {
  ++state.result.errors;
  section_fault(state, " XXXX  COLUMNS card not found");
}

void report_no_rows(ReadState& state) {
  ++state.result.errors;
  section_fault(state, " XXXX  No rows specified");
}

void report_objective_out_of_place(ReadState& state) {
  ++state.result.errors;
  const lp::Name8 name = state.row_names[state.objective_row];
  section_fault(state, laid_out("(a, a)", {" XXXX  The linear objective card      N ",
                                           lp::name_view(name)}));
  section_fault(state, " XXXX  is out of place.    Nonlinear constraints must come first,");
  section_fault(state, " XXXX  and the linear objective must follow them.");
}

void report_too_many_rows(ReadState& state) {
  report_over_capacity(state, " XXXX  Too many rows.  Limit was", state.slot.mmax, state.rows);
}

void report_no_objective(ReadState& state) {
  section_message(state, " XXXX  Warning - no linear objective selected");
}

void report_row_count(ReadState& state) {
  line_message(state, laid_out("(a, i8)", {" Rows   ", state.rows}));
}

void set_row_defaults(ReadState& state, int row, int type) {
  state.row_type[row] = type;
  state.row_rhs[row] = 0.0;
  state.row_lower[row] = (type == lp::kRowL || type == lp::kRowN) ? -lp::kInfiniteBound : 0.0;
  state.row_upper[row] = (type == lp::kRowG || type == lp::kRowN) ? lp::kInfiniteBound : 0.0;
}

// The first N row is the objective unless the options name one.
void select_objective(ReadState& state, int row, const lp::Name8& name) {
  if (state.objective_row != 0) return;
  if (is_blank(state.settings.objective)) {
    state.objective_row = row;
    if (state.settings.nonlinear_variables) report_objective_note(state, name);
  } else if (name == state.settings.objective) {
    state.objective_row = row;
  }
}

void read_row(ReadState& state) {
  const int type = row_type_of(state.line.key());
  if (type == kNoRowType) {
    report_illegal_row_type(state);
    return;
  }
  const lp::Name8 name = state.line.name1();
  const bool room = state.rows < state.slot.mmax;
  const HashProbe probe =
      hash_lookup(state.hash, state.row_names, name, room ? kHashInsert : kHashSearch);
  if (probe.found) {
    report_duplicate_row(state, name);
    return;
  }
  ++state.rows;
  if (!room) return;  // counted only, for the message
  if (probe.position == 0) {
    state.storage = true;
    return;
  }
  state.row_names[state.rows] = name;
  state.hash.table[probe.position] = state.rows;
  set_row_defaults(state, state.rows, type);
  if (type == lp::kRowN) select_objective(state, state.rows, name);
}

}  // namespace

void read_name_card(ReadState& state) {
  bool garbage = false;
  while (read_line(state)) {
    if (state.line.comment) continue;
    if (card_is(state, "NAME")) {
      state.result.names.problem = state.line.name2();
      state.slot.problem_name = state.result.names.problem;
      report_problem_name(state);
      skip_to_card(state);
      return;
    }
    if (!garbage) report_garbage_before_name(state);
    garbage = true;
  }
}

void read_rows_section(ReadState& state) {
  if (!card_is(state, "ROWS")) {
    report_rows_card_missing(state);
    return;
  }
  while (next_data_line(state)) read_row(state);
}

void check_rows(ReadState& state) {
  if (!card_is(state, "COLU")) report_columns_card_missing(state);
  if (state.rows == 0) {
    report_no_rows(state);
    state.fatal = true;
    return;
  }
  if (state.objective_row > 0 && state.objective_row <= state.settings.nonlinear_constraints) {
    report_objective_out_of_place(state);
    state.fatal = true;
    return;
  }
  if (state.rows > state.slot.mmax || state.storage) {
    report_too_many_rows(state);
    state.storage = true;
    return;
  }
  if (state.objective_row == 0) report_no_objective(state);
  report_row_count(state);
}

}  // namespace tarvo::input::mps
