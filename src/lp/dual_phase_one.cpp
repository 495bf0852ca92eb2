// Phase 1 of the dual simplex method: a dual feasible basis found by solving an auxiliary problem
// with the dual method itself. The auxiliary problem keeps the matrix and the costs, drops every
// right-hand side and gives each variable a small box by the kind of its bounds: boxed and fixed
// variables [0, 0] (a flip makes them dual feasible whatever their reduced cost), those with a lower
// bound only [0, 1], with an upper bound only [-1, 0], free ones [-1000, 1000]. Every variable is then
// boxed, so the starting basis is dual feasible for it after flips, and its optimal basis leaves the
// fewest reduced costs of the wrong sign for the true bounds (none when the least objective is 0).
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

void set_auxiliary_bounds(SimplexState& s) {
  for (int j = 0; j < s.n + s.m; ++j) {
    const bool has_lower = std::isfinite(s.base_lower[j]);
    const bool has_upper = std::isfinite(s.base_upper[j]);
    if (has_lower && has_upper) {
      s.lower[j] = s.upper[j] = 0.0;
    } else if (has_lower) {
      s.lower[j] = 0.0;
      s.upper[j] = 1.0;
    } else if (has_upper) {
      s.lower[j] = -1.0;
      s.upper[j] = 0.0;
    } else {
      s.lower[j] = -kFreeBox;
      s.upper[j] = kFreeBox;
    }
    if (s.state[j] == kBasicVar) continue;
    s.state[j] = s.d[j] < 0.0 ? kNonbasicUpper : kNonbasicLower;
    place_nonbasic(s, j);
  }
  s.bounds_perturbed = true;
}

}  // namespace

int run_dual_phase_one(SimplexState& s, const SimplexSettings& settings, Units& units) {
  set_auxiliary_bounds(s);
  compute_primal_values(s);
  const int code = run_dual(s, settings, units, true);
  restore_bounds(s);
  if (s.factors_valid) {
    compute_primal_values(s);
    set_basic_costs(s);
    compute_duals(s);
  }
  return code;
}

}  // namespace tarvo::lp
