// The quadratic objective of the regularized master, min c.x + f(x) with f from regobj, by the
// reduced-gradient method: the variables are basic, superbasic (free to move between their
// bounds) or nonbasic at a bound. Each iteration takes the Newton step in the space of the
// superbasics, with the reduced Hessian Z^T H Z formed from the known diagonal Hessian of f
// (1/rho on the columns of the term, 0 on the rest) and factorized by a small dense Cholesky; a
// bound met on the way ends the step and takes its variable out of the superbasic set. When the
// reduced gradient is small, a nonbasic variable whose reduced gradient invites it to move joins
// the superbasic set; when none does, the point is optimal.
#include <algorithm>
#include <cmath>
#include <limits>

#include "lp/optimizer.h"
#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

}  // namespace

// Gradient of c.x + f(x) in working units into s.cost (so that the duals and reduced costs of
// the basis are those of the gradient), and f into s.nonlinear_objective.
void evaluate_quadratic_gradient(SimplexState& s, const Regularization& reg) {
  const int nn = std::min(s.nnobj, s.n);
  for (int j = 0; j < nn; ++j) s.regobj_x[j + 1] = s.x[j] * s.scale[j];
  double f = 0.0;
  regobj(reg, 2, nn, s.regobj_x.data(), f, s.regobj_g.data(), 0, 1);
  ++s.counters.regobj_calls;
  s.nonlinear_objective = f;
  std::copy(s.base_cost.begin(), s.base_cost.begin() + s.n + s.m, s.cost.begin());
  for (int j = 0; j < nn; ++j) s.cost[j] += s.sense * s.regobj_g[j + 1] * s.scale[j];
  s.costs_shifted = true;
  s.phase = 2;
  set_basic_costs(s);
  compute_duals(s);
}

namespace {

// Working-space diagonal of the Hessian of f: d^2 f / dx'_j^2 = scale_j^2 / rho.
void set_hessian(SimplexState& s, const Regularization& reg) {
  std::fill(s.hessian_diag.begin(), s.hessian_diag.begin() + s.n + s.m, 0.0);
  const int nn = std::min(s.nnobj, s.n);
  for (int j = 0; j + reg.free_columns < nn; ++j) s.hessian_diag[j] = s.sense * s.scale[j] * s.scale[j] / reg.rho;
}

void collect_superbasics(SimplexState& s) {
  s.superbasic_count = 0;
  for (int j = 0; j < s.n + s.m; ++j)
    if (s.state[j] == kSuperbasicVar) s.superbasic[s.superbasic_count++] = j;
}

// The nonbasic variable whose reduced gradient most invites it to move, or -1.
int choose_new_superbasic(const SimplexState& s) {
  int best = -1;
  double best_price = 0.0;
  for (int j = 0; j < s.n + s.m; ++j) {
    const signed char st = s.state[j];
    if (st == kBasicVar || st == kSuperbasicVar || s.lower[j] == s.upper[j]) continue;
    const double dj = s.d[j];
    double price = 0.0;
    if (st == kNonbasicLower) price = -dj;
    else if (st == kNonbasicUpper) price = dj;
    else price = std::fabs(dj);
    if (price > s.dual_tol[j] && price > best_price) {
      best_price = price;
      best = j;
    }
  }
  return best;
}

// W = B^-1 A_S column by column (dense m x ns) and the reduced Hessian
// H_SS + W^T H_BB W, factorized in place as R^T R with small pivots raised, so that directions
// of zero curvature get long steps that the ratio test then limits.
void factorize_reduced_hessian(SimplexState& s) {
  const int ns = s.superbasic_count;
  const int m = s.m;
  if (s.basic_moves.size() < static_cast<std::size_t>(m) * ns) s.basic_moves.resize(static_cast<std::size_t>(m) * ns);
  if (s.reduced_hessian.size() < static_cast<std::size_t>(ns) * ns) s.reduced_hessian.resize(static_cast<std::size_t>(ns) * ns);
  double* w = s.basic_moves.data();
  for (int k = 0; k < ns; ++k) {
    load_column(s, s.superbasic[k], s.work);
    lu_ftran(s.lu, s.work, false);
    for (int p = 0; p < m; ++p) w[static_cast<std::size_t>(p) * ns + k] = s.work.value[p];
    sparse_clear(s.work);
  }
  double* h = s.reduced_hessian.data();
  std::fill(h, h + static_cast<std::size_t>(ns) * ns, 0.0);
  for (int k = 0; k < ns; ++k) h[k * ns + k] = s.hessian_diag[s.superbasic[k]];
  for (int p = 0; p < m; ++p) {
    const double hb = s.hessian_diag[s.head[p]];
    if (hb == 0.0) continue;
    const double* row = w + static_cast<std::size_t>(p) * ns;
    for (int k = 0; k < ns; ++k) {
      if (row[k] == 0.0) continue;
      for (int l = k; l < ns; ++l) h[k * ns + l] += hb * row[k] * row[l];
    }
  }
  double biggest = 0.0;
  for (int k = 0; k < ns; ++k) biggest = std::max(biggest, h[k * ns + k]);
  const double floor = std::max(biggest, 1.0) * 1.0e-10;
  for (int k = 0; k < ns; ++k) {
    double pivot = h[k * ns + k];
    for (int t = 0; t < k; ++t) pivot -= h[t * ns + k] * h[t * ns + k];
    pivot = std::sqrt(std::max(pivot, floor));
    h[k * ns + k] = pivot;
    for (int l = k + 1; l < ns; ++l) {
      double v = h[k * ns + l];
      for (int t = 0; t < k; ++t) v -= h[t * ns + k] * h[t * ns + l];
      h[k * ns + l] = v / pivot;
    }
  }
}

// p_S = -(R^T R)^-1 d_S, then p_B = -W p_S, into s.search (0 elsewhere). Returns the directional
// derivative d_S . p_S.
double newton_direction(SimplexState& s) {
  const int ns = s.superbasic_count;
  const double* h = s.reduced_hessian.data();
  double* p = s.search.data();
  std::fill(p, p + s.n + s.m, 0.0);
  std::vector<double>& v = s.candidate_ratio;  // free during this method
  for (int k = 0; k < ns; ++k) {
    double t = -s.d[s.superbasic[k]];
    for (int l = 0; l < k; ++l) t -= h[l * ns + k] * v[l];
    v[k] = t / h[k * ns + k];
  }
  for (int k = ns - 1; k >= 0; --k) {
    double t = v[k];
    for (int l = k + 1; l < ns; ++l) t -= h[k * ns + l] * v[l];
    v[k] = t / h[k * ns + k];
  }
  double slope = 0.0;
  for (int k = 0; k < ns; ++k) {
    p[s.superbasic[k]] = v[k];
    slope += s.d[s.superbasic[k]] * v[k];
  }
  const double* w = s.basic_moves.data();
  for (int q = 0; q < s.m; ++q) {
    double t = 0.0;
    for (int k = 0; k < ns; ++k) t += w[static_cast<std::size_t>(q) * ns + k] * v[k];
    p[s.head[q]] = -t;
  }
  return slope;
}

// Largest step along s.search that keeps every basic and superbasic variable within its bounds,
// with the variable that stops it (or -1). A basic variable that moves by less than the pivot
// floor relative to the superbasics does not block: its row of W has no entry to exchange it on.
double longest_step(const SimplexState& s, int& blocking) {
  double step = kInf;
  blocking = -1;
  double largest = 0.0;
  for (int k = 0; k < s.superbasic_count; ++k) largest = std::max(largest, std::fabs(s.search[s.superbasic[k]]));
  const double negligible = kRatioPivotFloor * largest;
  for (int j = 0; j < s.n + s.m; ++j) {
    const double pj = s.search[j];
    if (pj == 0.0 || (s.state[j] == kBasicVar && std::fabs(pj) < negligible)) continue;
    const double room = pj > 0.0 ? s.upper[j] - s.x[j] : s.x[j] - s.lower[j];
    const double t = std::max(0.0, room) / std::fabs(pj);
    if (t < step) {
      step = t;
      blocking = j;
    }
  }
  return step;
}

// A basic variable at a bound leaves for the superbasic with the largest entry in its row of W.
bool exchange_with_superbasic(SimplexState& s, int r, int leaving_state, double value, const SimplexSettings& settings,
                              Units& units) {
  const int ns = s.superbasic_count;
  const double* w = s.basic_moves.data() + static_cast<std::size_t>(r) * ns;
  int best = -1;
  for (int k = 0; k < ns; ++k)
    if (best < 0 || std::fabs(w[k]) > std::fabs(w[best])) best = k;
  if (best < 0 || std::fabs(w[best]) < kRatioPivotFloor) return false;
  const int q = s.superbasic[best];
  load_column(s, q, s.column);
  lu_ftran(s.lu, s.column, true);
  swap_basic(s, r, q, leaving_state, value);
  update_factors(s, r, settings, units);
  return true;
}

}  // namespace

int run_reduced_gradient(SimplexState& s, const SimplexSettings& settings, Units& units,
                         const Regularization& regularization) {
  // A feasible point first: the primal method's phase 1 (costs do not matter there).
  s.stop_when_feasible = true;
  int code = run_primal(s, settings, units);
  s.stop_when_feasible = false;
  if (code != kExitOptimal) return code;
  set_hessian(s, regularization);
  collect_superbasics(s);
  int refactors = 0;
  while (true) {
    if (s.refactor_due || s.updates >= settings.factor_frequency) {
      if (++refactors > kRefactorsInARow) return kExitRefactorTwice;
      code = factorize_basis(s, settings, units);
      if (code != kExitOptimal) return code;
      compute_primal_values(s);
      collect_superbasics(s);
    }
    evaluate_quadratic_gradient(s, regularization);
    double reduced = 0.0;
    bool stationary = true;  // every superbasic's reduced gradient within its tolerance
    for (int k = 0; k < s.superbasic_count; ++k) {
      const int j = s.superbasic[k];
      reduced = std::max(reduced, std::fabs(s.d[j]));
      stationary = stationary && std::fabs(s.d[j]) <= s.dual_tol[j];
    }
    if (stationary) {
      const int j = choose_new_superbasic(s);
      if (j < 0) return kExitOptimal;
      if (s.superbasic_count >= settings.superbasics_limit) return kExitSuperbasicsLimit;
      s.state[j] = kSuperbasicVar;
      s.superbasic[s.superbasic_count++] = j;
    }
    if (s.counters.iterations >= settings.iteration_limit) return kExitIterations;
    factorize_reduced_hessian(s);
    double slope = newton_direction(s);
    if (!(slope < 0.0)) return kExitCannotImprove;
    double curvature = 0.0;
    for (int j = 0; j < s.n; ++j) curvature += s.hessian_diag[j] * s.search[j] * s.search[j];
    int blocking = -1;
    const double longest = longest_step(s, blocking);
    const double newton = curvature > 0.0 ? -slope / curvature : kInf;
    const double step = std::min(newton, longest);
    if (!std::isfinite(step)) return kExitUnbounded;
    for (int j = 0; j < s.n + s.m; ++j) s.x[j] += step * s.search[j];
    s.step_last = step;
    s.dj_last = reduced;
    if (longest <= newton && blocking >= 0) {
      const bool to_upper = s.search[blocking] > 0.0;
      const double value = to_upper ? s.upper[blocking] : s.lower[blocking];
      const int leaving_state = to_upper ? kNonbasicUpper : kNonbasicLower;
      if (s.state[blocking] == kSuperbasicVar) {
        s.state[blocking] = static_cast<signed char>(leaving_state);
        s.x[blocking] = value;
      } else if (!exchange_with_superbasic(s, s.position[blocking], leaving_state, value, settings, units)) {
        return kExitNumerical;
      }
      collect_superbasics(s);
    }
    refactors = 0;
    ++s.counters.iterations;
    ++s.counters.primal_iterations;
    measure_infeasibility(s);
    log_iteration(s, settings, units);
  }
}

}  // namespace tarvo::lp
