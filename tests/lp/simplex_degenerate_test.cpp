// Degenerate and badly scaled problems: a classic cycling example, many constraints through one
// vertex, and the same LPs with rows and columns scaled over eight orders of magnitude must all
// reach the optimum found by vertex enumeration.
#include <gtest/gtest.h>

#include "simplex_test_support.h"

namespace tarvo::lp::test {
namespace {

// The textbook example on which Dantzig's rule with the lowest-index tie break cycles.
DenseLp cycling_example() {
  DenseLp lp;
  lp.n = 4;
  lp.m = 3;
  lp.c = {-0.75, 20.0, -0.5, 6.0};
  lp.a = {{0.25, -8.0, -1.0, 9.0}, {0.5, -12.0, -0.5, 3.0}, {0.0, 0.0, 1.0, 0.0}};
  lp.row_lo = {-kFree, -kFree, -kFree};
  lp.row_up = {0.0, 0.0, 1.0};
  lp.lo = {0.0, 0.0, 0.0, 0.0};
  lp.up = {kFree, kFree, kFree, kFree};
  return lp;
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
    const Reference ref = brute_force(lp);
    ASSERT_EQ(inform, ref.outcome == Outcome::optimal ? 0 : (ref.outcome == Outcome::infeasible ? 1 : 2))
        << dc.name << " #" << t;
    if (inform != 0) continue;
    ++solved;
    EXPECT_NEAR(h.slot.obj, ref.objective, 1e-7 * (1.0 + std::fabs(ref.objective))) << dc.name << " #" << t;
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
