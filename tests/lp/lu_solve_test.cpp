#include <gtest/gtest.h>

#include <numeric>

#include "lp/lu_test_support.h"

namespace tarvo::lp::test {
namespace {

// The same right-hand side listed with its nonzeros only (a sparse solve searches the reach) and
// with every index listed (the pattern is too full for that, so the solve sweeps).
void solve_both_ways(LuFactors& lu, const std::vector<double>& rhs, bool transpose,
                     SparseVector& sparse, SparseVector& swept) {
  sparse = to_sparse(rhs);
  swept = to_sparse(rhs);
  swept.count = swept.size;
  std::iota(swept.index.begin(), swept.index.end(), 0);
  for (SparseVector* v : {&sparse, &swept}) transpose ? lu_btran(lu, *v) : lu_ftran(lu, *v, false);
}

// Identical results whichever way a solve goes, before and after updates.
TEST(LuSolve, SparseAndSweptSolvesAreIdentical) {
  struct Case {
    int m;
    double density;
    double logicals;
    int updates;
    unsigned seed;
  };
  const Case cases[] = {
      {50, 0.02, 0.5, 0, 1}, {300, 0.01, 0.3, 0, 2}, {300, 0.005, 0.7, 40, 3}, {200, 0.02, 0.0, 20, 4},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << "m=" << c.m << " seed=" << c.seed);
    std::mt19937 rng(c.seed);
    const Matrix a = random_matrix(c.m, 2 * c.m, c.density, rng);
    std::vector<int> head = random_head(a, c.logicals, rng);
    LuFactors lu;
    LuReport report;
    LuSettings settings;
    ASSERT_EQ(factorize(lu, a, head, settings, report), LuStatus::ok);
    for (int done = 0; done < c.updates;) {
      const int entering = std::uniform_int_distribution<int>(c.m, a.n - 1)(rng);
      if (std::find(head.begin(), head.end(), entering) != head.end()) continue;
      std::vector<double> column(c.m, 0.0);
      for (int e = a.col_start[entering]; e < a.col_start[entering + 1]; ++e) {
        column[a.row_index[e]] = a.value[e];
      }
      SparseVector x = to_sparse(column);
      lu_ftran(lu, x, true);
      int p = x.index[0];
      for (int k = 1; k < x.count; ++k) {
        if (std::fabs(x.value[x.index[k]]) > std::fabs(x.value[p])) p = x.index[k];
      }
      if (lu_update(lu, p, settings) != LuStatus::ok) break;
      head[p] = entering;
      ++done;
    }
    for (int trial = 0; trial < 20; ++trial) {
      const bool transpose = trial % 2 == 1;
      SparseVector sparse;
      SparseVector swept;
      solve_both_ways(lu, random_rhs(c.m, 1 + trial % 3, rng), transpose, sparse, swept);
      EXPECT_TRUE(pattern_is_sound(sparse));
      EXPECT_TRUE(pattern_is_sound(swept));
      for (int i = 0; i < c.m; ++i) ASSERT_EQ(sparse.value[i], swept.value[i]) << "index " << i;
      EXPECT_EQ(sparse.count, swept.count);
    }
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

}  // namespace
}  // namespace tarvo::lp::test
