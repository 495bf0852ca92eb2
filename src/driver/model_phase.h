#pragma once
#include "driver/run_state.h"

namespace tarvo::driver {

// The stochastic file's prescan: sizes the outcome store and echoes them. False when the run must
// end (every message written).
bool prescan_model(RunState& run);

// Time file, core file, the split into master and subproblem, and the stochastic file. False
// when the run must end (every message written).
bool read_model(RunState& run);

}  // namespace tarvo::driver
