#pragma once
#include "driver/run_state.h"

namespace tarvo::driver {

// The single way out of a run: status bookkeeping, the status file when asked, and
// "Normal Exit" (code 0) or "ERROR Exit" (any other code) on the console.
void error_exit(RunState& run, int code);

}  // namespace tarvo::driver
