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
    const std::vector<double> b = dense_basis(a, head);
    for (const int nonzeros : {1, 3, c.m}) {
      for (const bool transpose : {false, true}) {
        const std::vector<double> rhs = random_rhs(c.m, nonzeros, rng);
        const std::vector<double> expected = dense_solve(b, c.m, rhs, transpose);
        ASSERT_FALSE(expected.empty());
        SparseVector x = to_sparse(rhs);
        transpose ? lu_btran(lu, x) : lu_ftran(lu, x, false);
        EXPECT_TRUE(pattern_is_sound(x));
        EXPECT_LT(max_difference(x.value, expected), 1e-9) << "transpose=" << transpose;
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
      const std::vector<double> b = dense_basis(a, head);
      std::mt19937 rng(7);
      const std::vector<double> rhs = random_rhs(c.m, c.m, rng);
      const std::vector<double> expected = dense_solve(b, c.m, rhs, false);
      ASSERT_FALSE(expected.empty()) << "repaired basis is still singular";
      SparseVector x = to_sparse(rhs);
      lu_ftran(lu, x, false);
      EXPECT_LT(max_difference(x.value, expected), 1e-9);
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

}  // namespace
}  // namespace tarvo::lp::test
