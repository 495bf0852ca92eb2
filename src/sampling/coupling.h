#pragma once
// Products with the coupling matrix C (held negated from the core's T, so that a subproblem's
// right-hand side is h + C x-hat), over the working coupling values of the current outcome.
#include <vector>

#include "sampling/evaluation.h"

namespace tarvo::sampling {

// work.coupled[1..m2] := C x, x = x[1..n1]; a column whose x_j is exactly 0.0 (or -0.0) is
// skipped.
void couple_proposal(const Context& ctx, const Evaluation& ev, SolveWork& work,
                     const std::vector<double>& x);

// work.u[1..n1] := C' pi, pi = the row duals work.duals[1..m2].
void dual_product(const Context& ctx, const Evaluation& ev, SolveWork& work);

// sum_j a_j x_j over the first-stage columns 1..n1.
double first_stage_dot(const std::vector<double>& a, const std::vector<double>& x, int n1);

}  // namespace tarvo::sampling
