// Pricing: the entering variable of the primal simplex (partial pricing with Devex weights) and
// the leaving row of the dual simplex (dual steepest edge), with the updates of their weights.
#include <algorithm>
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

void reset_primal_weights(SimplexState& s) {
  std::fill(s.primal_weight.begin(), s.primal_weight.begin() + s.n + s.m, 1.0);
}

// The rate at which the objective falls when variable j moves up (direction +1) or down (-1),
// 0 when it does not. In phase 1 a nonbasic variable may also be pushed beyond its bound: its own
// infeasibility then counts at its phase-1 weight, and without such moves the least sum of
// infeasibilities would only be a local one.
static double primal_price(const SimplexState& s, int j, int& direction) {
  const signed char st = s.state[j];
  if (st == kBasicVar || s.rejected[j] > s.counters.iterations) return 0.0;
  const double tol = s.dual_tol[j];
  const double dj = s.d[j];
  const double x = s.x[j];
  double up = dj, down = -dj;  // directional derivatives
  if (s.phase == 1) {
    if (x >= s.upper[j]) up += s.scale[j];
    if (x <= s.lower[j]) down += s.scale[j];
  } else {
    if (x >= s.upper[j]) up = 0.0;
    if (x <= s.lower[j]) down = 0.0;
  }
  if (up < -tol && up <= down) {
    direction = 1;
    return -up;
  }
  if (down < -tol) {
    direction = -1;
    return -down;
  }
  return 0.0;
}

// Scans the variables in `partial_price` sections, starting after the section that gave the last
// choice, and takes the best Devex ratio d_j^2 / w_j of the first section that has a candidate.
int choose_entering(SimplexState& s, const SimplexSettings& settings) {
  const int total = s.n + s.m;
  const int sections = std::clamp(settings.partial_price, 1, std::max(1, total));
  const int length = (total + sections - 1) / sections;
  for (int t = 0; t < sections; ++t) {
    const int section = (s.partial_start + t) % sections;
    const int begin = section * length;
    const int end = std::min(total, begin + length);
    int best = -1;
    double best_score = 0.0;
    int best_direction = 0;
    for (int j = begin; j < end; ++j) {
      int direction = 0;
      const double price = primal_price(s, j, direction);
      if (price == 0.0) continue;
      const double score = price * price / s.primal_weight[j];
      if (score > best_score) {
        best_score = score;
        best = j;
        best_direction = direction;
      }
    }
    if (best >= 0) {
      s.partial_start = section;
      s.dj_last = s.d[best];
      s.entering_direction = best_direction;
      return best;
    }
  }
  return -1;
}

// Devex: w_j = max(w_j, (alpha_rj / alpha_rq)^2 w_q); the leaving variable gets
// max(w_q / alpha_rq^2, 1). Restarted when the reference framework has grown stale.
void update_primal_weights(SimplexState& s, int q, int r, double pivot) {
  const double wq = s.primal_weight[q];
  for (int k = 0; k < s.pivot_count; ++k) {
    const int j = s.pivot_index[k];
    const double ratio = s.pivot_row[j] / pivot;
    s.primal_weight[j] = std::max(s.primal_weight[j], ratio * ratio * wq);
  }
  const double leaving = std::max(wq / (pivot * pivot), 1.0);
  s.primal_weight[s.head[r]] = leaving;
  if (leaving > kWeightResetLimit) reset_primal_weights(s);
}

void reset_dual_weights(SimplexState& s) {
  std::fill(s.dual_weight.begin(), s.dual_weight.begin() + s.m, 1.0);
  s.dual_weights_valid = true;
}

void keep_dual_weights_by_variable(SimplexState& s) {
  std::fill(s.variable_weight.begin(), s.variable_weight.begin() + s.n + s.m, 0.0);
  if (!s.dual_weights_valid) return;
  for (int p = 0; p < s.m; ++p) s.variable_weight[s.head[p]] = s.dual_weight[p];
}

bool logical_of_changed_row(const SimplexState& s, int j) { return j >= s.n && s.row_changed[j - s.n]; }

void take_kept_dual_weights(SimplexState& s) {
  for (int p = 0; p < s.m; ++p) {
    const int j = s.head[p];
    const double w = s.variable_weight[j];
    s.dual_weight[p] = w > 0.0 && !logical_of_changed_row(s, j) ? w : 1.0;
  }
  s.dual_weights_valid = true;
  s.changed_row_weights_due = true;
}

// Exact weights ||e_p^T B^-1||^2 for the logicals of changed rows: a rewritten row is often
// violated at the old solution, so these rows are among the first to leave, and a weight of 1
// misjudges them.
void weigh_changed_rows(SimplexState& s) {
  s.changed_row_weights_due = false;
  if (!s.dual_weights_valid) return;
  for (int p = 0; p < s.m; ++p) {
    if (!logical_of_changed_row(s, s.head[p])) continue;
    load_unit_row(s, p);
    lu_btran(s.lu, s.rho);
    double w = 0.0;
    for (int t = 0; t < s.rho.count; ++t) w += s.rho.value[s.rho.index[t]] * s.rho.value[s.rho.index[t]];
    s.dual_weight[p] = std::max(w, kWeightFloor);
  }
  sparse_clear(s.rho);
}

// The basic variable with the largest infeasibility^2 / ||e_r^T B^-1||^2. The screen against the
// tolerance is one comparison per row: few rows are infeasible.
int choose_leaving(SimplexState& s) {
  int best = -1;
  double best_score = 0.0;
  for (int p = 0; p < s.m; ++p) {
    const int j = s.head[p];
    const double x = s.x[j];
    const double v = std::max(s.lower[j] - x, x - s.upper[j]);
    if (!(v > s.primal_tol[j]) || s.rejected[j] > s.counters.iterations) continue;
    const double score = v * v / s.dual_weight[p];
    if (score > best_score) {
      best_score = score;
      best = p;
    }
  }
  return best;
}

// Dual steepest edge update after a pivot in row r on column `s.column` (alpha_q), with rho the
// row of the old inverse and tau = B^-1 rho:
//   w_p = w_p - 2 kappa tau_p + kappa^2 w_r, kappa = alpha_pq / alpha_rq (kept above a floor).
void update_dual_weights(SimplexState& s, int r, double pivot) {
  double wr = 0.0;
  for (int t = 0; t < s.rho.count; ++t) {
    const double v = s.rho.value[s.rho.index[t]];
    wr += v * v;
  }
  const SparseVector& alpha = s.column;
  for (int t = 0; t < alpha.count; ++t) {
    const int p = alpha.index[t];
    if (p == r) continue;
    const double kappa = alpha.value[p] / pivot;
    if (kappa == 0.0) continue;
    const double w = s.dual_weight[p] + kappa * (kappa * wr - 2.0 * s.tau.value[p]);
    s.dual_weight[p] = std::max(w, kWeightFloor);
  }
  s.dual_weight[r] = std::max(wr / (pivot * pivot), kWeightFloor);
}

}  // namespace tarvo::lp
