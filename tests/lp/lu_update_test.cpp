#include <gtest/gtest.h>

#include "lp/lu_test_support.h"

namespace tarvo::lp::test {
namespace {

// The leaving position a simplex could choose for this ftran result: a random one among those
// whose weight is at least a tenth of the largest.
int leaving_position(const SparseVector& x, std::mt19937& rng) {
  double big = 0.0;
  for (int k = 0; k < x.count; ++k) big = std::max(big, std::fabs(x.value[x.index[k]]));
  std::vector<int> eligible;
  for (int k = 0; k < x.count; ++k) {
    if (std::fabs(x.value[x.index[k]]) >= 0.1 * big) eligible.push_back(x.index[k]);
  }
  return eligible[std::uniform_int_distribution<int>(0, static_cast<int>(eligible.size()) - 1)(rng)];
}

SparseVector column_of(const Matrix& a, int k) {
  std::vector<double> dense(a.m, 0.0);
  if (k >= a.n) {
    dense[k - a.n] = 1.0;
  } else {
    for (int e = a.col_start[k]; e < a.col_start[k + 1]; ++e) dense[a.row_index[e]] = a.value[e];
  }
  return to_sparse(dense);
}

struct SequenceCase {
  int m;
  double density;
  double logicals;
  int steps;
  int max_updates;
  unsigned seed;
};

// Random basis changes through lu_update, checked against the dense solve of the current basis;
// a refused update is answered by a fresh factorization, as the simplex would.
TEST(LuUpdate, LongSequencesMatchFreshFactorizations) {
  const SequenceCase cases[] = {
      {1, 0.0, 0.0, 10, 100, 1},   {6, 0.3, 0.5, 60, 100, 2},    {30, 0.1, 0.6, 200, 100, 3},
      {60, 0.05, 0.3, 300, 100, 4}, {60, 0.2, 0.0, 200, 7, 5},    {120, 0.03, 0.8, 400, 100, 6},
  };
  for (const SequenceCase& c : cases) {
    SCOPED_TRACE(testing::Message() << "m=" << c.m << " seed=" << c.seed);
    std::mt19937 rng(c.seed);
    const Matrix a = random_matrix(c.m, 3 * c.m, c.density, rng);
    std::vector<int> head = random_head(a, c.logicals, rng);
    LuSettings settings;
    settings.max_updates = c.max_updates;
    LuFactors lu;
    LuReport report;
    ASSERT_EQ(factorize(lu, a, head, settings, report), LuStatus::ok);
    int accepted = 0;
    for (int step = 0; step < c.steps; ++step) {
      const int entering = std::uniform_int_distribution<int>(0, a.n + a.m - 1)(rng);
      if (std::find(head.begin(), head.end(), entering) != head.end()) continue;
      SparseVector x = column_of(a, entering);
      lu_ftran(lu, x, true);
      if (x.count == 0) continue;
      const int p = leaving_position(x, rng);
      const int before = lu_update_count(lu);
      const LuStatus status = lu_update(lu, p, settings);
      head[p] = entering;
      if (status == LuStatus::ok) {
        EXPECT_EQ(lu_update_count(lu), before + 1);
        ++accepted;
      } else {
        ASSERT_EQ(status, LuStatus::refactor_needed);
        EXPECT_NE(lu_last_refusal(lu), LuRefusal::none);
        const LuStatus fresh = factorize(lu, a, head, settings, report);
        ASSERT_TRUE(fresh == LuStatus::ok || fresh == LuStatus::singular_repaired);
      }
      EXPECT_LE(lu_update_count(lu), c.max_updates);
      const std::vector<double> b = dense_basis(a, head);
      for (const bool transpose : {false, true}) {
        const std::vector<double> rhs = random_rhs(c.m, 1 + step % 3, rng);
        const std::vector<double> expected = dense_solve(b, c.m, rhs, transpose);
        ASSERT_FALSE(expected.empty());
        SparseVector y = to_sparse(rhs);
        transpose ? lu_btran(lu, y) : lu_ftran(lu, y, false);
        EXPECT_TRUE(pattern_is_sound(y));
        ASSERT_LT(max_difference(y.value, expected), 1e-8) << "step " << step;
      }
    }
    EXPECT_GT(accepted, c.steps / 4);
  }
}

// Updates that must be refused, leaving the factors of the old basis intact.
TEST(LuUpdate, RefusesAndKeepsTheOldFactors) {
  enum class Setup { no_spike, bad_position, max_updates_zero, entering_copies_other };
  struct Case {
    const char* name;
    Setup setup;
    LuRefusal why;
  };
  const Case cases[] = {
      {"no spike", Setup::no_spike, LuRefusal::no_spike},
      {"position out of range", Setup::bad_position, LuRefusal::bad_position},
      {"no updates allowed", Setup::max_updates_zero, LuRefusal::too_many_updates},
      {"dependent entering column", Setup::entering_copies_other, LuRefusal::singular},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::mt19937 rng(11);
    const Matrix a = random_matrix(20, 40, 0.15, rng);
    std::vector<int> head = random_head(a, 0.3, rng);
    LuSettings settings;
    if (c.setup == Setup::max_updates_zero) settings.max_updates = 0;
    LuFactors lu;
    LuReport report;
    ASSERT_EQ(factorize(lu, a, head, settings, report), LuStatus::ok);
    // The entering variable copies the one in position 0, so replacing position 1 is singular.
    SparseVector x = column_of(a, head[0]);
    if (c.setup != Setup::no_spike) lu_ftran(lu, x, true);
    const int position = c.setup == Setup::bad_position ? 20 : 1;
    EXPECT_EQ(lu_update(lu, position, settings), LuStatus::refactor_needed);
    EXPECT_EQ(lu_last_refusal(lu), c.why);
    const std::vector<double> rhs = random_rhs(20, 20, rng);
    const std::vector<double> expected = dense_solve(dense_basis(a, head), 20, rhs, false);
    SparseVector y = to_sparse(rhs);
    lu_ftran(lu, y, false);
    EXPECT_LT(max_difference(y.value, expected), 1e-9);
  }
}

}  // namespace
}  // namespace tarvo::lp::test
