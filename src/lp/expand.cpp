// Anti-degeneracy by expanding tolerances. The ratio tests let basic variables pass their bounds
// (primal) and reduced costs pass zero (dual) by a share of each variable's own tolerance that
// grows a little every iteration. The primal test takes at least the step that this growth
// allows: no primal step is zero, so the objective moves every iteration and a degenerate vertex
// cannot be cycled at (the dual method perturbs its costs after a run of zero steps instead).
// Every EXPAND FREQUENCY iterations, and at each refactorization inside the primal and dual
// iterations (it carries over between solves otherwise), the share starts
// again from its lower end and what slipped is cleaned up: nonbasic variables return to their
// bounds exactly (the caller recomputes the basic ones) and reduced costs of the wrong sign are
// shifted to zero (the shifts go when the solve ends). At an optimum the slipped nonbasic
// variables return to their bounds only when the basic ones stay within their tolerances: in a
// problem feasible only within the tolerances, returning them would push a basic variable out and
// phase 1 would pull it back by the same pivots, round and round. They then stay where they
// slipped to, within their own tolerances, as part of the solution.
#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

void reset_expand(SimplexState& s) {
  s.expand_share = kExpandStart;
  s.expand_count = 0;
}

double expand_increment(const SimplexSettings& settings) {
  return (1.0 - kExpandStart) / settings.expand_frequency;
}

void advance_expand(SimplexState& s, const SimplexSettings& settings) {
  s.expand_share += expand_increment(settings);
  ++s.expand_count;
}

bool expand_reset_due(const SimplexState& s, const SimplexSettings& settings) {
  return s.expand_count >= settings.expand_frequency;
}

// Returns true when a nonbasic variable had slipped off its bound.
bool return_slipped_nonbasics(SimplexState& s) {
  bool moved = false;
  for (int j = 0; j < s.n + s.m; ++j) {
    const signed char st = s.state[j];
    if (st == kBasicVar || st == kSuperbasicVar) continue;
    const double before = s.x[j];
    place_nonbasic(s, j);
    moved |= s.x[j] != before;
  }
  return moved;
}

bool settle_slipped_nonbasics(SimplexState& s) {
  // The slipped variables and their values, in the ratio tests' scratch lists.
  int count = 0;
  for (int j = 0; j < s.n + s.m; ++j) {
    const signed char st = s.state[j];
    if (st == kBasicVar || st == kSuperbasicVar) continue;
    const double before = s.x[j];
    place_nonbasic(s, j);
    if (s.x[j] == before) continue;
    s.flipped[count] = j;
    s.candidate_ratio[count++] = before;
  }
  if (count == 0) return false;
  compute_primal_values(s);
  measure_infeasibility(s);
  if (s.ninf == 0) return true;
  for (int k = 0; k < count; ++k) s.x[s.flipped[k]] = s.candidate_ratio[k];
  compute_primal_values(s);
  measure_infeasibility(s);
  return false;
}

void shift_slipped_costs(SimplexState& s) {
  for (int j = 0; j < s.n + s.m; ++j) {
    if (!(wrong_sign_part(s.state[j], s.d[j]) > 0.0) || s.lower[j] == s.upper[j]) continue;
    s.cost[j] -= s.d[j];
    s.d[j] = 0.0;
    s.costs_shifted = true;
  }
}

}  // namespace tarvo::lp
