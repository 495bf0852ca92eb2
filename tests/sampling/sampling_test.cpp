// The sampled strategies on the LandS examples at a fixed first stage: unbiased over many seeds,
// reported variances that match the spread of the estimates, and the variance reduction of the
// approximation-based strategies.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "example_model.h"
#include "sampling/evaluate.h"

namespace tarvo::sampling {
namespace {

struct Spread {
  double mean = 0.0, variance = 0.0, reported = 0.0;  // of the estimates; mean reported variance
};

// Repeated evaluations with the generator running on from one seed, as in a run (streams from
// seeds in arithmetic progression would be correlated).
Spread repeated(testing::ExampleModel& m, int istrat, int seeds) {
  double sum = 0.0, sum_sq = 0.0, reported = 0.0;
  seed_generator(m.ev, 12933428);
  for (int s = 1; s <= seeds; ++s) {
    EXPECT_EQ(evaluate(m.context(), m.ev, istrat), kOk);
    sum += m.ev.cut.objs;
    sum_sq += m.ev.cut.objs * m.ev.cut.objs;
    reported += m.ev.cut.variance;
  }
  const double mean = sum / seeds;
  return {mean, (sum_sq - seeds * mean * mean) / (seeds - 1), reported / seeds};
}

// Mean recourse cost of a crude sample drawn here (its own generator), outcome by outcome on the
// core problem; `se2` is the squared standard error.
double reference_sample(testing::ExampleModel& m, int n, double& se2) {
  std::mt19937 rng(5);
  std::vector<std::discrete_distribution<int>> draw;
  for (const testing::Block& b : m.blocks) {
    std::vector<double> p;
    for (const testing::Outcome& o : b) p.push_back(o.prob);
    draw.emplace_back(p.begin(), p.end());
  }
  double sum = 0.0, sum_sq = 0.0, cost = 0.0;
  std::vector<int> outcome(m.blocks.size());
  for (int k = 0; k < n; ++k) {
    for (std::size_t b = 0; b < draw.size(); ++b) outcome[b] = draw[b](rng);
    EXPECT_TRUE(m.recourse(m.x_core, outcome, cost));
    sum += cost;
    sum_sq += cost * cost;
  }
  se2 = (sum_sq - sum * sum / n) / (n - 1) / n;
  return sum / n;
}

// One block: the additive approximation is the cost itself, so importance sampling and control
// variables are exact; crude Monte Carlo is unbiased with the variance it reports.
TEST(Sampling, Lands3) {
  testing::ExampleModel m;
  m.params.nsamples = 20;
  ASSERT_TRUE(m.load("lands3"));
  double exact = 0.0, cost = 0.0;
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(m.recourse(m.x_core, {i}, cost));
    exact += m.blocks[0][i].prob * cost;
  }
  for (int istrat : {2, 10}) {
    const Spread s = repeated(m, istrat, 20);
    EXPECT_NEAR(s.mean, exact, 1e-9 * exact) << istrat;
    EXPECT_NEAR(s.reported, 0.0, 1e-9 * exact) << istrat;
  }
  const Spread s = repeated(m, 6, 400);
  EXPECT_NEAR(s.mean, exact, 3.0 * std::sqrt(s.variance / 400));
  EXPECT_NEAR(s.reported / s.variance, 1.0, 0.25);
}

TEST(Sampling, LandsMillionScenarios) {
  testing::ExampleModel m;
  m.params.nsamples = 50;
  ASSERT_TRUE(m.load("lands-1e6"));
  double ref_se2 = 0.0;
  const double reference = reference_sample(m, 20000, ref_se2);
  const int seeds = 100;
  const Spread crude = repeated(m, 6, seeds);
  for (int istrat : {6, 2, 10}) {
    const Spread s = istrat == 6 ? crude : repeated(m, istrat, seeds);
    EXPECT_NEAR(s.mean, reference, 3.0 * std::sqrt(s.variance / seeds + ref_se2)) << istrat;
    EXPECT_NEAR(s.reported / s.variance, 1.0, 0.45) << istrat;
    if (istrat != 6) {
      EXPECT_LT(s.variance, crude.variance) << istrat;
    }
  }
}

}  // namespace
}  // namespace tarvo::sampling
