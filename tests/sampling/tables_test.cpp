// The universe table and its visiting order, and the division of a sample among blocks.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "harness.h"
#include "sampling/allocate.h"
#include "sampling/sample_tables.h"
#include "sampling/solve_pass.h"

namespace tarvo::sampling {
namespace {

TEST(Tables, SerpentineVisitsTheUniverseOneStepAtATime) {
  testing::Harness h;
  h.params.istrat = 4;
  h.store = testing::make_store({{0.5, 0.5}, {0.2, 0.3, 0.5}, {1.0}, {0.1, 0.2, 0.3, 0.4}});
  Evaluation ev;
  ASSERT_EQ(allocate_evaluation(ev, h.context()), kOk);
  ASSERT_EQ(univtab(h.context(), ev), kOk);
  order_points(h.context(), ev, PassPlan{.rows = 24, .visit = Visit::serpentine});
  std::vector<int> seen(25, 0);
  for (int v = 1; v <= 24; ++v) {
    ++seen[ev.order[v]];
    if (v == 1) continue;
    int steps = 0;
    for (int b = 1; b <= 4; ++b) steps += std::abs(table_entry(ev, ev.order[v], b) - table_entry(ev, ev.order[v - 1], b));
    EXPECT_EQ(steps, 1) << "step " << v;
  }
  EXPECT_EQ(std::count(seen.begin() + 1, seen.end(), 1), 24);
}

TEST(Tables, UniverseBeyondTheTableIsRefused) {
  testing::Harness h;
  h.params.istrat = 6;  // the table is sized for the sample only
  h.params.nsamples = 5;
  h.store = testing::make_store({{0.5, 0.5}, {0.2, 0.3, 0.5}});
  Evaluation ev;
  ASSERT_EQ(allocate_evaluation(ev, h.context()), kOk);
  EXPECT_EQ(univtab(h.context(), ev), kErrorExit);
}

TEST(Allocate, LargestRemainders) {
  struct Case { std::vector<double> weights; int N; std::vector<int> counts; };
  const Case cases[] = {
      {{1, 2, 3, 4}, 20, {2, 4, 6, 8}},   // exact quotas
      {{1, 2, 3, 4}, 4, {1, 1, 1, 1}},    // N = n: no passes
      {{1, 2, 3, 4}, 2, {1, 1, 1, 1}},    // N < n: one point each all the same
      {{1, 1}, 3, {1, 2}},                // equal remainders: the last block wins
      {{-3, 1}, 4, {3, 1}},               // the absolute weight counts
      {{0, 0, 0}, 5, {1, 1, 3}},          // no weight: ties all the way
      {{5, 0.001}, 10, {9, 1}},           // a negligible block keeps its one point
      {{2, 1, 1}, 7, {3, 2, 2}},
  };
  for (const Case& c : cases) {
    const int n = static_cast<int>(c.weights.size());
    std::vector<double> w(1, 0.0);
    w.insert(w.end(), c.weights.begin(), c.weights.end());
    std::vector<int> counts(n + 1, 0);
    std::vector<double> scratch(n + 1, 0.0);
    allocate(w, c.N, n, counts, scratch);
    EXPECT_EQ(std::vector<int>(counts.begin() + 1, counts.end()), c.counts) << "N " << c.N;
    EXPECT_EQ(std::accumulate(counts.begin() + 1, counts.end(), 0), std::max(c.N, n));
  }
}

}  // namespace
}  // namespace tarvo::sampling
