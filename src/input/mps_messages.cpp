// Where the MPS reader's messages go, and the per-kind message limit.
#include "input/mps_read_state.h"

namespace tarvo::input::mps {

void section_message(ReadState& state, std::string_view text) {
  write_if_open(state.units, state.print_unit, text);
  if (state.summary_unit != state.print_unit) write_if_open(state.units, state.summary_unit, text);
}

void line_message(ReadState& state, std::string_view text) {
  write_if_open(state.units, state.print_unit, text);
}

// Faults fail the read, so they also reach the run's error file: a user always learns which
// lines stopped the run, whether or not the optimizer keeps its files.
void fault_message(ReadState& state, std::string_view text) {
  write_if_open(state.units, state.print_unit, text);
  if (state.error_unit != state.print_unit) write_if_open(state.units, state.error_unit, text);
}

void section_fault(ReadState& state, std::string_view text) {
  section_message(state, text);
  if (state.error_unit != state.print_unit && state.error_unit != state.summary_unit) {
    write_if_open(state.units, state.error_unit, text);
  }
}

bool count_fault(ReadState& state, LineFault fault) {
  ++state.result.errors;
  return ++state.faults[fault] <= state.settings.message_limit;
}

void report_over_capacity(ReadState& state, std::string_view what, int limit, int actual) {
  ++state.result.errors;
  section_fault(state, laid_out("(a, i8, a, i8)", {what, limit, "  Actual number is", actual}));
}

// An unknown row or column name: the line is skipped.
void report_unknown_name(ReadState& state, LineFault fault, std::string_view what, const lp::Name8& name) {
  if (!count_fault(state, fault)) return;
  fault_message(state, laid_out("(a, a, a, i7)", {what, lp::name_view(name), " -- entry ignored in line",
                                                 state.line.number}));
}

void report_unknown_row(ReadState& state, const lp::Name8& name) {
  report_unknown_name(state, kUnknownRow, " XXXX  Non-existent row    specified -- ", name);
}

}  // namespace tarvo::input::mps
