#pragma once
// The additive approximation of the second-stage cost and the importance sample drawn from it.
//
// The cost of an outcome is approximated by the base-case cost z0 plus, for every block, the
// change Gamma_b(i) that the block's outcome i causes while every other block stays at outcome 1.
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// From the marginal costs costs[1..nmarg] (costs[1] = z0): Gamma (changes of at most 1e-5 count
// as 0), the block weights deltabar_b = sum_i p_b(i) Gamma_b(i), the block variances, E[Gamma],
// z0 and the importance probabilities q_b(i) = p_b(i) Gamma_b(i) / deltabar_b (q = p for a block
// of weight exactly 0).
void approx(const Context& ctx, Evaluation& ev);

// Divides the sample among the blocks by |deltabar| (allocate) and draws it: the points of block
// c take block c's outcome from q and every other block's from its own probabilities. Fills
// counts, share_end and rows 1..share_end[nblocks] of the sample table (that is N rows, or one
// per block when N is smaller than the number of blocks).
void sampis(const Context& ctx, Evaluation& ev);

// Gamma(omega) of row k of the sample table: the sum over blocks of the marginal value of the
// block's outcome, under the working approximation.
double approximation_of_row(const Context& ctx, const Evaluation& ev, int k);

}  // namespace tarvo::sampling
