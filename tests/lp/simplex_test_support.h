#pragma once
// Small LPs built in memory, an independent brute-force solver (vertex enumeration) to check the
// simplex against, and a driver that solves a slot through the optimizer's entry.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "common/units.h"
#include "lp/options.h"
#include "lp/problem_slot.h"
#include "lp/simplex.h"
#include "lu_test_support.h"

namespace tarvo::lp::test {

inline constexpr double kFree = std::numeric_limits<double>::infinity();

// min c.x  s.t.  row_lo <= A x <= row_up,  lo <= x <= up (infinite entries mean no bound).
struct DenseLp {
  int n = 0;
  int m = 0;
  std::vector<double> c;
  std::vector<std::vector<double>> a;  // [m][n]
  std::vector<double> row_lo, row_up, lo, up;
};

enum class Outcome { optimal, infeasible, unbounded };

struct Reference {
  Outcome outcome = Outcome::infeasible;
  double objective = 0.0;
};

inline double slot_bound(double v) { return std::isinf(v) ? (v > 0 ? kInfiniteBound : -kInfiniteBound) : v; }

// Changes only bounds and right-hand sides of an already loaded slot.
inline void load_limits(const DenseLp& lp, ProblemSlot& slot) {
  for (int j = 0; j < lp.n; ++j) {
    slot.bl[j + 1] = slot_bound(lp.lo[j]);
    slot.bu[j + 1] = slot_bound(lp.up[j]);
  }
  for (int i = 0; i < lp.m; ++i) {
    slot.bl[lp.n + i + 2] = slot_bound(-lp.row_up[i]);
    slot.bu[lp.n + i + 2] = slot_bound(-lp.row_lo[i]);
  }
}

// Slot layout: row 1 the free objective row, rows 2..m+1 the constraints.
inline void load_slot(const DenseLp& lp, ProblemSlot& slot) {
  if (slot.mmax < lp.m + 1 || slot.nmax < lp.n || slot.nemax < (lp.m + 1) * lp.n)
    allocate_slot(slot, std::max(lp.m + 1, 8), std::max(lp.n, 8), std::max((lp.m + 1) * lp.n, 64));
  slot.m = lp.m + 1;
  slot.n = lp.n;
  slot.nb = slot.m + slot.n;
  slot.iobj = 1;
  slot.nnobj = 0;
  int k = 1;
  for (int j = 0; j < lp.n; ++j) {
    slot.ka[j + 1] = k;
    slot.ha[k] = 1;  // kept when zero, so that cost changes leave the structure alone
    slot.a[k++] = lp.c[j];
    for (int i = 0; i < lp.m; ++i) {
      if (lp.a[i][j] == 0.0) continue;
      slot.ha[k] = i + 2;
      slot.a[k++] = lp.a[i][j];
    }
  }
  slot.ka[lp.n + 1] = k;
  slot.ne = k - 1;
  slot.bl[lp.n + 1] = -kInfiniteBound;
  slot.bu[lp.n + 1] = kInfiniteBound;
  load_limits(lp, slot);
}

// Vertex enumeration within an artificial box |x_j| <= big.
inline Reference enumerate_vertices(const DenseLp& lp, double kBig) {
  struct Plane { std::vector<double> a; double b; };
  std::vector<Plane> planes;
  auto add = [&](std::vector<double> a, double b) { planes.push_back({std::move(a), b}); };
  for (int i = 0; i < lp.m; ++i) {
    if (std::isfinite(lp.row_lo[i])) add(lp.a[i], lp.row_lo[i]);
    if (std::isfinite(lp.row_up[i]) && lp.row_up[i] != lp.row_lo[i]) add(lp.a[i], lp.row_up[i]);
  }
  for (int j = 0; j < lp.n; ++j) {
    std::vector<double> e(lp.n, 0.0);
    e[j] = 1.0;
    add(e, std::isfinite(lp.lo[j]) ? lp.lo[j] : -kBig);
    add(e, std::isfinite(lp.up[j]) ? lp.up[j] : kBig);
  }
  const int p = static_cast<int>(planes.size());
  const int n = lp.n;
  auto feasible = [&](const std::vector<double>& x) {
    for (int j = 0; j < n; ++j) {
      const double lo = std::isfinite(lp.lo[j]) ? lp.lo[j] : -kBig;
      const double up = std::isfinite(lp.up[j]) ? lp.up[j] : kBig;
      if (x[j] < lo - 1e-9 || x[j] > up + 1e-9) return false;
    }
    for (int i = 0; i < lp.m; ++i) {
      double act = 0.0;
      for (int j = 0; j < n; ++j) act += lp.a[i][j] * x[j];
      if (act < lp.row_lo[i] - 1e-9 || act > lp.row_up[i] + 1e-9) return false;
    }
    return true;
  };
  Reference best;
  std::vector<int> pick(n);
  for (int j = 0; j < n; ++j) pick[j] = j;
  while (true) {
    std::vector<double> mat(static_cast<std::size_t>(n) * n), rhs(n);
    for (int r = 0; r < n; ++r) {
      for (int j = 0; j < n; ++j) mat[static_cast<std::size_t>(r) * n + j] = planes[pick[r]].a[j];
      rhs[r] = planes[pick[r]].b;
    }
    const std::vector<double> x = dense_solve(mat, n, rhs, false, 1e-10);
    if (!x.empty() && feasible(x)) {
      double obj = 0.0;
      for (int j = 0; j < n; ++j) obj += lp.c[j] * x[j];
      if (best.outcome == Outcome::infeasible || obj < best.objective) best = {Outcome::optimal, obj};
    }
    int t = n - 1;
    while (t >= 0 && pick[t] == p - n + t) --t;
    if (t < 0) break;
    ++pick[t];
    for (int r = t + 1; r < n; ++r) pick[r] = pick[r - 1] + 1;
  }
  return best;
}

inline int expected_inform(Outcome o) { return o == Outcome::optimal ? 0 : o == Outcome::infeasible ? 1 : 2; }

// The LP is unbounded when widening the artificial box improves the optimum.
inline Reference brute_force(const DenseLp& lp) {
  Reference near = enumerate_vertices(lp, 1.0e6);
  const Reference far = enumerate_vertices(lp, 2.0e6);
  if (near.outcome == Outcome::optimal && far.objective < near.objective - 1e-3) near.outcome = Outcome::unbounded;
  return near;
}

// A random small LP; `kind` steers it: 0 general, 1 every variable boxed (never unbounded).
inline DenseLp random_lp(std::mt19937& rng, int kind) {
  std::uniform_int_distribution<int> size_n(2, 4), size_m(1, 4), coef(-4, 4), pick(0, 9);
  DenseLp lp;
  lp.n = size_n(rng);
  lp.m = size_m(rng);
  lp.c.resize(lp.n);
  for (double& v : lp.c) v = coef(rng);
  lp.a.assign(lp.m, std::vector<double>(lp.n));
  for (auto& row : lp.a)
    for (double& v : row) v = pick(rng) < 3 ? 0.0 : coef(rng);
  for (int j = 0; j < lp.n; ++j) {  // free, boxed, lower only, fixed, boxed below, upper only
    const int t = kind == 1 ? 3 : pick(rng);
    const double base = coef(rng);
    if (t <= 1) {
      lp.lo.push_back(-kFree), lp.up.push_back(kFree);
    } else if (t <= 5) {
      lp.lo.push_back(base), lp.up.push_back(t == 5 ? base : t == 4 ? kFree : base + 1 + pick(rng));
    } else {
      lp.lo.push_back(t == 9 ? -kFree : base - 3), lp.up.push_back(base);
    }
  }
  for (int i = 0; i < lp.m; ++i) {  // equality, at most, at least, ranged, free
    const int t = pick(rng);
    const double r = coef(rng) * 2;
    lp.row_lo.push_back(t <= 2 || t == 6 || t == 7 ? r : t == 8 ? r - 3 : -kFree);
    lp.row_up.push_back(t <= 5 || t == 8 ? r : kFree);
  }
  return lp;
}

// One optimizer with one slot, options at their defaults, no output.
struct Harness {
  Options options;
  Units units;
  ProblemSlot slot;
  SimplexState state;
  std::array<Name8, 5> names{make_name("TEST"), Name8{}, Name8{}, Name8{}, Name8{}};
  Regularization regularization;
  int nwcore = 1 << 20;

  explicit Harness(int mmax = 64, int nmax = 64, int nemax = 4096) {
    apply_defaults(options, units, 1);
    options.ival[kPrintFile] = 0;
    options.ival[kSummaryFile] = 0;
    allocate_slot(slot, mmax, nmax, nemax);
    allocate_simplex_state(state, mmax, nmax, nemax);
  }
  int solve(std::string_view start) {
    return optimizer_solve(state, options, units, slot, start, names, nwcore, regularization);
  }
};

// Largest violation of primal feasibility and of the optimality conditions by the slot's
// solution (xn, pi, rc), in the slot's own units; `gradient` (1-based) is what a nonlinear
// objective adds to the costs at xn.
struct KktError {
  double primal = 0.0;
  double dual = 0.0;
  double reduced_cost = 0.0;  // |rc - (c - A^T pi)|
};

inline KktError kkt_error(const ProblemSlot& slot, const std::vector<double>& gradient = {}) {
  KktError e;
  std::vector<double> activity(slot.m + 1, 0.0);
  for (int j = 1; j <= slot.n; ++j) {
    double rc = gradient.empty() ? 0.0 : gradient[j];
    for (int k = slot.ka[j]; k < slot.ka[j + 1]; ++k) {
      activity[slot.ha[k]] += slot.a[k] * slot.xn[j];
      rc += (slot.ha[k] == slot.iobj ? slot.a[k] : 0.0) - slot.a[k] * slot.pi[slot.ha[k]];
    }
    e.reduced_cost = std::max(e.reduced_cost, std::fabs(rc - slot.rc[j]) / (1.0 + std::fabs(rc)));
    const double x = slot.xn[j];
    e.primal = std::max({e.primal, slot.bl[j] - x, x - slot.bu[j]});
    const bool at_lo = x <= slot.bl[j] + 1e-9, at_up = x >= slot.bu[j] - 1e-9;
    if (!at_lo) e.dual = std::max(e.dual, rc);
    if (!at_up) e.dual = std::max(e.dual, -rc);
  }
  for (int i = 1; i <= slot.m; ++i) {
    if (i == slot.iobj) continue;
    const double lo = -slot.bu[slot.n + i], up = -slot.bl[slot.n + i];
    const double act = activity[i];
    e.primal = std::max({e.primal, lo - act, act - up, std::fabs(act + slot.xn[slot.n + i])});
    const double pi = slot.pi[i];
    if (act > lo + 1e-9) e.dual = std::max(e.dual, pi);    // raising the lower limit cannot help
    if (act < up - 1e-9) e.dual = std::max(e.dual, -pi);   // nor lowering the upper one
  }
  return e;
}

}  // namespace tarvo::lp::test
