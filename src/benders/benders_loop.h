#pragma once
// The Benders iteration for one strategy run, and the evaluation of a given first-stage
// solution. Both return sampling::kOk or sampling::kErrorExit (messages written, statuses set).
#include <vector>

#include "benders/solve_state.h"
#include "sampling/evaluation.h"

namespace tarvo::benders {

// Runs the loop for strategy s (1 the expected values, 2..11 the sampling strategies) with
// regularization when ireg is 1: relaxed master, then evaluate, cut, master, tests, until the
// gap closes or a limit is hit; then the final bounds, the re-evaluation and the summary lines.
int benders_loop(const sampling::Context& ctx, sampling::Evaluation& ev, SolveState& state, int s,
                 int ireg);

// The evaluation run: the first-stage columns fixed at x[1..n1], the master solved for their
// cost, the proposal evaluated with strategy istrat.
int evaluate_given_solution(const sampling::Context& ctx, sampling::Evaluation& ev,
                            SolveState& state, int istrat, const std::vector<double>& x);

}  // namespace tarvo::benders
