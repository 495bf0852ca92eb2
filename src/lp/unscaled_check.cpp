// The solution of the scaled working problem checked in the problem's own units. A working value
// x' stands for scale * x' and a working reduced cost d' for d' / scale, so a tolerance met in
// working units can hide a violation many times larger in true units (a cut row of a Benders
// master whose columns carry large scales, costs scaled far below the optimality tolerance).
// Offending variables get working tolerances that stand for the true-unit ones, and the caller
// continues the solve from the current basis.
#include <algorithm>
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

// Each logical's working value as the columns imply it (-a_i x), which the row limits must hold
// whatever the factors made of the basic logicals.
void imply_rows(SimplexState& s) {
  std::fill(s.implied_row.begin(), s.implied_row.begin() + s.m, 0.0);
  for (int j = 0; j < s.n; ++j) {
    const double xj = s.x[j];
    if (xj == 0.0) continue;
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) s.implied_row[s.row_index[k]] -= s.value[k] * xj;
  }
}

// The largest |a_ij x_j| of row i and its implied value: the numbers that make up its activity.
double activity_size(const SimplexState& s, int i) {
  double size = std::fabs(s.implied_row[i]);
  for (int k = s.row_start[i]; k < s.row_start[i + 1]; ++k)
    size = std::max(size, std::fabs(s.row_value[k] * s.x[s.col_index[k]]));
  return size;
}

double beyond_bounds(const SimplexState& s, int j, double x) {
  return std::max(0.0, std::max(s.lower[j] - x, x - s.upper[j]));
}

// Cuts the working feasibility tolerance of j, whose true violation exceeds the absolute
// tolerance, when it also exceeds the share of the size of the numbers entering the value;
// returns whether it did.
bool tighten_primal(SimplexState& s, int j, double x, double feasibility_tol) {
  const double violation = beyond_bounds(s, j, x) * s.scale[j];
  const double size = j < s.n ? std::fabs(x) : activity_size(s, j - s.n);
  const double tolerance = std::max(feasibility_tol, kUnscaledRelative * size * s.scale[j]);
  if (violation <= tolerance) return false;
  s.primal_tol[j] = std::min(s.primal_tol[j], std::max(kZeroTolerance, kTightenShare * tolerance / s.scale[j]));
  s.tolerances_tightened = true;
  return true;
}

// The largest of |c_j| and |a_ij y_i|: the numbers that make up the reduced cost of j.
double reduced_cost_size(const SimplexState& s, int j) {
  if (j >= s.n) return std::max(std::fabs(s.cost[j]), std::fabs(s.y[j - s.n]));
  double size = std::fabs(s.cost[j]);
  for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k)
    size = std::max(size, std::fabs(s.value[k] * s.y[s.row_index[k]]));
  return size;
}

// The same for the reduced cost of nonbasic j (fresh from the duals of the final basis).
bool tighten_dual(SimplexState& s, int j, double optimality_tol) {
  const double violation = dual_infeasibility(s, j) / s.scale[j];  // 0 for a fixed variable
  if (violation <= optimality_tol) return false;
  const double tolerance = std::max(optimality_tol, kUnscaledRelative * reduced_cost_size(s, j) / s.scale[j]);
  if (violation <= tolerance) return false;
  s.dual_tol[j] = std::min(s.dual_tol[j], std::max(kZeroTolerance, kTightenShare * tolerance * s.scale[j]));
  s.tolerances_tightened = true;
  return true;
}

}  // namespace

void reset_tolerances(SimplexState& s, const SimplexSettings& settings) {
  const int nt = s.n + s.m;
  if (!s.tolerances_tightened && s.tolerances_filled >= nt && s.filled_feasibility_tol == settings.feasibility_tol &&
      s.filled_optimality_tol == settings.optimality_tol)
    return;
  std::fill(s.primal_tol.begin(), s.primal_tol.begin() + nt, settings.feasibility_tol);
  std::fill(s.dual_tol.begin(), s.dual_tol.begin() + nt, settings.optimality_tol);
  s.tolerances_filled = nt;
  s.filled_feasibility_tol = settings.feasibility_tol;
  s.filled_optimality_tol = settings.optimality_tol;
  s.tolerances_tightened = false;
}

// Primal: basic columns against their bounds (nonbasic ones sit on theirs), every row's activity
// from the column values against its limits. Dual: every nonbasic reduced cost (as the duals of
// the final basis give it) against its variable's state. Each value is first screened against
// the absolute tolerance alone, which is all a solution within tolerance costs. Returns the
// number of variables whose tolerance was cut.
int tighten_unscaled_violations(SimplexState& s, const SimplexSettings& settings) {
  const double ftol = settings.feasibility_tol;
  const double otol = settings.optimality_tol;
  int offenders = 0;
  imply_rows(s);
  for (int p = 0; p < s.m; ++p) {
    const int j = s.head[p];
    if (j < s.n && beyond_bounds(s, j, s.x[j]) * s.scale[j] > ftol) offenders += tighten_primal(s, j, s.x[j], ftol);
  }
  for (int i = 0; i < s.m; ++i) {
    const int j = s.n + i;
    const double x = s.implied_row[i];
    if (beyond_bounds(s, j, x) * s.scale[j] > ftol) offenders += tighten_primal(s, j, x, ftol);
  }
  for (int j = 0; j < s.n + s.m; ++j) {
    if (wrong_sign_part(s.state[j], s.d[j]) > otol * s.scale[j]) offenders += tighten_dual(s, j, otol);
  }
  return offenders;
}

}  // namespace tarvo::lp
