#pragma once
#include "driver/run_state.h"

namespace tarvo::driver {

// Sizes the solve state and the sampling layer once the model is read. False when the run must
// end (message written).
bool prepare_solve(RunState& run);

// The strategy dispatch of a normal run: the expected-value run and/or the strategy run of
// istrat, each followed by its solution report, then the run summary. False on an error exit.
bool solve_stochastic_program(RunState& run);

// The evaluation run: the first-stage solution of MODEL.STA evaluated with istrat, and its
// report. False on an error exit.
bool evaluate_solution_file(RunState& run);

}  // namespace tarvo::driver
