// How outcomes are drawn and tabled: the generator against 64-bit modular arithmetic, the draw's
// interval rule, the universe table and its visiting order, and the division of a sample among
// blocks.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <numeric>

#include "harness.h"
#include "sampling/allocate.h"
#include "sampling/draw.h"
#include "sampling/rng.h"
#include "sampling/sample_tables.h"
#include "sampling/solve_pass.h"

namespace tarvo::sampling {
namespace {

constexpr std::int64_t kM = 2147483647;

std::int64_t power_mod(std::int64_t a, std::int64_t e) {
  std::int64_t r = 1;
  for (a %= kM; e > 0; e >>= 1, a = a * a % kM) {
    if (e & 1) r = r * a % kM;
  }
  return r;
}

// The state whose next step is `next` (16807 is invertible modulo the prime 2^31 - 1).
std::int32_t state_before(std::int64_t next) {
  return static_cast<std::int32_t>(next * power_mod(16807, kM - 2) % kM);
}

TEST(Generator, MatchesModularMultiplication) {
  const std::int32_t seeds[] = {1, 12933428, 2147483646, 127773, 127774, -5, -2147483646};
  for (std::int32_t seed : seeds) {
    Generator g{seed};
    std::int64_t x = ((seed % kM) + kM) % kM;
    for (int step = 0; step < 5000; ++step) {
      x = x * 16807 % kM;
      const double u = rngnext(g);
      ASSERT_EQ(g.x, x) << "seed " << seed << " step " << step;
      ASSERT_EQ(u, x / 2147483648.0);  // the scale is 2^-31 exactly
    }
  }
}

struct DrawCase {
  std::vector<double> probs;
  std::int64_t next_state;  // u = next_state / 2^31
  int outcome;
};

TEST(Draw, IntervalsOpenBelowClosedAbove) {
  const DrawCase cases[] = {
      {{0.25, 0.5, 0.25}, 1LL << 29, 1},          // u = 0.25 = c_2: closed above
      {{0.25, 0.5, 0.25}, (1LL << 29) + 1, 2},    // just above c_2: open below
      {{0.25, 0.5, 0.25}, 3LL << 29, 2},          // u = 0.75
      {{0.25, 0.5, 0.25}, (3LL << 29) + 1, 3},
      {{0.25, 0.0, 0.75}, (1LL << 29) + 1, 3},    // probability 0: empty interval
      {{0.2, 0.2}, kM - 1, 2},                    // shortfall goes to the last outcome
      {{0.5, 0.5}, 1, 1},
  };
  for (const DrawCase& c : cases) {
    testing::Harness h;
    h.store = testing::make_store({c.probs});
    Evaluation ev;
    ASSERT_EQ(allocate_evaluation(ev, h.context()), kOk);
    ev.rng.x = state_before(c.next_state);
    drawindex(ev, h.store, h.store.probs);
    EXPECT_EQ(ev.index[1], c.outcome) << "state " << c.next_state;
  }
}

TEST(Draw, SeedZeroGivesOutcomeOneAndSeedsRepeat) {
  testing::Harness h;
  h.store = testing::make_store({{0.3, 0.4, 0.3}, {0.5, 0.5}});
  h.params.nsamples = 50;
  Evaluation a, b;
  ASSERT_EQ(allocate_evaluation(a, h.context()), kOk);
  ASSERT_EQ(allocate_evaluation(b, h.context()), kOk);
  sampcmc(h.context(), a);  // seed 0: u = 0 in every draw
  EXPECT_EQ(a.rng.x, 0);
  for (int k = 1; k <= 50; ++k) EXPECT_EQ(table_entry(a, k, 1) + table_entry(a, k, 2), 2);
  seed_generator(a, 777);
  seed_generator(b, 777);
  sampcmc(h.context(), a);
  sampcmc(h.context(), b);
  EXPECT_EQ(a.itab, b.itab);
}

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
