// The primal simplex method: phase 1 minimizes the sum of infeasibilities of the basic
// variables (their costs are the gradient of that sum), phase 2 the objective. Devex partial
// pricing, Harris ratio test with bound flips under expanding tolerances, bound perturbation
// against stalling.
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

// Fresh factors, primal values, phase and reduced costs. A factorization restarts the expanding
// tolerances, and nonbasic variables that slipped off their bounds go back to them.
int refresh(SimplexState& s, const SimplexSettings& settings, Units& units, bool refactor) {
  if (refactor) {
    const int code = factorize_basis(s, settings, units);
    if (code != kExitOptimal) return code;
    reset_expand(s);
    return_slipped_nonbasics(s);
  }
  compute_primal_values(s);
  measure_infeasibility(s);
  const int phase = s.ninf > 0 ? 1 : 2;
  if (phase != s.phase) reset_primal_weights(s);
  s.phase = phase;
  set_basic_costs(s);
  compute_duals(s);
  return kExitOptimal;
}

// Widens the bounds of the basic variables a little, at random, so that ties in the ratio test
// are broken and a degenerate vertex can be left.
void perturb_bounds(SimplexState& s) {
  for (int p = 0; p < s.m; ++p) {
    const int j = s.head[p];
    if (std::isfinite(s.lower[j]))
      s.lower[j] -= (kPerturbRelative * std::fabs(s.lower[j]) + kPerturbAbsolute) * (1.0 + next_random(s));
    if (std::isfinite(s.upper[j]))
      s.upper[j] += (kPerturbRelative * std::fabs(s.upper[j]) + kPerturbAbsolute) * (1.0 + next_random(s));
  }
  s.bounds_perturbed = true;
}

void move_basics(SimplexState& s, double delta) {
  const SparseVector& alpha = s.column;
  for (int t = 0; t < alpha.count; ++t) {
    const int p = alpha.index[t];
    s.x[s.head[p]] -= delta * alpha.value[p];
  }
}

// The value the method lowers (the sum of infeasibilities in phase 1, the objective in phase 2),
// the best value each phase has reached, and the iterations since either improved. Steps that
// move count as well as degenerate ones: a cycle of moves (a phase-1 step overshooting by
// rounding, a singular basis repaired and pivoted back into) stalls the method as surely as a
// degenerate vertex.
struct Progress {
  double best[3] = {0.0, HUGE_VAL, HUGE_VAL};  // by phase
  int stalled = 0;
};

void note_progress(Progress& p, int phase, double value) {
  double& best = p.best[phase];
  if (best == HUGE_VAL || value < best - kProgressMargin * (1.0 + std::fabs(best))) {
    best = value;
    p.stalled = 0;
    return;
  }
  ++p.stalled;
}

// The objective of the current point from scratch (the steps then update it), so that a point met
// again after a refactorization is recognized.
double current_objective(const SimplexState& s) {
  double sum = 0.0;
  for (int j = 0; j < s.n + s.m; ++j) sum += s.cost[j] * s.x[j];
  return sum;
}

}  // namespace

int run_primal(SimplexState& s, const SimplexSettings& settings, Units& units) {
  clear_rejections(s);  // what the dual method set aside was set aside from leaving
  int code = refresh(s, settings, units, !s.factors_valid);
  if (code != kExitOptimal) return code;
  reset_primal_weights(s);
  if (s.stop_when_feasible && s.phase == 2) return kExitOptimal;
  bool fresh = true;  // x and d were just computed from the factors, not updated
  Progress progress;
  double objective = current_objective(s);
  int refactors_in_a_row = 0;
  int cleared_at = -1;  // iteration count at which candidates set aside were last cleared
  const int stall_limit = kStallLimitBase + 2 * s.m;

  while (true) {
    if (s.refactor_due || s.updates >= settings.factor_frequency) {
      if (++refactors_in_a_row > kRefactorsInARow) return kExitRefactorTwice;
      code = refresh(s, settings, units, true);
      if (code != kExitOptimal) return code;
      objective = current_objective(s);
      fresh = true;
    } else if (expand_reset_due(s, settings)) {
      reset_expand(s);
      if (return_slipped_nonbasics(s)) {
        refresh(s, settings, units, false);
        objective = current_objective(s);
        fresh = true;
      }
    }
    if (check_due(s, settings)) continue;
    const int q = choose_entering(s, settings);
    if (q < 0) {
      // Candidates set aside may hide what the pricing would find: they get one more look.
      if (s.candidates_rejected && cleared_at != s.counters.iterations) {
        clear_rejections(s);
        cleared_at = s.counters.iterations;
        continue;
      }
      // An infeasible verdict must hold with every nonbasic variable on its bound; an optimum
      // with them there when it can.
      if (s.phase == 1 && return_slipped_nonbasics(s)) fresh = false;
      if (s.phase == 2 && settle_slipped_nonbasics(s)) fresh = false;
      if (!fresh) {
        code = refresh(s, settings, units, false);
        objective = current_objective(s);
        fresh = true;
        continue;
      }
      if (s.phase == 1) return kExitInfeasible;
      return kExitOptimal;
    }
    if (s.counters.iterations >= settings.iteration_limit) return kExitIterations;

    const int direction = s.entering_direction;
    load_column(s, q, s.column);
    lu_ftran(s.lu, s.column, true);
    const PrimalStep step = s.phase == 1 ? phase_one_ratio_test(s, q, direction, settings)
                                         : primal_ratio_test(s, q, direction, settings);
    if (step.rejected) {
      set_aside(s, q, s.counters.iterations + 1);
      continue;
    }
    // In phase 2 a step beyond UNBOUNDED STEP SIZE (in the entering variable's own units) counts
    // as no limit at all.
    const bool unbounded = step.unbounded || (s.phase == 2 && step.step * s.scale[q] > settings.unbounded_step);
    if (unbounded) {
      if (!fresh || s.phase == 1) {
        if (s.phase == 1 && fresh) return kExitNumerical;
        s.refactor_due = true;
        continue;
      }
      return kExitUnbounded;
    }
    const double delta = direction * step.step;
    const double gain = s.phase == 2 ? s.d[q] * delta : 0.0;
    if (s.phase == 2 && std::fabs(objective + gain) > settings.unbounded_objective) return kExitUnbounded;
    bool updated = true;  // the factors took the basis change (a bound flip needs none)
    s.step_last = step.step;
    s.pivot_last = step.flip ? 0.0 : s.column.value[step.position];
    if (step.flip) {
      s.x[q] += delta;
      move_basics(s, delta);
      s.state[q] = direction > 0 ? kNonbasicUpper : kNonbasicLower;
      s.x[q] = direction > 0 ? s.upper[q] : s.lower[q];
      ++s.counters.bound_flips;
    } else {
      const int r = step.position;
      const double pivot = s.column.value[r];
      load_unit_row(s, r);
      lu_btran(s.lu, s.rho);
      compute_pivot_row(s);
      if (!pivot_agrees(s.pivot_row[q], pivot)) {
        if (!refactor_for_accuracy(s, settings, units)) set_aside(s, q, s.counters.iterations + kRejectIterations);
        continue;
      }
      s.x[q] += delta;
      move_basics(s, delta);
      update_primal_weights(s, q, r, pivot);
      update_reduced_costs(s, q, r, s.d[q] / pivot);
      swap_basic(s, r, q, step.leaving_state, step.leaving_value);
      updated = update_factors(s, r, settings, units);
    }
    // Factors that cannot take a single update are requested again in a row.
    if (updated) refactors_in_a_row = 0;
    objective += gain;
    fresh = false;
    advance_expand(s, settings);
    ++s.counters.iterations;
    ++s.counters.primal_iterations;

    if (s.phase == 1) {
      measure_infeasibility(s);
      if (s.ninf == 0) {
        if (s.stop_when_feasible) return kExitOptimal;
        s.phase = 2;
        reset_primal_weights(s);
        objective = current_objective(s);
      }
      if (set_basic_costs(s)) compute_duals(s);
    }
    log_iteration(s, settings, units);

    note_progress(progress, s.phase, s.phase == 1 ? s.sinf : objective);
    if (progress.stalled >= kStallBeforePerturb && !s.bounds_perturbed) perturb_bounds(s);
    if (progress.stalled >= stall_limit) {
      s.stall_count = progress.stalled;
      return kExitStalled;
    }
  }
}

}  // namespace tarvo::lp
