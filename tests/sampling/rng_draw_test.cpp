// The generator against 64-bit modular arithmetic, and the draw's interval rule.
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tarvo::sampling
