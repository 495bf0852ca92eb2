#pragma once
// Cuts by groups of points, for a master with a THETA column per group (a multi-cut master): the
// strategies that evaluate the same points at every iteration (the universe, istrat 4 and 5, and
// the presample, 8 and 9) can split their cut into one cut per group of consecutive table rows.
// Each group's cut bounds the group's share of the expected cost, sum over its points of
// w_k z_k; the group cuts of one evaluation add up to its single cut.
#include <cstddef>

#include "common/run_params.h"
#include "input/model.h"
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Points that every evaluation of istrat visits (the universe's outcomes, or the presample's
// size), or 0 for a strategy that draws new outcomes each time.
double grouped_points(const RunParams& params, const input::OutcomeStore& store);

// Groups of the master's cuts for this run: ncuts groups (ncuts 0: one per point), at most one
// per point; 1, the single cut, when the strategy has no fixed points or ncuts is 1 or negative.
int cut_group_count(const RunParams& params, const input::OutcomeStore& store);

// Splits `points` table rows into `count` groups of consecutive rows (sizes differing by at most
// one) and sizes the group cuts. Done once, after allocate_evaluation.
void allocate_cut_groups(Evaluation& ev, int count, int points);

// True when the evaluation of `points` points is split into groups.
bool grouped(const Evaluation& ev, int points);

// Group sums of an estimator, in table order: clear, then add every point (k = 1, 2, ...) with
// its weight, cost, dual product and, for the variance, its squared deviation from the mean
// already divided as the estimator divides it; close forms each group's gls at the proposal.
void clear_groups(Evaluation& ev);
void add_to_group(Evaluation& ev, int k, double w, double z, const double* u);
void add_group_variance(Evaluation& ev, int k, double share);
void close_groups(const Context& ctx, Evaluation& ev);

// Where group g's gradient starts in groups.gus, so that gus[1..n1] index it 1-based like every
// first-stage array.
inline std::size_t group_offset(const Evaluation& ev, int g) {
  return static_cast<std::size_t>(g - 1) * ev.n1;
}

// Gradient of group g's cut, gus[1..n1].
inline const double* group_gus(const Evaluation& ev, int g) {
  return ev.groups.gus.data() + group_offset(ev, g);
}

}  // namespace tarvo::sampling
