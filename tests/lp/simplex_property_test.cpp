// The simplex against vertex enumeration: random small LPs solved cold, re-solved warm and hot
// after changes, degenerate and badly scaled ones.
#include <gtest/gtest.h>

#include "simplex_test_support.h"

namespace tarvo::lp::test {
namespace {

// Random small LPs solved by the simplex and by vertex enumeration must agree: status, objective,
// and the optimality conditions of the returned primal and dual solution.
void check_against_reference(Harness& h, const DenseLp& lp, int inform, const std::string& label) {
  const Reference ref = brute_force(lp);
  ASSERT_EQ(inform, expected_inform(ref.outcome)) << label;
  if (ref.outcome == Outcome::infeasible) {
    EXPECT_GT(h.slot.ninf, 0) << label;
    EXPECT_GT(h.slot.sinf, 0.0) << label;
  }
  if (ref.outcome != Outcome::optimal) return;
  EXPECT_NEAR(h.slot.obj, ref.objective, 1e-7 * (1.0 + std::fabs(ref.objective))) << label;
  const KktError e = kkt_error(h.slot);
  EXPECT_LT(e.primal, 1e-7) << label;
  EXPECT_LT(e.dual, 1e-7) << label;
  EXPECT_LT(e.reduced_cost, 1e-9) << label;
}

struct PropertyCase {
  const char* name;
  int kind;        // random_lp kind
  int crash;       // crash option
  int scale;       // scale option
  unsigned seed;
};

class SimplexProperty : public ::testing::TestWithParam<PropertyCase> {};

TEST_P(SimplexProperty, ColdSolvesMatchVertexEnumeration) {
  const PropertyCase& pc = GetParam();
  std::mt19937 rng(pc.seed);
  int counts[3] = {0, 0, 0};
  for (int t = 0; t < 120; ++t) {
    const DenseLp lp = random_lp(rng, pc.kind);
    Harness h;
    h.options.ival[kCrashOption] = pc.crash;
    h.options.ival[kScaleOption] = pc.scale;
    load_slot(lp, h.slot);
    const int inform = h.solve("cold");
    check_against_reference(h, lp, inform, std::string(pc.name) + " #" + std::to_string(t));
    if (inform <= 2) ++counts[inform];
  }
  // The generator must exercise every outcome it can produce.
  EXPECT_GT(counts[0], 10);
  EXPECT_GT(counts[1], 3);
  if (pc.kind == 0) {
    EXPECT_GT(counts[2], 3);
  }
}

INSTANTIATE_TEST_SUITE_P(Random, SimplexProperty,
                         ::testing::Values(PropertyCase{"slack_unscaled", 0, 0, 0, 11},
                                           PropertyCase{"crash_scaled", 0, 3, 2, 12},
                                           PropertyCase{"crash1_scaled", 0, 1, 2, 13},
                                           PropertyCase{"boxed_crash", 1, 3, 2, 14},
                                           PropertyCase{"boxed_slack", 1, 0, 1, 15}),
                         [](const auto& info) { return std::string(info.param.name); });

// Random LPs without their rows, and with one more column that no row holds: the working problem
// then has no basis matrix at all, or a column whose transform is empty.
TEST(SimplexStructure, NoRowsAndEmptyColumnsMatchVertexEnumeration) {
  std::mt19937 rng(31);
  for (int t = 0; t < 60; ++t) {
    DenseLp lp = random_lp(rng, t % 2);
    if (t % 3 == 0) {
      lp.m = 0;
      lp.a.clear();
      lp.row_lo.clear();
      lp.row_up.clear();
    } else {
      ++lp.n;
      lp.c.push_back(t % 2 ? -1.0 : 2.0);
      lp.lo.push_back(-1.0);
      lp.up.push_back(t % 5 ? 3.0 : kFree);
      for (auto& row : lp.a) row.push_back(0.0);
    }
    Harness h;
    h.options.ival[kCrashOption] = 3 * (t % 2);
    load_slot(lp, h.slot);
    check_against_reference(h, lp, h.solve("cold"), "#" + std::to_string(t));
  }
}

// Warm and hot re-solves after changes to right-hand sides, bounds and costs must agree with cold
// solves; an unchanged matrix and basis must reuse the kept factors.
enum class Change { rhs, bounds, costs, matrix };

struct RestartCase {
  const char* name;
  Change change;
  const char* start;
  bool factors_reused;  // expected when the previous solve was optimal
  bool rescale_changed_rows_only = false;
};

// Moves one piece of the LP at random.
void change_lp(DenseLp& lp, Change change, std::mt19937& rng) {
  std::uniform_int_distribution<int> coef(-3, 3);
  const auto any = [&](int count) { return std::uniform_int_distribution<int>(0, count - 1)(rng); };
  const auto shift = [&](double& lo, double& up) {  // the finite limits, by one amount
    const double by = coef(rng);
    if (std::isfinite(lo)) lo += by;
    if (std::isfinite(up)) up += by;
  };
  if (change == Change::rhs) {
    const int i = any(lp.m);
    shift(lp.row_lo[i], lp.row_up[i]);
  } else if (change == Change::bounds) {
    const int j = any(lp.n);
    shift(lp.lo[j], lp.up[j]);
  } else if (change == Change::costs) {
    for (double& c : lp.c) c += coef(rng);
  } else {
    const int i = any(lp.m), j = any(lp.n);
    lp.a[i][j] += lp.a[i][j] == 0.0 ? 1.0 : 0.5;
  }
}

class SimplexRestart : public ::testing::TestWithParam<RestartCase> {};

TEST_P(SimplexRestart, ResolveAgreesWithColdSolve) {
  const RestartCase& rc = GetParam();
  std::mt19937 rng(static_cast<unsigned>(rc.change) * 7 + rc.start[0]);
  int reused = 0, optimal_starts = 0;
  for (int t = 0; t < 80; ++t) {
    DenseLp lp = random_lp(rng, t % 2);
    Harness h;
    load_slot(lp, h.slot);
    h.slot.rescale_changed_rows_only = rc.rescale_changed_rows_only;
    const int first = h.solve("cold");
    for (int round = 0; round < 3; ++round) {
      const DenseLp before = lp;
      change_lp(lp, rc.change, rng);
      if (rc.change == Change::rhs || rc.change == Change::bounds) load_limits(lp, h.slot);
      else load_slot(lp, h.slot);
      const int inform = h.solve(rc.start);
      Harness cold;
      load_slot(lp, cold.slot);
      const int cold_inform = cold.solve("cold");
      const std::string label = std::string(rc.name) + " #" + std::to_string(t) + "." + std::to_string(round);
      ASSERT_EQ(inform, cold_inform) << label;
      for (int i = 0; rc.rescale_changed_rows_only && i < lp.m; ++i)
        EXPECT_EQ(h.state.row_changed[i] != 0, lp.a[i] != before.a[i]) << label << " row " << i;
      if (inform == 0) {
        EXPECT_NEAR(h.slot.obj, cold.slot.obj, 1e-7 * (1.0 + std::fabs(cold.slot.obj))) << label;
        const KktError e = kkt_error(h.slot);
        EXPECT_LT(std::max(e.primal, e.dual), 1e-7) << label;
      }
      // The least sum of infeasibilities may be reached at another point from another start.
      if (inform == 1) {
        EXPECT_GT(h.slot.sinf, 0.0) << label;
      }
      if (round == 0 && first == 0) {
        ++optimal_starts;
        reused += h.state.counters.reused_factors;
      }
    }
  }
  ASSERT_GT(optimal_starts, 10);
  EXPECT_EQ(reused, rc.factors_reused ? optimal_starts : 0);
}

INSTANTIATE_TEST_SUITE_P(Changes, SimplexRestart,
                         ::testing::Values(RestartCase{"rhs_warm", Change::rhs, "warm", true},
                                           RestartCase{"rhs_hot", Change::rhs, "hot ", true},
                                           RestartCase{"bounds_warm", Change::bounds, "warm", true},
                                           RestartCase{"costs_warm", Change::costs, "Warm", true},
                                           RestartCase{"costs_hot_scales_only", Change::costs, "hot  s", false},
                                           RestartCase{"matrix_warm", Change::matrix, "warm", false},
                                           RestartCase{"matrix_hot", Change::matrix, "HOT", false},
                                           RestartCase{"matrix_warm_rows_rescaled", Change::matrix, "warm", false, true}),
                         [](const auto& info) { return std::string(info.param.name); });

// An infeasible solve returns pi = d sinf / d r: a subgradient of the (convex) least sum of
// infeasibilities as a function of the row limits, checked against cold solves of shifted rows.
TEST(SimplexInfeasible, PhaseOneDualsAreSubgradientsOfTheSumOfInfeasibilities) {
  std::mt19937 rng(2024);
  int checked = 0;
  for (int t = 0; t < 400 && checked < 40; ++t) {
    const DenseLp lp = random_lp(rng, t % 2);
    if (brute_force(lp).outcome != Outcome::infeasible) continue;
    Harness h;
    load_slot(lp, h.slot);
    ASSERT_EQ(h.solve("cold"), 1);
    const double base = h.slot.sinf;
    ++checked;
    for (int i = 0; i < lp.m; ++i) {
      for (const double step : {-0.5, 0.25, 1.0}) {
        DenseLp shifted = lp;
        shifted.row_lo[i] += step;
        shifted.row_up[i] += step;
        Harness other;
        load_slot(shifted, other.slot);
        const int inform = other.solve("cold");
        const double value = inform == 1 ? other.slot.sinf : 0.0;
        EXPECT_GE(value, base + h.slot.pi[i + 2] * step - 1e-7) << "lp " << t << " row " << i << " step " << step;
      }
    }
  }
  EXPECT_GE(checked, 20);
}

// A warm start whose basic columns are dependent is repaired (logicals replace the dependent
// columns) and still reaches the optimum.
TEST(SimplexBasis, SingularWarmStartIsRepaired) {
  std::mt19937 rng(77);
  int repaired = 0;
  for (int t = 0; t < 60; ++t) {
    DenseLp lp = random_lp(rng, 1);
    // Column n-1 duplicates column 0, so a basis holding both is singular.
    for (auto& row : lp.a) row.back() = row.front();
    if (lp.a.front().front() == 0.0) lp.a.front().front() = lp.a.front().back() = 1.0;
    Harness h;
    load_slot(lp, h.slot);
    for (int k = 1; k <= h.slot.nb; ++k) h.slot.hs[k] = 0;
    h.slot.hs[1] = h.slot.hs[lp.n] = kBasic;
    for (int i = 2; i < h.slot.m; ++i) h.slot.hs[lp.n + i + 1] = kBasic;  // all but the first constraint
    const int inform = h.solve("warm");
    repaired += h.state.counters.singular_repairs > 0;
    check_against_reference(h, lp, inform, "#" + std::to_string(t));
  }
  EXPECT_GT(repaired, 30);
}

// Degenerate and badly scaled problems: a classic cycling example, many constraints through one
// vertex, and the same LPs with rows and columns scaled over eight orders of magnitude must all
// reach the optimum found by vertex enumeration.
// The textbook example on which Dantzig's rule with the lowest-index tie break cycles.
DenseLp cycling_example() {
  return DenseLp{4, 3, {-0.75, 20.0, -0.5, 6.0}, {{0.25, -8.0, -1.0, 9.0}, {0.5, -12.0, -0.5, 3.0}, {0.0, 0.0, 1.0, 0.0}},
                 {-kFree, -kFree, -kFree}, {0.0, 0.0, 1.0}, {0.0, 0.0, 0.0, 0.0}, {kFree, kFree, kFree, kFree}};
}

// Many random constraints all tight at one point: every vertex near it is degenerate.
DenseLp crowded_vertex(std::mt19937& rng) {
  std::uniform_int_distribution<int> coef(-5, 5);
  DenseLp lp;
  lp.n = 3;
  lp.m = 9;
  const std::vector<double> point = {1.0, 2.0, -1.0};
  lp.c.resize(lp.n);
  for (double& c : lp.c) c = coef(rng);
  for (int i = 0; i < lp.m; ++i) {
    std::vector<double> row(lp.n);
    double at = 0.0;
    for (int j = 0; j < lp.n; ++j) {
      row[j] = coef(rng);
      at += row[j] * point[j];
    }
    lp.a.push_back(row);
    lp.row_lo.push_back(i % 3 == 0 ? at : -kFree);
    lp.row_up.push_back(i % 3 == 0 ? kFree : at);
  }
  lp.lo.assign(lp.n, -10.0);
  lp.up.assign(lp.n, 10.0);
  return lp;
}

// Row i scaled by 10^(r_i), column j by 10^(s_j) (x_j = 10^(s_j) x'_j): same LP, other units.
DenseLp badly_scaled(DenseLp lp, std::mt19937& rng) {
  std::uniform_int_distribution<int> power(-4, 4);
  std::vector<double> row(lp.m), col(lp.n);
  for (double& r : row) r = std::pow(10.0, power(rng));
  for (double& c : col) c = std::pow(10.0, power(rng));
  for (int i = 0; i < lp.m; ++i) {
    for (int j = 0; j < lp.n; ++j) lp.a[i][j] *= row[i] * col[j];
    lp.row_lo[i] *= row[i];
    lp.row_up[i] *= row[i];
  }
  for (int j = 0; j < lp.n; ++j) {
    lp.c[j] *= col[j];
    lp.lo[j] /= col[j];
    lp.up[j] /= col[j];
  }
  return lp;
}

struct DegenerateCase {
  const char* name;
  bool scaled;
  int scale_option;
  int crash;
};

class SimplexDegenerate : public ::testing::TestWithParam<DegenerateCase> {};

TEST_P(SimplexDegenerate, ReachesTheOptimumWithoutCycling) {
  const DegenerateCase& dc = GetParam();
  std::mt19937 rng(99);
  std::vector<DenseLp> problems = {cycling_example()};
  for (int t = 0; t < 40; ++t) problems.push_back(crowded_vertex(rng));
  int solved = 0;
  for (std::size_t t = 0; t < problems.size(); ++t) {
    const DenseLp lp = dc.scaled ? badly_scaled(problems[t], rng) : problems[t];
    Harness h;
    h.options.ival[kScaleOption] = dc.scale_option;
    h.options.ival[kCrashOption] = dc.crash;
    h.options.ival[kIterationLimit] = 500;
    load_slot(lp, h.slot);
    const int inform = h.solve("cold");
    check_against_reference(h, lp, inform, std::string(dc.name) + " #" + std::to_string(t));
    solved += inform == 0;
  }
  EXPECT_GT(solved, 20);
}

INSTANTIATE_TEST_SUITE_P(Cases, SimplexDegenerate,
                         ::testing::Values(DegenerateCase{"plain", false, 2, 3},
                                           DegenerateCase{"plain_slack_start", false, 0, 0},
                                           DegenerateCase{"badly_scaled", true, 2, 3},
                                           DegenerateCase{"badly_scaled_unscaled_solve", true, 0, 0}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tarvo::lp::test
