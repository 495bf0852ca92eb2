// The solution of the scaled working problem judged in the problem's own units. A working value
// x' stands for scale * x' and a working reduced cost d' for d' / scale, so a tolerance met in
// working units can hide a violation many times larger in true units (a cut row of a Benders
// master whose columns carry large scales, costs scaled far below the optimality tolerance), and
// a violation in working units can be far below the tolerance in true units (a row scaled up
// from tiny coefficients). Offending variables get working tolerances that stand for the
// true-unit ones, and the caller continues the solve from the current basis.
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

// Working value of variable j as the check sees it: a row's activity comes from the columns.
double checked_value(const SimplexState& s, int j) { return j < s.n ? s.x[j] : s.implied_row[j - s.n]; }

// What a violation of j may reach in working units before it counts: the true-unit tolerance, or
// the share of the size of the numbers entering the value when that is larger (round-off).
double primal_allowance(const SimplexState& s, int j, double feasibility_tol) {
  const double size = j < s.n ? std::fabs(s.x[j]) : activity_size(s, j - s.n);
  return std::max(feasibility_tol / s.scale[j], kUnscaledRelative * size);
}

// Cuts the working feasibility tolerance of j when its true violation exceeds the allowance;
// returns whether it did.
bool tighten_primal(SimplexState& s, int j, double feasibility_tol) {
  const double violation = beyond_bounds(s, j, checked_value(s, j));
  const double allowance = primal_allowance(s, j, feasibility_tol);
  if (violation <= allowance) return false;
  s.primal_tol[j] = std::min(s.primal_tol[j], std::max(kZeroTolerance, kTightenShare * allowance));
  s.tolerances_changed = true;
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
  const double violation = dual_infeasibility(s, j);  // 0 for a fixed variable
  const double allowance = std::max(optimality_tol * s.scale[j], kUnscaledRelative * reduced_cost_size(s, j));
  if (violation <= allowance) return false;
  s.dual_tol[j] = std::min(s.dual_tol[j], std::max(kZeroTolerance, kTightenShare * allowance));
  s.tolerances_changed = true;
  return true;
}

}  // namespace

void reset_tolerances(SimplexState& s, const SimplexSettings& settings) {
  const int nt = s.n + s.m;
  if (!s.tolerances_changed && s.tolerances_filled >= nt && s.filled_feasibility_tol == settings.feasibility_tol &&
      s.filled_optimality_tol == settings.optimality_tol)
    return;
  std::fill(s.primal_tol.begin(), s.primal_tol.begin() + nt, settings.feasibility_tol);
  std::fill(s.dual_tol.begin(), s.dual_tol.begin() + nt, settings.optimality_tol);
  s.tolerances_filled = nt;
  s.filled_feasibility_tol = settings.feasibility_tol;
  s.filled_optimality_tol = settings.optimality_tol;
  s.tolerances_changed = false;
}

// Primal: every column against its bounds (a nonbasic one may have slipped off them within its
// working tolerance), every row's activity from the column values against its limits. Dual: every
// nonbasic reduced cost (as the duals of the final basis give it) against its variable's state.
// Each value is first screened against the absolute tolerances alone, which is all a solution
// within tolerance costs.
//
// With `polish`, a solution within the tolerances is also looked at more closely: a basic value
// beyond its bound or a reduced cost of the wrong sign puts the objective off by up to the
// tolerance times the dual (or the distance) that goes with it, which for large duals is far more
// than round-off; such variables are held to a share of the tolerances for one more pass.
TrueUnitCheck tighten_unscaled_violations(SimplexState& s, const SimplexSettings& settings, bool polish) {
  const double ftol = settings.feasibility_tol;
  const double otol = settings.optimality_tol;
  const double primal_level = polish ? kPolishShare * ftol : HUGE_VAL;
  const double dual_level = polish ? kPolishShare * otol : HUGE_VAL;
  TrueUnitCheck check;
  imply_rows(s);
  // Held to the polish level when beyond it and beyond round-off.
  const auto polish_primal = [&](int j, double violation, double size) {
    if (violation <= primal_level || violation <= kUnscaledRelative * size) return;
    s.primal_tol[j] = std::min(s.primal_tol[j], primal_level);
    ++check.polish;
  };
  for (int j = 0; j < s.n; ++j) {
    const double violation = beyond_bounds(s, j, s.x[j]);
    if (!(violation > 0.0)) continue;
    if (violation * s.scale[j] > ftol && tighten_primal(s, j, ftol)) ++check.primal;
    else if (s.state[j] == kBasicVar) polish_primal(j, violation, std::fabs(s.x[j]));
  }
  for (int i = 0; i < s.m; ++i) {
    const int j = s.n + i;
    const double violation = beyond_bounds(s, j, s.implied_row[i]);
    if (violation * s.scale[j] > ftol && tighten_primal(s, j, ftol)) ++check.primal;
    else if (violation > 0.0 && s.state[j] == kBasicVar) polish_primal(j, violation, activity_size(s, i));
  }
  for (int j = 0; j < s.n + s.m; ++j) {
    const double wrong = wrong_sign_part(s.state[j], s.d[j]);
    if (!(wrong > 0.0)) continue;  // of the right sign: nothing to tighten, and no worst
    if (!(wrong > std::min(otol * s.scale[j], dual_level)) || s.lower[j] == s.upper[j]) {
      if (wrong > check.worst_dual && s.lower[j] != s.upper[j]) check.worst_dual = wrong;
      continue;
    }
    check.worst_dual = std::max(check.worst_dual, wrong);
    if (wrong > otol * s.scale[j] && tighten_dual(s, j, otol)) {
      ++check.dual;
    } else if (wrong > dual_level && wrong > kUnscaledRelative * reduced_cost_size(s, j)) {
      s.dual_tol[j] = std::min(s.dual_tol[j], dual_level);
      ++check.polish;
    }
  }
  if (check.polish > 0) s.tolerances_changed = true;
  return check;
}

// An infeasible verdict stands only when some variable is infeasible in true units. When every
// infeasibility of the final point is within the tolerance there, the working tolerances of the
// infeasible variables widen to what stands for it; returns whether they did.
bool loosen_to_true_units(SimplexState& s, const SimplexSettings& settings) {
  const double ftol = settings.feasibility_tol;
  imply_rows(s);
  int loosened = 0;
  for (int pass = 0; pass < 2; ++pass) {
    for (int p = 0; p < s.m; ++p) {
      const int j = s.head[p];
      const double violation = beyond_bounds(s, j, checked_value(s, j));
      if (violation <= s.primal_tol[j]) continue;
      const double allowance = primal_allowance(s, j, ftol);
      if (violation > allowance) return false;
      if (pass == 1) {
        s.primal_tol[j] = allowance;
        ++loosened;
      }
    }
  }
  if (loosened > 0) s.tolerances_changed = true;
  return loosened > 0;
}

}  // namespace tarvo::lp
