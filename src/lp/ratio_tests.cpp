// Ratio tests. Primal: Harris two-pass with the working feasibility tolerance of the
// anti-degeneracy procedure, the entering variable's own bound (a bound flip), and in phase 1
// infeasible basics that block where they become feasible. Dual: Harris two-pass with the working
// optimality tolerance and bound flipping, passing boxed candidates while the dual objective keeps
// improving. The primal tests take at least the step that the growth of the working tolerance
// allows; the dual test reports a zero step, which its caller counts toward perturbing costs.
#include <algorithm>
#include <cmath>
#include <limits>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

struct Block {
  double ratio = kInf;  // step at which the basic variable reaches `target` (+ relax)
  double target = 0.0;
};

// How far the entering variable may move before basic variable j, changing at `rate` per unit
// step, passes its bound (relaxed by the working tolerance when `relaxed`).
Block basic_block(const SimplexState& s, int j, double rate, bool relaxed) {
  Block b;
  const double tol = s.primal_tol[j];
  const double relax = relaxed ? s.expand_share * tol : 0.0;
  const double x = s.x[j];
  const bool phase_one = s.phase == 1;
  if (rate > 0.0) {
    if (phase_one && x < s.lower[j] - tol) b.target = s.lower[j];
    else if (x > s.upper[j] + tol || !std::isfinite(s.upper[j])) return b;
    else b.target = s.upper[j];
    b.ratio = std::max(0.0, (b.target + relax - x) / rate);
  } else {
    if (phase_one && x > s.upper[j] + tol) b.target = s.upper[j];
    else if (x < s.lower[j] - tol || !std::isfinite(s.lower[j])) return b;
    else b.target = s.lower[j];
    b.ratio = std::max(0.0, (x - b.target + relax) / -rate);
  }
  return b;
}

// A step shorter than the growth of the working tolerance allows is lengthened to it: the leaving
// variable then passes its bound by that growth and leaves at the value it reaches.
void take_least_step(const SimplexState& s, PrimalStep& out, int direction, const SimplexSettings& settings) {
  const int j = s.head[out.position];
  const double a = s.column.value[out.position];
  const double least = expand_increment(settings) * s.primal_tol[j] / std::fabs(a);
  if (out.step >= least) return;
  out.step = least;
  out.leaving_value = s.x[j] - direction * a * least;
}

// A reduced cost of the wrong sign for its entering variable (within the working tolerance) is
// shifted to zero: the step would move the leaving variable the wrong way. Returns whether the
// dual step is zero.
bool zero_wrong_sign(SimplexState& s, int q, double slack) {
  if (slack > 0.0) return false;
  if (slack < 0.0) {
    s.cost[q] -= s.d[q];
    s.d[q] = 0.0;
    s.costs_shifted = true;
  }
  return true;
}

}  // namespace

PrimalStep primal_ratio_test(SimplexState& s, int q, int direction, const SimplexSettings& settings) {
  PrimalStep out;
  const double pivot_floor = std::max(settings.pivot_tol, kRatioPivotFloor);
  // Moving away from its feasible range (phase 1 only) the entering variable has no own limit.
  double own_limit = direction > 0 ? s.upper[q] - s.x[q] : s.x[q] - s.lower[q];
  if (own_limit <= 0.0 && s.phase == 1) own_limit = kInf;
  const SparseVector& alpha = s.column;

  double theta_max = kInf;
  for (int t = 0; t < alpha.count; ++t) {
    const int p = alpha.index[t];
    const double a = alpha.value[p];
    if (std::fabs(a) < pivot_floor) continue;
    theta_max = std::min(theta_max, basic_block(s, s.head[p], -direction * a, true).ratio);
  }
  if (own_limit <= theta_max) {
    if (!std::isfinite(own_limit)) {
      out.unbounded = true;
      return out;
    }
    out.flip = true;
    out.step = std::max(0.0, own_limit);
    return out;
  }

  double best_pivot = 0.0;
  for (int t = 0; t < alpha.count; ++t) {
    const int p = alpha.index[t];
    const double a = alpha.value[p];
    if (std::fabs(a) < pivot_floor || std::fabs(a) <= best_pivot) continue;
    const Block b = basic_block(s, s.head[p], -direction * a, false);
    if (b.ratio > theta_max) continue;
    best_pivot = std::fabs(a);
    out.position = p;
    out.step = b.ratio;
    out.leaving_value = b.target;
    out.leaving_state = b.target == s.lower[s.head[p]] ? kNonbasicLower : kNonbasicUpper;
  }
  if (out.position >= 0) take_least_step(s, out, direction, settings);
  return out;
}

// Phase 1: the sum of infeasibilities is piecewise linear along the move. Every basic variable
// that reaches a bound (becoming feasible or infeasible) and the entering variable passing its
// own other bound raise the slope by |rate| times the variable's weight; the move goes on to the
// breakpoint where the slope stops being negative, and the variable there leaves (among ties,
// the one with the largest pivot).
PrimalStep phase_one_ratio_test(SimplexState& s, int q, int direction, const SimplexSettings& settings) {
  PrimalStep out;
  const double pivot_floor = std::max(settings.pivot_tol, kRatioPivotFloor);
  const SparseVector& alpha = s.column;
  const bool elastic = direction > 0 ? s.x[q] >= s.upper[q] : s.x[q] <= s.lower[q];
  double slope = direction * s.d[q] + (elastic ? s.scale[q] : 0.0);

  // Breakpoint k: code 2p (position p at its lower bound), 2p+1 (at its upper), -1 the entering
  // variable's own bound; its step in candidate_ratio, sorted through `flipped`.
  int count = 0;
  auto add = [&](int code, double step) {
    s.candidate[count] = code;
    s.candidate_ratio[count] = std::max(0.0, step);
    s.flipped[count] = count;
    ++count;
  };
  if (!elastic) {
    const double own = direction > 0 ? s.upper[q] - s.x[q] : s.x[q] - s.lower[q];
    if (std::isfinite(own)) add(-1, own);
  }
  for (int t = 0; t < alpha.count; ++t) {
    const int p = alpha.index[t];
    const double a = alpha.value[p];
    if (std::fabs(a) < pivot_floor) continue;
    const int j = s.head[p];
    const double rate = -direction * a;
    const double x = s.x[j];
    const double tol = s.primal_tol[j];
    if (rate > 0.0) {
      if (x < s.lower[j] - tol) add(2 * p, (s.lower[j] - x) / rate);
      if (std::isfinite(s.upper[j]) && x <= s.upper[j] + tol) add(2 * p + 1, (s.upper[j] - x) / rate);
    } else {
      if (x > s.upper[j] + tol) add(2 * p + 1, (x - s.upper[j]) / -rate);
      if (std::isfinite(s.lower[j]) && x >= s.lower[j] - tol) add(2 * p, (x - s.lower[j]) / -rate);
    }
  }
  int* order = s.flipped.data();
  std::sort(order, order + count, [&s](int a, int b) { return s.candidate_ratio[a] < s.candidate_ratio[b]; });
  auto weight = [&](int code) {
    if (code < 0) return s.scale[q];
    const int p = code / 2;
    return std::fabs(alpha.value[p]) * s.scale[s.head[p]];
  };
  int stop = -1;
  for (int k = 0; k < count; ++k) {
    slope += weight(s.candidate[order[k]]);
    if (slope >= -settings.optimality_tol * 1e-3) {
      stop = k;
      break;
    }
  }
  if (stop < 0) {
    out.unbounded = true;
    return out;
  }
  // Ties at the stopping step: the largest pivot leaves.
  const double step = s.candidate_ratio[order[stop]];
  // A move beyond the entering variable's own bound that stops at once only trades one
  // infeasible variable for another; taking such moves could go round in circles.
  if (elastic && step <= 0.0) {
    out.rejected = true;
    return out;
  }
  int best = order[stop];
  for (int k = stop + 1; k < count && s.candidate_ratio[order[k]] <= step + 1e-12 * (1.0 + step); ++k) {
    const int code = s.candidate[order[k]];
    const int b = s.candidate[best];
    if (code >= 0 && (b < 0 || std::fabs(alpha.value[code / 2]) > std::fabs(alpha.value[b / 2]))) best = order[k];
  }
  const int code = s.candidate[best];
  out.step = step;
  if (code < 0) {
    out.flip = true;
    return out;
  }
  out.position = code / 2;
  const int j = s.head[out.position];
  out.leaving_state = code % 2 == 0 ? kNonbasicLower : kNonbasicUpper;
  out.leaving_value = code % 2 == 0 ? s.lower[j] : s.upper[j];
  take_least_step(s, out, direction, settings);
  return out;
}

DualStep dual_ratio_test(SimplexState& s, double infeasibility, double tolerance, const SimplexSettings& settings) {
  DualStep out;
  s.flipped_count = 0;
  // To lower bound (infeasibility < 0) the leaving variable must rise: a candidate at its lower
  // bound needs alpha_rj < 0, one at its upper bound alpha_rj > 0 (mirrored for the upper bound).
  const double sign = infeasibility < 0.0 ? 1.0 : -1.0;
  const double pivot_floor = std::max(settings.pivot_tol, kRatioPivotFloor);
  int count = 0;
  for (int k = 0; k < s.pivot_count; ++k) {
    const int j = s.pivot_index[k];
    const double a = s.pivot_row[j];
    if (std::fabs(a) < pivot_floor || s.lower[j] == s.upper[j]) continue;
    const double sa = sign * a;
    double slack = 0.0;  // the reduced cost in the sense in which it must stay >= 0
    switch (s.state[j]) {
      case kNonbasicLower:
        if (sa >= 0.0) continue;
        slack = s.d[j];
        break;
      case kNonbasicUpper:
        if (sa <= 0.0) continue;
        slack = -s.d[j];
        break;
      case kNonbasicFree:
      case kSuperbasicVar:
        slack = sa < 0.0 ? s.d[j] : -s.d[j];
        break;
      default:
        continue;
    }
    s.candidate[count] = j;
    s.candidate_ratio[count] = slack;
    ++count;
  }

  double slope = std::fabs(infeasibility);
  while (count > 0) {
    double theta_max = kInf;
    for (int k = 0; k < count; ++k) {
      const double a = std::fabs(s.pivot_row[s.candidate[k]]);
      theta_max = std::min(theta_max, (s.candidate_ratio[k] + s.expand_share * s.dual_tol[s.candidate[k]]) / a);
    }
    double slope_drop = 0.0;
    bool must_enter = false;
    int best = -1;
    double best_pivot = 0.0;
    double best_slack = 0.0;
    int group = 0;
    for (int k = 0; k < count; ++k) {
      const int j = s.candidate[k];
      const double a = std::fabs(s.pivot_row[j]);
      if (s.candidate_ratio[k] / a > theta_max) continue;
      ++group;
      if (is_boxed(s, j)) slope_drop += a * (s.upper[j] - s.lower[j]);
      else must_enter = true;
      if (a > best_pivot) {
        best_pivot = a;
        best = j;
        best_slack = s.candidate_ratio[k];
      }
    }
    // Flips that bring the leaving variable within its tolerance leave it to the entering one.
    if (must_enter || slope - slope_drop <= tolerance) {
      out.degenerate = zero_wrong_sign(s, best, best_slack);
      out.entering = best;
      return out;
    }
    if (group == count) break;  // every breakpoint passed and the dual still improves
    slope -= slope_drop;
    int kept = 0;
    for (int k = 0; k < count; ++k) {
      const int j = s.candidate[k];
      if (s.candidate_ratio[k] / std::fabs(s.pivot_row[j]) <= theta_max) {
        s.flipped[s.flipped_count++] = j;
      } else {
        s.candidate[kept] = j;
        s.candidate_ratio[kept] = s.candidate_ratio[k];
        ++kept;
      }
    }
    count = kept;
  }
  s.flipped_count = 0;
  return out;
}

}  // namespace tarvo::lp
