// The generator against 64-bit modular arithmetic, and the draw's interval rule.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "harness.h"
#include "sampling/draw.h"
#include "sampling/rng.h"
#include "sampling/sample_tables.h"

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

TEST(Generator, FirstStatesOfSeedOne) {
  Generator g{1};
  const std::int32_t expected[] = {16807, 282475249, 1622650073};
  for (std::int32_t x : expected) {
    const double u = rngnext(g);
    EXPECT_EQ(g.x, x);
    EXPECT_EQ(u, x / 2147483648.0);  // the scale is 2^-31 exactly
  }
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
      ASSERT_GT(u, 0.0);
      ASSERT_LT(u, 1.0);
    }
  }
}

TEST(Generator, SeedZeroStaysZero) {
  Generator g{0};
  for (int i = 0; i < 3; ++i) EXPECT_EQ(rngnext(g), 0.0);
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
  sampcmc(h.context(), a);
  for (int k = 1; k <= 50; ++k) EXPECT_EQ(table_entry(a, k, 1) + table_entry(a, k, 2), 2);
  seed_generator(a, 777);
  seed_generator(b, 777);
  sampcmc(h.context(), a);
  sampcmc(h.context(), b);
  EXPECT_EQ(a.itab, b.itab);
}

TEST(Draw, FrequenciesFollowProbabilities) {
  testing::Harness h;
  h.store = testing::make_store({{0.3, 0.4, 0.3}, {0.1, 0.0, 0.2}});
  h.params.nsamples = 40000;
  Evaluation ev;
  ASSERT_EQ(allocate_evaluation(ev, h.context()), kOk);
  seed_generator(ev, 12933428);
  sampcmc(h.context(), ev);
  // Block 2's probabilities sum to 0.3: its last outcome takes the missing 0.7.
  const double expected[2][3] = {{0.3, 0.4, 0.3}, {0.1, 0.0, 0.9}};
  for (int b = 1; b <= 2; ++b) {
    for (int i = 1; i <= 3; ++i) {
      int hits = 0;
      for (int k = 1; k <= 40000; ++k) hits += table_entry(ev, k, b) == i;
      const double p = expected[b - 1][i - 1];
      EXPECT_NEAR(hits / 40000.0, p, 4.0 * std::sqrt(p * (1 - p) / 40000.0) + 1e-12);
    }
  }
}

TEST(Draw, ValuesProbabilitiesAndExpectedValues) {
  testing::Harness h;
  h.store = testing::make_store({{0.3, 0.7}, {0.5, 0.25, 0.25}}, {{10, 20}, {1, 2, 4}});
  Evaluation ev;
  ASSERT_EQ(allocate_evaluation(ev, h.context()), kOk);
  ev.index[1] = 2;
  ev.index[2] = 3;
  outprob(ev, h.store);
  outval(ev, h.store);
  EXPECT_EQ(ev.block_prob[1], 0.7);
  EXPECT_EQ(ev.block_prob[2], 0.25);
  EXPECT_EQ(ev.current[1], 20.0);
  EXPECT_EQ(ev.current[2], 4.0);
  expvals(ev, h.store);
  EXPECT_DOUBLE_EQ(h.store.expected[1], 0.3 * 10 + 0.7 * 20);
  EXPECT_DOUBLE_EQ(h.store.expected[2], 0.5 * 1 + 0.25 * 2 + 0.25 * 4);
  EXPECT_EQ(ev.index[1], 1);
  EXPECT_EQ(ev.index[2], 1);
}

}  // namespace
}  // namespace tarvo::sampling
