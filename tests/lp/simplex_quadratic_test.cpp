// The regularized objective c.x + 0.5 sum_{j<n} (x_j - xhat_j)^2 / rho (the last column takes no
// part): the solution must satisfy the optimality conditions of that convex problem, with the
// gradient computed here independently, and report its objective value.
#include <gtest/gtest.h>

#include "simplex_test_support.h"

namespace tarvo::lp::test {
namespace {

struct QuadraticCase {
  const char* name;
  double rho;
  int scale;
  unsigned seed;
};

class SimplexQuadratic : public ::testing::TestWithParam<QuadraticCase> {};

TEST_P(SimplexQuadratic, SolutionSatisfiesOptimalityConditions) {
  const QuadraticCase& qc = GetParam();
  std::mt19937 rng(qc.seed);
  std::uniform_real_distribution<double> centre(-4.0, 4.0);
  int optimal = 0, with_superbasics = 0;
  for (int t = 0; t < 80; ++t) {
    const DenseLp lp = random_lp(rng, 1);
    Harness h;
    load_slot(lp, h.slot);
    h.slot.nnobj = lp.n;
    h.options.ival[kSuperbasicsLimit] = lp.n + 1;
    h.options.ival[kScaleOption] = qc.scale;
    h.regularization.rho = qc.rho;
    h.regularization.xhat.assign(lp.n + 1, 0.0);
    for (int j = 1; j <= lp.n; ++j) h.regularization.xhat[j] = centre(rng);
    const int inform = h.solve(t % 3 == 0 ? "cold" : "warm");
    const Reference feasibility = brute_force(lp);
    if (feasibility.outcome == Outcome::infeasible) {
      EXPECT_EQ(inform, 1) << t;
      continue;
    }
    ASSERT_EQ(inform, 0) << qc.name << " #" << t;
    ++optimal;
    with_superbasics += h.slot.ns > 0;
    // The proximal term's gradient at xn, and the optimality conditions with the returned duals.
    const ProblemSlot& s = h.slot;
    std::vector<double> gradient(s.n + 1, 0.0);
    double value = 0.0;
    for (int j = 1; j <= s.n; ++j) {
      value += lp.c[j - 1] * s.xn[j];
      if (j == s.n) continue;
      const double diff = s.xn[j] - h.regularization.xhat[j];
      gradient[j] = diff / qc.rho;
      value += 0.5 * diff * diff / qc.rho;
    }
    EXPECT_NEAR(s.obj, value, 1e-7 * (1.0 + std::fabs(s.obj))) << t;
    const KktError e = kkt_error(s, gradient);
    EXPECT_LT(e.primal, 1e-7) << t;
    EXPECT_LT(e.dual, 1e-6) << qc.name << " #" << t;
  }
  EXPECT_GT(optimal, 20);
  EXPECT_GT(with_superbasics, 2);
}

INSTANTIATE_TEST_SUITE_P(Regularized, SimplexQuadratic,
                         ::testing::Values(QuadraticCase{"tight_unscaled", 0.5, 0, 31},
                                           QuadraticCase{"unit_scaled", 1.0, 1, 32},
                                           QuadraticCase{"loose_scaled", 10.0, 2, 33}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tarvo::lp::test
