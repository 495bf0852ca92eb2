// Normal and t quantiles against statistics tables, the gap test and the lower bound's error term.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "harness.h"
#include "run_in_dir.h"
#include "sampling/statistics.h"

namespace tarvo::sampling {
namespace {

TEST(Statistics, NormalQuantilesMatchTables) {
  const double table[][2] = {{0.9, 1.2816}, {0.95, 1.6449}, {0.975, 1.9600}, {0.995, 2.5758}};
  for (const auto& row : table) EXPECT_NEAR(normquant(row[0]), row[1], 0.005) << row[0];
  EXPECT_NEAR(normcdf(-5.0, 0.0, 0.01), 0.5, 1e-6);
  EXPECT_NEAR(normcdf(-1.96, 1.96, 0.001), 0.95, 1e-4);
  EXPECT_EQ(normcdf(1.0, 1.0, 0.01), 0.0);
}

TEST(Statistics, StudentQuantilesMatchTables) {
  // Two-sided 95% values of the t distribution; between the anchors the line is interpolated.
  const struct { int f; double t; } table[] = {{10, 2.228}, {15, 2.131}, {20, 2.086}, {25, 2.060},
                                               {30, 2.042}, {40, 2.021}, {60, 2.000}, {120, 1.980}, {1000, 1.960}};
  for (const auto& row : table) EXPECT_NEAR(tstar(row.f, -1.0), row.t, 1e-12) << row.f;
  EXPECT_NEAR(tstar(50, -1.0), (2.021 + 2.000) / 2.0, 1e-12);
  EXPECT_NEAR(tstar(560, -1.0), (1.980 + 1.960) / 2.0, 1e-12);
  EXPECT_EQ(tstar(1001, -1.0), -1.0);
}

struct GapCase {
  double U, L, VU, VL;
  int n;
  int result;  // -1: left unchanged
};

TEST(Statistics, GapTest) {
  // With VU = VL = v and n points each, f = 2(n + 1) and t = (U - L - tol) / sqrt(2v/n): n = 10
  // gives f = 22 and t* = 2.074, so a gap of 2.07 or 2.08 standard errors decides the test.
  const double se = std::sqrt(2.0 * 4.0 / 10.0);
  const GapCase cases[] = {
      {5.0 + 2.07 * se, 5.0, 4.0, 4.0, 10, 1},
      {5.0 + 2.08 * se, 5.0, 4.0, 4.0, 10, 0},
      {7.0, 7.0, 4.0, 4.0, 3, -1},                 // f = 8: insufficient
      {5.0 + 0.5e-7, 5.0, 0.0, 0.0, 10, 1},        // no variance: U - L <= tolben
      {5.0 + 2e-7, 5.0, 0.0, 0.0, 10, 0},
  };
  const tarvo::testing::WorkDir dir("gaptest");
  for (const GapCase& c : cases) {
    testing::Harness h;
    h.log_unit = 61;
    ASSERT_TRUE(open_unit(h.units, 61, "gaptest.log", OpenStatus::unknown));
    Evaluation ev;
    ev.best_total = c.U;
    ev.best_variance = c.VU;
    ev.nsamples = c.n;
    int result = -1;
    gaptest(h.context(), ev, c.L, c.VL, result);
    close_unit(h.units, 61);
    EXPECT_EQ(result, c.result) << c.U << " " << c.n;
    EXPECT_EQ(tarvo::testing::read_file("gaptest.log") == " insufficient sample size\n", c.result == -1);
  }
}

TEST(Statistics, LowerBoundErrorFromBindingCuts) {
  const std::vector<double> duals = {0.0, 0.5, 1e-10, 2.0, 0.3, 1.0};
  const std::vector<double> variances = {0.0, 4.0, 4.0, 0.0, 9.0, 1.0};
  const struct { int iterations; double expected; } cases[] = {
      {1, 1.6449 * 3.0},   // one binding cut: the 95% quantile
      {3, 1.6449 * 3.0},   // rows 2 and 3 do not bind (small dual, zero variance)
      {5, 1.9545 * 3.0},   // rows 1 and 4: the 0.95^(1/2) = 0.97468 quantile
      {0, 0.0},            // no cut at all
  };
  for (const auto& c : cases) {
    testing::Harness h;
    h.params.nzrows = 4;  // row 5 lies beyond the reserved rows
    Evaluation ev;
    ev.best_variance = 9.0;
    const CutRows rows{.duals = duals, .variances = variances, .irm = 3, .iterations = c.iterations};
    EXPECT_NEAR(lbstats(h.context(), ev, rows), c.expected, 0.005 * 3.0) << c.iterations;
  }
}

}  // namespace
}  // namespace tarvo::sampling
