// The strategy dispatch on lands3: what each strategy leaves behind, the best-solution
// bookkeeping, the final re-evaluation, feasibility cuts and failed solves.
#include <gtest/gtest.h>

#include <filesystem>

#include "example_model.h"
#include "sampling/evaluate.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {
namespace {

struct Lands3 : ::testing::Test {
  testing::ExampleModel m;
  double cost_at_mean_demand = 0.0;  // the expected demand 5 is outcome 2
  void SetUp() override {
    m.params.istrat = 5;
    m.params.nsamples = 30;
    ASSERT_TRUE(m.load("lands3"));
    ASSERT_TRUE(m.recourse(m.x_core, {1}, cost_at_mean_demand));
  }
};

TEST_F(Lands3, EveryStrategyLeavesAnOptimalityCut) {
  prepare_presample(m.context(), m.ev);
  for (int istrat = 1; istrat <= 11; ++istrat) {
    ASSERT_EQ(evaluate(m.context(), m.ev, istrat), kOk) << istrat;
    EXPECT_EQ(m.ev.cut.gus[m.model.n1 + 1], 1.0) << istrat;
    EXPECT_GT(m.ev.cut.objs, 0.0) << istrat;
    if (istrat == 1) {
      EXPECT_NEAR(m.ev.cut.objs, cost_at_mean_demand, 1e-9);
    }
  }
  EXPECT_EQ(m.optimizer.active, lp::kMasterSlot);
  // Presampling keeps its sample: the same estimate twice, no generator step.
  ASSERT_EQ(evaluate(m.context(), m.ev, 8), kOk);
  const double first = m.ev.cut.objs;
  const Generator before = m.ev.rng;
  ASSERT_EQ(evaluate(m.context(), m.ev, 9), kOk);
  EXPECT_EQ(m.ev.cut.objs, first);
  EXPECT_EQ(m.ev.rng.x, before.x);
  EXPECT_EQ(evaluate(m.context(), m.ev, 12), kErrorExit);
  EXPECT_EQ(reevaluate(m.context(), m.ev, 0), kErrorExit);
}

TEST_F(Lands3, BestProposalTiesReplaceAndReevaluationCollects) {
  std::vector<double> cheap = m.x_core, dear = m.x_core;
  for (int j = 1; j <= m.model.n1; ++j) dear[j] *= 1.2;
  const struct { const std::vector<double>& x; double tag, first_stage_cost; bool best; } steps[] = {
      {cheap, 1.0, 0.0, true}, {dear, 2.0, 1e4, false}, {cheap, 3.0, 0.0, true}};
  for (const auto& s : steps) {
    m.set_proposal(s.x);
    m.master_duals[1] = s.tag;
    m.first_stage_cost = s.first_stage_cost;
    ASSERT_EQ(evaluate(m.context(), m.ev, 4), kOk);
    EXPECT_EQ(m.ev.best_total == m.ev.current_total, s.best) << s.tag;
  }
  m.set_proposal(dear);
  snapshot(m.context(), m.ev, 4);
  EXPECT_EQ(m.master_primal[1], cheap[1]);
  EXPECT_EQ(m.master_duals[1], 3.0);
  // The universe's collected second-stage values reproduce the expected cost (fixed costs q).
  ASSERT_EQ(reevaluate(m.context(), m.ev, 4), kOk);
  const lp::ProblemSlot& sub = m.optimizer.slot[lp::kSubproblemSlot];
  double q_y = 0.0;
  for (int j = 1; j <= sub.n; ++j)
    for (int p = sub.ka[j]; p < sub.ka[j + 1]; ++p)
      if (sub.ha[p] == 1) q_y += sub.a[p] * m.ev.acc_primal[j];
  EXPECT_NEAR(q_y, m.ev.cut.objs, 1e-9 * m.ev.cut.objs);
  EXPECT_EQ(m.ev.best_total, m.ev.cut.objs + m.first_stage_cost);
  EXPECT_EQ(m.ev.collect, 0);
}

TEST_F(Lands3, InfeasibleOutcomeGivesAFeasibilityCut) {
  m.set_proposal(std::vector<double>(m.model.n1 + 1, 0.0));  // no capacity for any demand
  for (int istrat : {1, 2, 4, 6, 10}) {
    ASSERT_EQ(evaluate(m.context(), m.ev, istrat), kOk);
    EXPECT_EQ(m.ev.cut.gus[m.model.n1 + 1], 0.0);
    EXPECT_EQ(m.ev.cut.objs, kInfiniteCost);
    EXPECT_GT(m.ev.cut.gls, 0.0);  // cuts off x = 0 ...
    double at_core = 0.0;          // ... but not the core's own first stage
    for (int j = 1; j <= m.model.n1; ++j) at_core += m.ev.cut.gus[j] * m.x_core[j];
    EXPECT_GE(at_core, m.ev.cut.gls - 1e-9) << istrat;
    // At x = 0 the constant is the sum of infeasibilities of the outcome that gave the cut, with no
    // margin: the expected values' solve, or the first infeasible point of the marginal table or
    // the sample.
    const double z = istrat == 1 ? m.ev.chains[0].work.z : m.ev.costs[m.ev.infeasible_point];
    EXPECT_EQ(m.ev.cut.gls, z) << istrat;
  }
}

TEST_F(Lands3, FailedSolveDumpsTheProblem) {
  const struct { int status, model_status; const char* file; } cases[] = {
      {1, 4, "sinfez.mps"}, {2, 3, "sunbnd.mps"}, {6, 12, ""}};
  for (const auto& c : cases) {
    EXPECT_EQ(dumpbad(m.context(), lp::kSubproblemSlot, c.status), kErrorExit);
    EXPECT_EQ(m.model_status, c.model_status);
    EXPECT_EQ(m.solver_status, 4);
    if (*c.file != '\0') {
      EXPECT_TRUE(std::filesystem::exists(c.file)) << c.file;
    }
  }
}

}  // namespace
}  // namespace tarvo::sampling
