// Random small LPs solved by the simplex and by vertex enumeration must agree: status, objective,
// and the optimality conditions of the returned primal and dual solution.
#include <gtest/gtest.h>

#include "simplex_test_support.h"

namespace tarvo::lp::test {
namespace {

int expected_inform(Outcome o) { return o == Outcome::optimal ? 0 : (o == Outcome::infeasible ? 1 : 2); }

void check_against_reference(Harness& h, const DenseLp& lp, int inform, const std::string& label) {
  const Reference ref = brute_force(lp);
  ASSERT_EQ(inform, expected_inform(ref.outcome)) << label;
  if (ref.outcome == Outcome::infeasible) {
    EXPECT_GT(h.slot.ninf, 0) << label;
    EXPECT_GT(h.slot.sinf, 0.0) << label;
  }
  if (ref.outcome != Outcome::optimal) return;
  EXPECT_NEAR(h.slot.obj, ref.objective, 1e-7 * (1.0 + std::fabs(ref.objective))) << label;
  const KktError e = kkt_error(h.slot);
  EXPECT_LT(e.primal, 1e-7) << label;
  EXPECT_LT(e.dual, 1e-7) << label;
  EXPECT_LT(e.reduced_cost, 1e-9) << label;
}

struct PropertyCase {
  const char* name;
  int kind;        // random_lp kind
  int crash;       // crash option
  int scale;       // scale option
  unsigned seed;
};

class SimplexProperty : public ::testing::TestWithParam<PropertyCase> {};

TEST_P(SimplexProperty, ColdSolvesMatchVertexEnumeration) {
  const PropertyCase& pc = GetParam();
  std::mt19937 rng(pc.seed);
  int counts[3] = {0, 0, 0};
  for (int t = 0; t < 120; ++t) {
    const DenseLp lp = random_lp(rng, pc.kind);
    Harness h;
    h.options.ival[kCrashOption] = pc.crash;
    h.options.ival[kScaleOption] = pc.scale;
    load_slot(lp, h.slot);
    const int inform = h.solve("cold");
    check_against_reference(h, lp, inform, std::string(pc.name) + " #" + std::to_string(t));
    if (inform <= 2) ++counts[inform];
  }
  // The generator must exercise every outcome it can produce.
  EXPECT_GT(counts[0], 10);
  EXPECT_GT(counts[1], 3);
  if (pc.kind == 0) {
    EXPECT_GT(counts[2], 3);
  }
}

INSTANTIATE_TEST_SUITE_P(Random, SimplexProperty,
                         ::testing::Values(PropertyCase{"slack_unscaled", 0, 0, 0, 11},
                                           PropertyCase{"crash_scaled", 0, 3, 2, 12},
                                           PropertyCase{"crash1_scaled", 0, 1, 2, 13},
                                           PropertyCase{"boxed_crash", 1, 3, 2, 14},
                                           PropertyCase{"boxed_slack", 1, 0, 1, 15}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tarvo::lp::test
