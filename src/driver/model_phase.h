#pragma once
#include "driver/run_state.h"

namespace tarvo::driver {

// The optimizer, its slots sized by the options file or, when the request names none, from the
// core file. False when it could not start (its message written).
bool start_optimizer(RunState& run);

// The stochastic file's prescan: sizes the outcome store and echoes them. False when the run must
// end (every message written).
bool prescan_model(RunState& run);

// Time file, core file, the split into master and subproblem, and the stochastic file. False
// when the run must end (every message written). A core with integer columns is solved as its LP
// relaxation: silently without arguments, with a warning when irelax is 1; by path it stops the
// run otherwise.
bool read_model(RunState& run);

}  // namespace tarvo::driver
