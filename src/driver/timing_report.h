#pragma once
#include "driver/run_state.h"

namespace tarvo::driver {

// The execution, setup, solution, master and subproblem times at the end of MODEL.SOL.
void write_timing_report(RunState& run);

}  // namespace tarvo::driver
