// Warm and hot re-solves after changes to right-hand sides, bounds and costs must agree with cold
// solves; an unchanged matrix and basis must reuse the kept factors.
#include <gtest/gtest.h>

#include "simplex_test_support.h"

namespace tarvo::lp::test {
namespace {

enum class Change { rhs, bounds, costs, matrix };

struct RestartCase {
  const char* name;
  Change change;
  const char* start;
  bool factors_reused;  // expected when the previous solve was optimal
};

// Moves one piece of the LP at random; returns true when only limits changed (the slot can then
// be updated in place with load_limits).
void change_lp(DenseLp& lp, Change change, std::mt19937& rng) {
  std::uniform_int_distribution<int> coef(-3, 3);
  switch (change) {
    case Change::rhs: {
      const int i = std::uniform_int_distribution<int>(0, lp.m - 1)(rng);
      const double shift = coef(rng);
      if (std::isfinite(lp.row_lo[i])) lp.row_lo[i] += shift;
      if (std::isfinite(lp.row_up[i])) lp.row_up[i] += shift;
      break;
    }
    case Change::bounds: {
      const int j = std::uniform_int_distribution<int>(0, lp.n - 1)(rng);
      const double shift = coef(rng);
      if (std::isfinite(lp.lo[j])) lp.lo[j] += shift;
      if (std::isfinite(lp.up[j])) lp.up[j] += shift;
      break;
    }
    case Change::costs:
      for (double& c : lp.c) c += coef(rng);
      break;
    case Change::matrix: {
      const int i = std::uniform_int_distribution<int>(0, lp.m - 1)(rng);
      const int j = std::uniform_int_distribution<int>(0, lp.n - 1)(rng);
      lp.a[i][j] += lp.a[i][j] == 0.0 ? 1.0 : 0.5;
      break;
    }
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
    const int first = h.solve("cold");
    for (int round = 0; round < 3; ++round) {
      change_lp(lp, rc.change, rng);
      if (rc.change == Change::rhs || rc.change == Change::bounds) load_limits(lp, h.slot);
      else load_slot(lp, h.slot);
      const int inform = h.solve(rc.start);
      Harness cold;
      load_slot(lp, cold.slot);
      const int cold_inform = cold.solve("cold");
      const std::string label = std::string(rc.name) + " #" + std::to_string(t) + "." + std::to_string(round);
      ASSERT_EQ(inform, cold_inform) << label;
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
                                           RestartCase{"matrix_hot", Change::matrix, "HOT", false}),
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
    const Reference ref = brute_force(lp);
    ASSERT_EQ(inform, ref.outcome == Outcome::optimal ? 0 : 1) << t;
    if (inform == 0) {
      EXPECT_NEAR(h.slot.obj, ref.objective, 1e-7 * (1.0 + std::fabs(ref.objective))) << t;
    }
  }
  EXPECT_GT(repaired, 30);
}

}  // namespace
}  // namespace tarvo::lp::test
