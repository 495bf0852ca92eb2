// The universe evaluation of every small example against the recourse cost solved outcome by
// outcome on the core problem, and its cut as a supporting hyperplane of that cost.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "example_model.h"
#include "sampling/evaluate.h"

namespace tarvo::sampling {
namespace {

// Expected recourse cost at x over every outcome combination; false when one is infeasible.
bool expected_recourse(testing::ExampleModel& m, const std::vector<double>& x, double& value) {
  std::vector<int> outcome(m.blocks.size(), 0);
  value = 0.0;
  while (true) {
    double p = 1.0, cost = 0.0;
    for (std::size_t b = 0; b < m.blocks.size(); ++b) p *= m.blocks[b][outcome[b]].prob;
    if (!m.recourse(x, outcome, cost)) return false;
    value += p * cost;
    std::size_t b = m.blocks.size();
    while (b > 0 && ++outcome[b - 1] == static_cast<int>(m.blocks[b - 1].size())) outcome[--b] = 0;
    if (b == 0) return true;
  }
}

struct Point { std::vector<double> x; double exact = 0.0; CutRecord cut; };

double cut_at(const CutRecord& cut, const std::vector<double>& x, int n1) {
  double value = cut.gls;
  for (int j = 1; j <= n1; ++j) value -= cut.gus[j] * x[j];
  return value;
}

// At the core's own first stage and at perturbed proposals whose outcomes are all feasible: the
// estimate equals the expected cost, and every cut touches the cost at its own proposal and stays
// below it at all the others.
TEST(Universe, EqualsScenarioSolvesAndItsCutsSupport) {
  for (const char* name : {"lands3", "lands3-blocks", "chem", "env-aggr", "fxm2-6", "pltexpa2-6", "stormg2-8"}) {
    SCOPED_TRACE(name);
    testing::ExampleModel m;
    m.params.istrat = 4;
    ASSERT_TRUE(m.load(name));
    const int n1 = m.model.n1;
    std::mt19937 rng(11);
    std::uniform_real_distribution<double> u(0.5, 1.5);
    std::vector<Point> points;
    std::vector<double> x = m.x_core, scale(n1 + 1, 1.0), other;
    // Proposals move from the core's first stage toward the core's optimum under other
    // first-stage costs (even trials) or by a random relative change (odd trials); each kind's
    // step is halved after a proposal with an infeasible outcome.
    double step[2] = {0.5, 0.5};
    for (int trial = 0; trial < 24 && points.size() < 5; ++trial) {
      Point p{x, 0.0, {}};
      if (expected_recourse(m, x, p.exact)) {
        m.set_proposal(x);
        ASSERT_EQ(evaluate(m.context(), m.ev, 4), kOk);
        p.cut = m.ev.cut;
        EXPECT_NEAR(p.cut.objs, p.exact, 1e-6 * std::max(1.0, std::fabs(p.exact)));
        EXPECT_EQ(p.cut.gus[n1 + 1], 1.0);
        points.push_back(p);
      } else {
        ASSERT_GT(trial, 0) << "the core's own first stage has infeasible outcomes";
        step[(trial - 1) % 2] /= 2.0;
      }
      for (int j = 1; j <= n1; ++j) scale[j] = u(rng);
      other = trial % 2 == 0 ? m.core_first_stage(scale) : x;
      for (int j = 1; j <= n1; ++j) {
        const double toward = trial % 2 == 0 ? other[j] : m.x_core[j] * scale[j];
        x[j] = m.x_core[j] + step[trial % 2] * (toward - m.x_core[j]);
      }
    }
    ASSERT_GE(points.size(), 2u);
    for (const Point& a : points) {
      for (const Point& b : points) {
        const double tol = 1e-6 * std::max(1.0, std::fabs(b.exact));
        if (&a == &b) {
          EXPECT_NEAR(cut_at(a.cut, b.x, n1), b.exact, tol);
        } else {
          EXPECT_LE(cut_at(a.cut, b.x, n1), b.exact + tol);
        }
      }
    }
  }
}

}  // namespace
}  // namespace tarvo::sampling
