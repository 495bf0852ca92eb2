// The LU factors: factorization (with repair of singular bases), solves that go sparse or sweep,
// and updates, all against a dense elimination of the current basis.
#include <gtest/gtest.h>

#include "lp/lu_test_support.h"

namespace tarvo::lp::test {
namespace {

struct BasisCase {
  int m;
  double density;      // extra entries per column, as a fraction of m
  double logicals;     // fraction of positions holding logicals
  double density_tol;  // 0 forces the dense nucleus at once, 2 keeps it sparse throughout
  unsigned seed;
};

// ftran and btran against the dense solve, for sparse and dense right-hand sides.
TEST(LuFactorize, SolvesAgreeWithDenseElimination) {
  const BasisCase cases[] = {
      {1, 0.0, 0.0, 0.5, 1},    {1, 0.0, 1.0, 0.5, 2},    {2, 0.5, 0.0, 0.5, 3},
      {5, 0.4, 0.2, 0.5, 4},    {12, 0.3, 0.0, 0.0, 5},   {12, 0.3, 0.0, 2.0, 5},
      {40, 0.1, 0.3, 0.5, 6},   {40, 0.5, 0.0, 0.5, 7},   {80, 0.05, 0.5, 0.5, 8},
      {150, 0.02, 0.1, 0.5, 9}, {150, 0.2, 0.0, 0.3, 10}, {300, 0.01, 0.3, 0.5, 11},
      {300, 0.03, 0.0, 0.5, 12}, {300, 0.01, 0.95, 0.5, 13},
  };
  for (const BasisCase& c : cases) {
    SCOPED_TRACE(testing::Message() << "m=" << c.m << " seed=" << c.seed);
    std::mt19937 rng(c.seed);
    const Matrix a = random_matrix(c.m, c.m + 5, c.density, rng);
    std::vector<int> head = random_head(a, c.logicals, rng);
    LuSettings settings;
    settings.density_tol = c.density_tol;
    LuFactors lu;
    LuReport report;
    ASSERT_EQ(factorize(lu, a, head, settings, report), LuStatus::ok);
    EXPECT_EQ(report.rank, c.m);
    EXPECT_TRUE(report.replaced_positions.empty());
    EXPECT_EQ(report.factor_tol_used, settings.factor_tol);
    EXPECT_EQ(report.length_u, lu_length_u(lu));
    for (const int nonzeros : {1, 3, c.m}) {
      for (const bool transpose : {false, true}) {
        EXPECT_LT(solve_error(lu, a, head, random_rhs(c.m, nonzeros, rng), transpose), 1e-9) << transpose;
      }
    }
  }
}

struct SingularCase {
  const char* name;
  int m;
  // Columns of A by (row, value); head names column k >= 0, or the logical of row -k-1.
  std::vector<std::vector<std::pair<int, double>>> columns;
  std::vector<int> head;
  int rank;
};

TEST(LuFactorize, SingularBasesAreRepairedWithLogicals) {
  const SingularCase cases[] = {
      {"empty column", 3, {{{0, 1.0}}, {}, {{2, 2.0}}}, {0, 1, 2}, 2},
      {"repeated column", 3, {{{0, 1.0}, {1, 2.0}}, {{2, 1.0}}}, {0, 0, 1}, 2},
      {"repeated logical", 3, {{{0, 1.0}, {1, 1.0}}}, {0, -2, -2}, 2},
      {"sum of two columns", 4,
       {{{0, 1.0}, {1, 2.0}}, {{1, 1.0}, {2, 3.0}}, {{0, 1.0}, {1, 3.0}, {2, 3.0}}, {{3, 1.0}}},
       {0, 1, 2, 3}, 3},
      {"nearly dependent", 3,
       {{{0, 1.0}, {1, 1.0}}, {{0, 1.0}, {1, 1.0 + 1e-13}}, {{2, 4.0}}}, {0, 1, 2}, 2},
      {"zero row", 3, {{{0, 1.0}, {2, 1.0}}, {{0, 2.0}, {2, 5.0}}, {{0, 1.0}}}, {0, 1, 2}, 2},
      {"dense rank two", 4,
       {{{0, 1.0}, {1, 2.0}, {2, 3.0}, {3, 4.0}},
        {{0, 2.0}, {1, 1.0}, {2, 1.0}, {3, 3.0}},
        {{0, 3.0}, {1, 3.0}, {2, 4.0}, {3, 7.0}},
        {{0, -1.0}, {1, 1.0}, {2, 2.0}, {3, 1.0}}},
       {0, 1, 2, 3}, 2},
  };
  for (const SingularCase& c : cases) {
    for (const double density_tol : {0.0, 2.0}) {
      SCOPED_TRACE(testing::Message() << c.name << " density_tol=" << density_tol);
      Matrix a;
      a.m = c.m;
      for (const auto& column : c.columns) add_column(a, column);
      std::vector<int> head = c.head;
      for (int& k : head) k = k >= 0 ? k : a.n - k - 1;
      LuSettings settings;
      settings.density_tol = density_tol;
      settings.singularity_tol = 1e-11;
      LuFactors lu;
      LuReport report;
      ASSERT_EQ(factorize(lu, a, head, settings, report), LuStatus::singular_repaired);
      EXPECT_EQ(report.rank, c.rank);
      EXPECT_LT(report.factor_tol_used, settings.factor_tol) << "a singular basis is retried";
      ASSERT_EQ(static_cast<int>(report.replaced_positions.size()), c.m - c.rank);
      for (const int p : report.replaced_positions) EXPECT_GE(head[p], a.n);
      std::mt19937 rng(7);
      EXPECT_LT(solve_error(lu, a, head, random_rhs(c.m, c.m, rng), false), 1e-9);
    }
  }
}

TEST(LuFactorize, RejectsInvalidInput) {
  struct Case {
    const char* name;
    std::vector<std::pair<int, double>> column;
    std::vector<int> head;
    int bad_position;
    int bad_element;
  };
  const Case cases[] = {
      {"row out of range", {{0, 1.0}, {5, 1.0}}, {0, 2}, 0, 1},
      {"repeated row", {{1, 1.0}, {1, 2.0}}, {1, 0}, 1, 1},
      {"variable out of range", {{0, 1.0}}, {0, 3}, 1, -1}, {"negative variable", {{0, 1.0}}, {-1, 0}, 0, -1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Matrix a;
    a.m = 2;
    add_column(a, c.column);
    std::vector<int> head = c.head;
    LuFactors lu;
    LuReport report;
    EXPECT_EQ(factorize(lu, a, head, LuSettings{}, report), LuStatus::invalid_input);
    EXPECT_EQ(report.bad_position, c.bad_position);
    EXPECT_EQ(report.bad_element, c.bad_element);
  }
}

TEST(SparseVector, OperationsKeepThePattern) {
  struct Case {
    const char* name;
    std::vector<std::pair<int, double>> sets;  // applied in order with sparse_set
    double drop;                                // then the pattern is rebuilt with this drop
    int count_before_rebuild;
    int count_after_rebuild;
  };
  const Case cases[] = {
      {"distinct", {{0, 1.0}, {3, -2.0}}, 0.0, 2, 2}, {"overwrite", {{2, 1.0}, {2, 5.0}}, 0.0, 1, 1},
      {"set to zero stays listed", {{2, 1.0}, {2, 0.0}, {2, 4.0}}, 0.0, 1, 1},
      {"zero never listed", {{1, 0.0}}, 0.0, 0, 0},
      {"rebuild drops small", {{0, 1e-12}, {4, 3.0}}, 1e-10, 2, 1},
      {"rebuild drops zeros", {{0, 1.0}, {0, 0.0}, {1, 2.0}}, 0.0, 2, 1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    SparseVector v;
    sparse_resize(v, 5);
    for (const auto& [i, x] : c.sets) sparse_set(v, i, x);
    EXPECT_EQ(v.count, c.count_before_rebuild);
    EXPECT_TRUE(pattern_is_sound(v));
    sparse_rebuild_pattern(v, c.drop);
    EXPECT_EQ(v.count, c.count_after_rebuild);
    EXPECT_TRUE(pattern_is_sound(v));
    sparse_clear(v);
    EXPECT_EQ(v.count, 0);
    for (const double x : v.value) EXPECT_EQ(x, 0.0);
  }
}

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

struct SequenceCase { int m; double density; double logicals; int steps; int max_updates; unsigned seed; };

// Random basis changes through lu_update, checked against the dense solve of the current basis;
// a refused update is answered by a fresh factorization, as the simplex would.
TEST(LuUpdate, LongSequencesMatchFreshFactorizations) {
  const SequenceCase cases[] = {
      {1, 0.0, 0.0, 10, 100, 1},   {6, 0.3, 0.5, 60, 100, 2},    {30, 0.1, 0.6, 200, 100, 3},
      {60, 0.05, 0.3, 300, 100, 4}, {60, 0.2, 0.0, 200, 7, 5},    {120, 0.03, 0.8, 400, 100, 6},
      {200, 0.02, 0.0, 40, 100, 7},
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
      for (const bool transpose : {false, true}) {
        ASSERT_LT(solve_error(lu, a, head, random_rhs(c.m, 1 + step % 3, rng), transpose), 1e-8) << "step " << step;
      }
    }
    EXPECT_GT(accepted, c.steps / 4);
  }
}

// Updates that must be refused, leaving the factors of the old basis intact.
TEST(LuUpdate, RefusesAndKeepsTheOldFactors) {
  // The entering variable copies the one in position 0, so replacing position 1 is singular.
  const struct Case {
    const char* name;
    bool spike;  // the entering column went through ftran
    int position;
    bool no_updates;
    LuRefusal why;
  } cases[] = {
      {"no spike", false, 1, false, LuRefusal::no_spike},
      {"position out of range", true, 20, false, LuRefusal::bad_position},
      {"no updates allowed", true, 1, true, LuRefusal::too_many_updates},
      {"dependent entering column", true, 1, false, LuRefusal::singular},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::mt19937 rng(11);
    const Matrix a = random_matrix(20, 40, 0.15, rng);
    std::vector<int> head = random_head(a, 0.3, rng);
    LuSettings settings;
    if (c.no_updates) settings.max_updates = 0;
    LuFactors lu;
    LuReport report;
    ASSERT_EQ(factorize(lu, a, head, settings, report), LuStatus::ok);
    SparseVector x = column_of(a, head[0]);
    if (c.spike) lu_ftran(lu, x, true);
    EXPECT_EQ(lu_update(lu, c.position, settings), LuStatus::refactor_needed);
    EXPECT_EQ(lu_last_refusal(lu), c.why);
    EXPECT_LT(solve_error(lu, a, head, random_rhs(20, 20, rng), false), 1e-9);
  }
}

}  // namespace
}  // namespace tarvo::lp::test
