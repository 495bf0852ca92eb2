// The estimators on costs given by a formula instead of solved subproblems: exact where the
// approximation is exact.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "harness.h"
#include "sampling/cut.h"
#include "sampling/cut_groups.h"
#include "sampling/importance.h"
#include "sampling/sample_tables.h"
#include "sampling/strategies.h"

namespace tarvo::sampling {
namespace {

constexpr double kZ0 = 100.0;
const std::vector<std::vector<double>> kProbs = {{0.3, 0.4, 0.3}, {0.5, 0.5}, {0.2, 0.2, 0.2, 0.4}};
// Cost change of each block's outcome with the others at outcome 1 (block 2 is negative; no
// combination sums to 0, where importance sampling would drop the point).
const std::vector<std::vector<double>> kChange = {{0, 4, 9}, {0, -6.5}, {0, 1, 2, 12}};
const double kSlope[] = {0.0, 1.5, -2.0};  // dual product u = u0 + slope * Gamma

struct Synthetic {
  testing::Harness h;
  Evaluation ev;
  std::function<double(double)> cost_of_gamma = [](double g) { return g; };  // z - z0 of Gamma

  Synthetic() {
    testing::set_plain_model(h, 2);
    h.master_primal = {0.0, 3.0, -1.0, 0.0};
    h.store = testing::make_store(kProbs);
    h.params.nsamples = 40;
    EXPECT_EQ(allocate_evaluation(ev, h.context()), kOk);
    for (int j = 1; j <= 2; ++j) ev.u0[j] = 10.0 * j;
  }

  double gamma_of_row(int k) const {
    double g = 0.0;
    for (int b = 1; b <= 3; ++b) g += kChange[b - 1][table_entry(ev, k, b) - 1];
    return g;
  }

  // The marginal table's costs and the approximation built from them.
  void build_approximation() {
    margtab(h.context(), ev, 1);
    for (int k = 1; k <= ev.nmarg; ++k) ev.costs[k] = kZ0 + cost_of_gamma(gamma_of_row(k));
    approx(h.context(), ev);
  }

  // Costs and dual products of rows 1..rows, the costs stored from position 1 + offset.
  void fill_points(int rows, int offset) {
    for (int k = 1; k <= rows; ++k) {
      const double g = gamma_of_row(k);
      ev.costs[k + offset] = kZ0 + cost_of_gamma(g);
      for (int j = 1; j <= 2; ++j) point_u(ev, k)[j] = ev.u0[j] + kSlope[j] * g;
    }
  }

  double exact_expectation() const {
    double sum = 0.0;
    for (int a = 0; a < 3; ++a)
      for (int b = 0; b < 2; ++b)
        for (int c = 0; c < 4; ++c) {
          const double p = kProbs[0][a] * kProbs[1][b] * kProbs[2][c];
          sum += p * (kZ0 + cost_of_gamma(kChange[0][a] + kChange[1][b] + kChange[2][c]));
        }
    return sum;
  }
};

double expected_gamma() {
  double sum = 0.0;
  for (int b = 0; b < 3; ++b)
    for (std::size_t i = 0; i < kProbs[b].size(); ++i) sum += kProbs[b][i] * kChange[b][i];
  return sum;
}

void expect_cut_closed(const Synthetic& s) {
  const double dot = s.ev.cut.gus[1] * 3.0 - s.ev.cut.gus[2];
  EXPECT_NEAR(s.ev.cut.gls, s.ev.cut.objs + dot, 1e-9);
  EXPECT_EQ(s.ev.cut.gus[3], 1.0);
}

TEST(Approximation, WeightsAndImportanceProbabilities) {
  Synthetic s;
  s.build_approximation();
  EXPECT_NEAR(s.ev.expected_gamma, expected_gamma(), 1e-12);
  for (int b = 1; b <= 3; ++b) {
    double total = 0.0;
    for (int i = 1; i <= s.h.store.nsoc[b]; ++i) total += s.ev.approx.q[s.h.store.prob_start[b] + i - 1];
    EXPECT_NEAR(total, 1.0, 1e-12) << "block " << b;
    EXPECT_EQ(s.ev.approx.q[s.h.store.prob_start[b]], 0.0);
  }
  seed_generator(s.ev, 4711);
  sampis(s.h.context(), s.ev);
  int first = 1;
  for (int b = 1; b <= 3; ++b) {
    for (int k = first; k <= s.ev.share_end[b]; ++k) EXPECT_NE(table_entry(s.ev, k, b), 1);
    first = s.ev.share_end[b] + 1;
  }
  EXPECT_EQ(s.ev.share_end[3], 40);
}

TEST(Approximation, NegligibleChangesCountAsZero) {
  Synthetic s;
  s.cost_of_gamma = [](double g) { return g * 1e-7; };  // every change below 1e-5
  s.build_approximation();
  EXPECT_EQ(s.ev.expected_gamma, 0.0);
  for (std::size_t i = 1; i < s.h.store.probs.size(); ++i) EXPECT_EQ(s.ev.approx.q[i], s.h.store.probs[i]);
}

TEST(Estimators, ExactWhenTheApproximationIsExact) {
  const double exact = kZ0 + expected_gamma();
  {  // importance sampling: every ratio is 1
    Synthetic s;
    s.build_approximation();
    seed_generator(s.ev, 99);
    sampis(s.h.context(), s.ev);
    s.fill_points(s.ev.share_end[3], 1);
    estimate_importance(s.h.context(), s.ev);
    EXPECT_NEAR(s.ev.cut.objs, exact, 1e-9);
    EXPECT_NEAR(s.ev.cut.variance, 0.0, 1e-18);
    for (int j = 1; j <= 2; ++j) EXPECT_NEAR(s.ev.cut.gus[j], -(10.0 * j + kSlope[j] * expected_gamma()), 1e-9);
    expect_cut_closed(s);
  }
  {  // control variables: the control equals the cost difference
    Synthetic s;
    s.build_approximation();
    seed_generator(s.ev, 99);
    sampcmc(s.h.context(), s.ev);
    s.fill_points(40, 1);
    estimate_control(s.h.context(), s.ev);
    EXPECT_NEAR(s.ev.cut.objs, exact, 1e-9);
    EXPECT_NEAR(s.ev.cut.variance, 0.0, 1e-12);
    expect_cut_closed(s);
  }
  {  // the universe is exact for any cost
    Synthetic s;
    s.cost_of_gamma = [](double g) { return g * g - 3.0 * g; };
    s.h.params.istrat = 4;
    ASSERT_EQ(allocate_evaluation(s.ev, s.h.context()), kOk);
    ASSERT_EQ(univtab(s.h.context(), s.ev), kOk);
    s.fill_points(24, 0);
    estimate_universe(s.h.context(), s.ev);
    EXPECT_NEAR(s.ev.cut.objs, s.exact_expectation(), 1e-9);
    expect_cut_closed(s);
  }
}

TEST(Estimators, CrudeMonteCarloMeanAndVarianceOfTheMean) {
  Synthetic s;
  s.ev.nsamples = 4;
  const double z[] = {1, 2, 3, 4};
  for (int k = 1; k <= 4; ++k) s.ev.costs[k] = z[k - 1];
  estimate_mean(s.h.context(), s.ev);
  EXPECT_DOUBLE_EQ(s.ev.cut.objs, 2.5);
  EXPECT_DOUBLE_EQ(s.ev.cut.variance, (2.25 + 0.25 + 0.25 + 2.25) / 3.0 / 4.0);
}

// Group cuts of the universe and of a presample: each group's share is the sum over its own
// points in table order, the shares add up to the single cut, and each group cut is closed at
// the proposal; the presample's variance splits among the groups as well.
TEST(Estimators, GroupCutsSplitTheCut) {
  struct Case { bool universe; int groups; };
  for (const Case c : {Case{true, 5}, Case{true, 24}, Case{false, 3}, Case{false, 40}}) {
    SCOPED_TRACE(std::to_string(c.universe) + " " + std::to_string(c.groups));
    Synthetic s;
    s.cost_of_gamma = [](double g) { return g * g - 3.0 * g; };
    s.h.params.istrat = c.universe ? 4 : 8;
    ASSERT_EQ(allocate_evaluation(s.ev, s.h.context()), kOk);
    if (c.universe) {
      ASSERT_EQ(univtab(s.h.context(), s.ev), kOk);
    } else {
      seed_generator(s.ev, 7);
      sampcmc(s.h.context(), s.ev);
    }
    const int rows = s.ev.nsamples;
    allocate_cut_groups(s.ev, c.groups, rows);
    s.fill_points(rows, 0);
    if (c.universe) {
      estimate_universe(s.h.context(), s.ev);
    } else {
      estimate_mean(s.h.context(), s.ev);
    }
    const CutGroups& g = s.ev.groups;
    double objs = 0.0, variance = 0.0, gus[3] = {0.0, 0.0, 0.0};
    for (int i = 1; i <= c.groups; ++i) {
      EXPECT_GE(g.end[i] - g.end[i - 1], rows / c.groups);
      double own = 0.0;
      for (int k = g.end[i - 1] + 1; k <= g.end[i]; ++k) {
        own += (c.universe ? row_probability(s.h.context(), s.ev, k) : 1.0 / rows) * s.ev.costs[k];
      }
      EXPECT_NEAR(g.objs[i], own, 1e-12 * std::fabs(own) + 1e-12);
      const double* gu = group_gus(s.ev, i);
      EXPECT_NEAR(g.gls[i], g.objs[i] + gu[1] * 3.0 - gu[2], 1e-9);
      objs += g.objs[i];
      variance += g.variance[i];
      for (int j = 1; j <= 2; ++j) gus[j] += gu[j];
    }
    EXPECT_EQ(g.end[c.groups], rows);
    EXPECT_NEAR(objs, s.ev.cut.objs, 1e-9);
    for (int j = 1; j <= 2; ++j) EXPECT_NEAR(gus[j], s.ev.cut.gus[j], 1e-9);
    EXPECT_NEAR(variance, s.ev.cut.variance, 1e-9 * s.ev.cut.variance);
  }
}

}  // namespace
}  // namespace tarvo::sampling
