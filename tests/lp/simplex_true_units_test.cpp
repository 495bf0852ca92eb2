// Solutions judged in the problem's own units. Rows and columns like those of a Benders master
// get scale factors that let the working tolerances hide violations many times the tolerance;
// masters whose cut rows carry round-off residue used to be scaled by it into stalls.
#include <gtest/gtest.h>

#include "simplex_test_support.h"

namespace tarvo::lp::test {
namespace {

// Largest violation in the slot's units over an allowance of 1e-6 or 1e-9 of the largest number
// entering the value: row activities and column values against their limits, reduced costs
// (rows: -pi) against the sign their basis state asks for.
double worst_violation(const ProblemSlot& slot) {
  std::vector<double> activity(slot.m + 1, 0.0), size(slot.m + 1, 0.0);
  double worst = 0.0;
  auto note = [&](double violation, double magnitude) {
    worst = std::max(worst, violation / std::max(1e-6, 1e-9 * magnitude));
  };
  auto note_dual = [&](int k, double rc, double magnitude) {
    const double wrong = slot.hs[k] == kAtLower ? -rc : slot.hs[k] == kAtUpper ? rc : std::fabs(rc);
    if (slot.bl[k] < slot.bu[k]) note(wrong, magnitude);
  };
  for (int j = 1; j <= slot.n; ++j) {
    double rc = 0.0, magnitude = 0.0;
    for (int k = slot.ka[j]; k < slot.ka[j + 1]; ++k) {
      const int i = slot.ha[k];
      activity[i] += slot.a[k] * slot.xn[j];
      size[i] = std::max(size[i], std::fabs(slot.a[k] * slot.xn[j]));
      const double term = i == slot.iobj ? slot.a[k] : -slot.a[k] * slot.pi[i];
      rc += term;
      magnitude = std::max(magnitude, std::fabs(term));
    }
    note(std::max({0.0, slot.bl[j] - slot.xn[j], slot.xn[j] - slot.bu[j]}), std::fabs(slot.xn[j]));
    note_dual(j, rc, magnitude);
  }
  for (int i = 1; i <= slot.m; ++i) {
    if (i == slot.iobj) continue;
    note(std::max({0.0, row_lower(slot, i) - activity[i], activity[i] - row_upper(slot, i)}), size[i]);
    note_dual(slot.n + i, -slot.pi[i], std::fabs(slot.pi[i]));
  }
  return worst;
}

// Entries of 0.002 give the columns large scales, so a violation of the last row (coefficients 1,
// like a feasibility cut) shrinks in working units.
DenseLp feasibility_cut_lp() {
  return DenseLp{4, 4, {1, 2, 3, 1.5}, {{0.002, 0.002, 0, 0.001}, {0, 0.002, 0.003, 0.001}, {1, 1, 1, 1}, {1, 1, 1, 0}},
                 {-kFree, -kFree, 240, 100}, {1, 1, kFree, kFree}, {0, 0, 0, 0}, {kFree, kFree, kFree, kFree}};
}

// An optimality cut theta + 4e4 x1 + 5e4 x2 >= 1.2e7 gives x1, x2 and the first row small scales,
// so their reduced costs shrink in working units.
DenseLp optimality_cut_lp() {
  return DenseLp{3, 2, {100, 120, 1}, {{1, 1, 0}, {4e4, 5e4, 1}}, {-kFree, 1.2e7}, {200, kFree}, {0, 0, 0},
                 {kFree, kFree, 1e8}};
}

// Each change leaves the first optimal basis off by a little in true units: a row limit 8e-6
// above the activity, a reduced cost of -5e-4, a row dual of +5e-4 (x2 basic sets it; x1 keeps
// its reduced cost).
void raise_last_limit(DenseLp& lp, const ProblemSlot& slot) { lp.row_lo.back() = -slot.xn[slot.nb] + 8e-6; }
void undercut_first_cost(DenseLp& lp, const ProblemSlot& slot) { lp.c[0] -= slot.rc[1] + 5e-4; }
void flip_first_row_dual(DenseLp& lp, const ProblemSlot& slot) {
  const double shift = 5e-4 - slot.pi[2];
  lp.c[0] += shift;
  lp.c[1] += shift;
}

struct WarmCase {
  const char* name;
  DenseLp (*build)();
  void (*change)(DenseLp&, const ProblemSlot&);
};

class TrueUnits : public ::testing::TestWithParam<WarmCase> {};

TEST_P(TrueUnits, WarmSolveMeetsTheTolerancesInTrueUnits) {
  DenseLp lp = GetParam().build();
  Harness h;
  load_slot(lp, h.slot);
  ASSERT_EQ(h.solve("cold"), 0);
  GetParam().change(lp, h.slot);
  load_slot(lp, h.slot);  // keeps hs: the old optimal basis starts the warm solve
  ASSERT_EQ(h.solve("warm"), 0);
  EXPECT_LE(worst_violation(h.slot), 1.0);
  const Reference ref = brute_force(lp);
  ASSERT_EQ(ref.outcome, Outcome::optimal);
  EXPECT_NEAR(h.slot.obj, ref.objective, 1e-9 * std::fabs(ref.objective));
}

INSTANTIATE_TEST_SUITE_P(Cases, TrueUnits,
                         ::testing::Values(WarmCase{"row_limit", feasibility_cut_lp, raise_last_limit},
                                           WarmCase{"column_cost", optimality_cut_lp, undercut_first_cost},
                                           WarmCase{"row_dual", optimality_cut_lp, flip_first_row_dual}),
                         [](const auto& info) { return std::string(info.param.name); });

// A master: 8 first-stage rows with coefficients 1, 20 cut rows theta + g.x >= G with g of 1e4 to
// 1e5 and G near 1.2e7, theta >= -1e9; a fifth of the cut coefficients are round-off residue from
// `residue` down to 1e-15 of it (none when `residue` is 0, with the same draws otherwise).
DenseLp master_lp(std::mt19937& rng, double residue) {
  std::uniform_real_distribution<double> u(0.0, 1.0);
  DenseLp lp{13, 28, {}, std::vector<std::vector<double>>(28, std::vector<double>(13, 0.0)), {}, {}, {}, {}};
  for (int j = 0; j < 12; ++j) lp.c.push_back(10.0 + 100.0 * u(rng));
  lp.c.push_back(1.0);
  for (int i = 0; i < lp.m; ++i) {
    const bool cut = i >= 8;
    for (int j = 0; j < 12; ++j) {
      const double g = 1e4 + 1e5 * u(rng), pick = u(rng), tiny = residue * std::pow(10.0, -15.0 * u(rng));
      lp.a[i][j] = cut ? (pick < 0.2 ? tiny : g) : (pick < 0.3 ? 1.0 : 0.0);
    }
    lp.a[i][12] = cut ? 1.0 : 0.0;
    lp.row_lo.push_back(cut ? 1.2e7 * (0.9 + 0.2 * u(rng)) : -kFree);
    lp.row_up.push_back(cut ? kFree : 4.0 + std::floor(20.0 * u(rng)));
  }
  lp.lo.assign(13, 0.0);
  lp.lo[12] = -1e9;
  lp.up.assign(13, kFree);
  return lp;
}

class CutResidue : public ::testing::TestWithParam<double> {};

// The residue moves the optimum far less than the tolerance: the master without it is the
// reference.
TEST_P(CutResidue, MasterSolvesColdToTheOptimumWithoutTheResidue) {
  std::mt19937 rng(5), twin(5);
  for (int t = 0; t < 25; ++t) {
    Harness h, clean;
    h.options.ival[kIterationLimit] = 2000;
    load_slot(master_lp(rng, GetParam()), h.slot);
    load_slot(master_lp(twin, 0.0), clean.slot);
    ASSERT_EQ(h.solve("cold"), 0) << t;
    ASSERT_EQ(clean.solve("cold"), 0) << t;
    EXPECT_LE(worst_violation(h.slot), 1.0) << t;
    EXPECT_NEAR(h.slot.obj, clean.slot.obj, 1e-9 * std::fabs(clean.slot.obj)) << t;
  }
}

INSTANTIATE_TEST_SUITE_P(Residue, CutResidue, ::testing::Values(1e-15, 1e-12));

// min x1 + 2 x2 with coef (x1 + x2) >= coef + excess and x1 + x2 <= 1, x >= 0: feasible within
// the tolerance 1e-6 in the rows' own units exactly when x1 + x2 can lie within 1e-6 of 1 and
// within 1e-6 / coef of 1 + excess / coef, however the scaling stretches the first row. With coef
// 1e-3 and excess 2e-9 the scaled row asks for more than the second row allows, which once made
// the primal method cycle between two bases for hundreds of iterations.
struct ScaledRowCase {
  const char* name;
  double coef;
  double excess;
  int inform;
};

class ScaledRow : public ::testing::TestWithParam<ScaledRowCase> {};

TEST_P(ScaledRow, FeasibilityIsJudgedInTheRowsOwnUnits) {
  const ScaledRowCase& c = GetParam();
  const DenseLp lp{2, 2, {1, 2}, {{c.coef, c.coef}, {1, 1}}, {c.coef + c.excess, -kFree}, {kFree, 1}, {0, 0}, {kFree, kFree}};
  for (const int crash : {0, 3}) {
    Harness h;
    h.options.ival[kCrashOption] = crash;
    load_slot(lp, h.slot);
    ASSERT_EQ(h.solve("cold"), c.inform) << crash;
    EXPECT_LT(h.state.counters.iterations, 10) << crash;
    if (c.inform == 0) {
      EXPECT_LE(kkt_error(h.slot).primal, 1e-6) << crash;
      EXPECT_LE(h.slot.obj, 1.0 + 1e-6) << crash;  // x = (1, 0) is feasible within the tolerance
      EXPECT_EQ(h.slot.ninf, 0) << crash;
    } else {
      EXPECT_GT(h.slot.sinf, 1e-6) << crash;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, ScaledRow,
                         ::testing::Values(ScaledRowCase{"cycling_pair", 1e-3, 2e-9, 0},
                                           ScaledRowCase{"tiny_row_within", 1e-6, 5e-7, 0},
                                           ScaledRowCase{"tiny_row_beyond", 1e-6, 2e-6, 1},
                                           ScaledRowCase{"huge_row_within", 1e6, 0.5, 0},
                                           ScaledRowCase{"huge_row_beyond", 1e6, 2.5, 1}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tarvo::lp::test
