// The dual simplex method (phase 2): from a dual feasible basis, the most infeasible basic
// variable by dual steepest edge leaves at its violated bound; the bound flipping ratio test
// picks the entering variable. Reduced costs that would start dual infeasible are removed by
// flipping boxed variables or shifting costs; the caller removes the shifts afterwards.
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

// Flips boxed variables with a reduced cost of the wrong sign and shifts the cost of the others
// so that every reduced cost has the sign its bound asks for. Returns true when a flip moved
// nonbasic values (the basic values must then be recomputed).
bool make_dual_feasible(SimplexState& s) {
  bool flipped = false;
  for (int j = 0; j < s.n + s.m; ++j) {
    if (!(wrong_sign_part(s.state[j], s.d[j]) > s.dual_tol[j]) || s.lower[j] == s.upper[j]) continue;
    const signed char st = s.state[j];
    const double dj = s.d[j];
    if (is_boxed(s, j)) {
      s.state[j] = st == kNonbasicLower ? kNonbasicUpper : kNonbasicLower;
      s.x[j] = s.state[j] == kNonbasicLower ? s.lower[j] : s.upper[j];
      flipped = true;
    } else {
      s.cost[j] -= dj;
      s.d[j] = 0.0;
      s.costs_shifted = true;
    }
  }
  return flipped;
}

// Fresh duals and primal values, the reduced costs made dual feasible again. A factorization
// restarts the expanding tolerances, with the reduced costs that slipped shifted to zero.
int refresh(SimplexState& s, const SimplexSettings& settings, Units& units, bool refactor) {
  if (refactor) {
    const int code = factorize_basis(s, settings, units);
    if (code != kExitOptimal) return code;
  }
  s.phase = 2;
  set_basic_costs(s);
  compute_duals(s);
  make_dual_feasible(s);
  if (refactor) {
    reset_expand(s);
    shift_slipped_costs(s);
  }
  compute_primal_values(s);
  if (!s.dual_weights_valid) reset_dual_weights(s);
  return kExitOptimal;
}

}  // namespace

// Small random cost changes in the direction that keeps each reduced cost dual feasible.
void perturb_costs(SimplexState& s) {
  for (int j = 0; j < s.n; ++j) {
    const signed char st = s.state[j];
    if (st != kNonbasicLower && st != kNonbasicUpper) continue;
    const double shift =
        (kPerturbRelative * std::fabs(s.base_cost[j]) + kPerturbAbsolute) * (1.0 + next_random(s));
    const double signed_shift = st == kNonbasicLower ? shift : -shift;
    s.cost[j] += signed_shift;
    s.d[j] += signed_shift;
  }
  s.costs_shifted = true;
}

namespace {

// w[i] += v, listing i on its first touch: the pattern then costs what the flips touch, not O(m).
void add_to_row(SimplexState& s, SparseVector& w, int i, double v) {
  if (!s.row_mark[i]) {
    s.row_mark[i] = 1;
    w.index[w.count++] = i;
  }
  w.value[i] += v;
}

// Moves the flipped variables to their other bound and the basic variables with them.
void apply_flips(SimplexState& s) {
  SparseVector& w = s.work;
  sparse_clear(w);
  for (int k = 0; k < s.flipped_count; ++k) {
    const int j = s.flipped[k];
    const bool to_upper = s.state[j] == kNonbasicLower || (s.state[j] != kNonbasicUpper && s.pivot_row[j] > 0.0);
    const double target = to_upper ? s.upper[j] : s.lower[j];
    const double change = target - s.x[j];
    s.x[j] = target;
    s.state[j] = to_upper ? kNonbasicUpper : kNonbasicLower;
    if (j >= s.n) {
      add_to_row(s, w, j - s.n, change);
    } else {
      for (int t = s.col_start[j]; t < s.col_start[j + 1]; ++t) add_to_row(s, w, s.row_index[t], s.value[t] * change);
    }
  }
  s.counters.bound_flips += s.flipped_count;
  for (int t = 0; t < w.count; ++t) s.row_mark[w.index[t]] = 0;
  lu_ftran(s.lu, w, false);
  for (int t = 0; t < w.count; ++t) {
    const int p = w.index[t];
    s.x[s.head[p]] -= w.value[p];
  }
  sparse_clear(w);
}

}  // namespace

int run_dual(SimplexState& s, const SimplexSettings& settings, Units& units, bool dual_feasible) {
  clear_rejections(s);  // what the primal method set aside was set aside from entering
  if (!dual_feasible && make_dual_feasible(s)) compute_primal_values(s);
  if (!s.dual_weights_valid) reset_dual_weights(s);
  int code = kExitOptimal;
  bool fresh = true;
  int updated = 0;  // iterations since the values were last computed from the factors
  int degenerate = 0;
  int refactors_in_a_row = 0;
  int cleared_at = -1;  // iteration count at which rows set aside were last cleared
  const int stall_limit = kStallLimitBase + 2 * s.m;

  while (true) {
    if (s.refactor_due || s.updates >= settings.factor_frequency) {
      if (++refactors_in_a_row > kRefactorsInARow) return kExitRefactorTwice;
      code = refresh(s, settings, units, true);
      if (code != kExitOptimal) return code;
      fresh = true;
      updated = 0;
    } else if (expand_reset_due(s, settings)) {
      reset_expand(s);
      shift_slipped_costs(s);
    }
    if (check_due(s, settings)) continue;
    const int r = choose_leaving(s);
    if (r < 0) {
      // Values updated over a few iterations are as good as fresh ones; after more, the optimum
      // is confirmed from the factors.
      if (updated >= kVerifyAfter) {
        refresh(s, settings, units, false);
        fresh = true;
        updated = 0;
        continue;
      }
      if (!s.candidates_rejected) return kExitOptimal;
      // Rows set aside because their pivots stayed inaccurate get one more look; when they are
      // all that is left infeasible, the constraints cannot be met accurately.
      if (cleared_at == s.counters.iterations) {
        measure_infeasibility(s);
        return s.ninf > 0 ? kExitNumerical : kExitOptimal;
      }
      clear_rejections(s);
      cleared_at = s.counters.iterations;
      continue;
    }
    if (s.counters.iterations >= settings.iteration_limit) return kExitIterations;

    const int leaving = s.head[r];
    const bool below = s.x[leaving] < s.lower[leaving] - s.primal_tol[leaving];
    const double bound = below ? s.lower[leaving] : s.upper[leaving];
    load_unit_row(s, r);
    lu_btran(s.lu, s.rho);
    compute_pivot_row(s);
    const DualStep step = dual_ratio_test(s, s.x[leaving] - bound, s.primal_tol[leaving], settings);
    if (step.entering < 0) {
      if (!fresh) {
        s.refactor_due = true;
        continue;
      }
      return kExitInfeasible;
    }
    const int q = step.entering;
    load_column(s, q, s.column);
    lu_ftran(s.lu, s.column, true);
    const double pivot = s.column.value[r];
    if (!pivot_agrees(s.pivot_row[q], pivot)) {
      if (!refactor_for_accuracy(s, settings, units)) set_aside(s, leaving, s.counters.iterations + kRejectIterations);
      continue;
    }
    const double dual_step = s.d[q] / pivot;
    if (s.flipped_count > 0) apply_flips(s);

    sparse_clear(s.tau);
    for (int t = 0; t < s.rho.count; ++t) {
      const int i = s.rho.index[t];
      s.tau.value[i] = s.rho.value[i];
      s.tau.index[s.tau.count++] = i;
    }
    lu_ftran(s.lu, s.tau, false);

    const double primal_step = (s.x[leaving] - bound) / pivot;
    s.step_last = primal_step;
    s.pivot_last = pivot;
    s.x[q] += primal_step;
    for (int t = 0; t < s.column.count; ++t) {
      const int p = s.column.index[t];
      s.x[s.head[p]] -= primal_step * s.column.value[p];
    }
    update_dual_weights(s, r, pivot);
    update_reduced_costs(s, q, r, dual_step);
    swap_basic(s, r, q, bound == s.lower[leaving] ? kNonbasicLower : kNonbasicUpper, bound);
    // Factors that cannot take a single update are requested again in a row.
    if (update_factors(s, r, settings, units)) refactors_in_a_row = 0;
    fresh = false;
    ++updated;
    advance_expand(s, settings);
    ++s.counters.iterations;
    ++s.counters.dual_iterations;
    s.dj_last = s.d[leaving];
    log_iteration(s, settings, units);

    degenerate = step.degenerate ? degenerate + 1 : 0;
    if (degenerate == kStallBeforePerturb) perturb_costs(s);
    if (degenerate >= stall_limit) {
      s.stall_count = degenerate;
      return kExitStalled;
    }
  }
}

}  // namespace tarvo::lp
