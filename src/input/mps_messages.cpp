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

bool count_fault(ReadState& state, LineFault fault) {
  ++state.result.errors;
  return ++state.faults[fault] <= state.settings.message_limit;
}

void report_unknown_row(ReadState& state, const lp::Name8& name) {
  if (!count_fault(state, kUnknownRow)) return;
  line_message(state, laid_out("(a, a, a, i7)", {" XXXX  Non-existent row    specified -- ",
                                                 lp::name_view(name),
                                                 " -- entry ignored in line", state.line.number}));
}

}  // namespace tarvo::input::mps
