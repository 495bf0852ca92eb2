#pragma once
// The evaluation of a first-stage proposal by the strategy istrat, called by the Benders loop.
//
//   istrat 1      expected values             istrat 6, 7    crude Monte Carlo, new sample
//   istrat 2, 3   importance sampling         istrat 8, 9    Monte Carlo presampling
//   istrat 4, 5   universe                    istrat 10, 11  control-variable sampling
//
// Before the first evaluation the driver seeds the generator (seed_generator), sizes the state
// (allocate_evaluation) and the loop computes the expected values (expvals); the loop sets
// ev.best_total to kInfiniteCost when it starts, and calls prepare_presample once before the
// first evaluation of strategies 8 and 9.
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Evaluates the proposal ctx.master_primal[1..n1] (first-stage cost ctx.first_stage_cost) with
// the subproblem loaded, and selects the master again. Leaves ev.cut, ev.current_total = objs +
// c'x-hat, and, when that total is at most ev.best_total (ties replace), the new best total and
// variance together with the proposal and its approximation. An unknown strategy writes
// "error: strategy not defined" and "program terminated" on the screen log and returns
// kErrorExit, as does a failed solve.
int evaluate(const Context& ctx, Evaluation& ev, int istrat);

// Re-evaluates the proposal in place (the loop first restores the best one with snapshot 4) with
// a fresh sample, every solve warm, the solution collected into ev.acc_primal/acc_duals; sets the
// best total to objs + c'x-hat and the best variance to the new variance.
int reevaluate(const Context& ctx, Evaluation& ev, int istrat);

// Copies between the approximation and proposal snapshots:
//   7 (any code outside 1..5)  last approximation := working (deltabar, Gamma, q, z0)
//   1  best approximation := last       2  working approximation := best (z0 back into costs[1])
//   3  best proposal := master values, duals and first-stage cost    4  the reverse of 3
void snapshot(const Context& ctx, Evaluation& ev, int code);

// Draws the sample that Monte Carlo presampling keeps for the whole loop.
void prepare_presample(const Context& ctx, Evaluation& ev);

}  // namespace tarvo::sampling
