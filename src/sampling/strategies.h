#pragma once
// The evaluations of one proposal x-hat that the strategies are built from. Each leaves the cut
// record (ev.cut): the estimate objs of the expected second-stage cost, its variance, and the cut
// THETA + sum gus_j x_j >= gls. An infeasible outcome ends an evaluation at once with a
// feasibility cut (THETA's coefficient 0, objs = kInfiniteCost); the remaining outcomes are not
// solved and no variance is computed. Each returns kOk, or kErrorExit after a failed solve.
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Every random parameter at its expected value: one solve, weight 1.
int evalev(const Context& ctx, Evaluation& ev, int& startflag);

// Every row of the marginal table (rows 1..nmarg, mode 1): costs[k] the cost of row k, u0 the
// dual product of the base case.
int evalmarg(const Context& ctx, Evaluation& ev, int& startflag);

// Crude Monte Carlo on rows 1..N of the sample table: weights 1/N, variance of the mean
// sum (z_k - objs)^2 / N / (N - 1).
int evalcmc(const Context& ctx, Evaluation& ev, int& startflag);

// The universe on rows 1..N: weights the scenario probabilities; no variance.
int evaluniv(const Context& ctx, Evaluation& ev, int& startflag);

// Importance sampling on the sample drawn by sampis and the working approximation: every solve
// warm.
int evalis(const Context& ctx, Evaluation& ev);

// Control-variable sampling on rows 1..N with the approximation as control: every solve warm.
int evalcv(const Context& ctx, Evaluation& ev);

// The estimators proper, from the per-point costs and dual products that a solve pass left; each
// starts from a cleared cut record.
void estimate_mean(const Context& ctx, Evaluation& ev);
void estimate_universe(const Context& ctx, Evaluation& ev);
void estimate_importance(const Context& ctx, Evaluation& ev);
void estimate_control(const Context& ctx, Evaluation& ev);

}  // namespace tarvo::sampling
