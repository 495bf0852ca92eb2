// Cuts stored in place into the master's reserved rows: which row a cut takes, what the row then
// reads, and how the supply of rows ends.
#include <gtest/gtest.h>

#include <vector>

#include "benders/master_cuts.h"
#include "input/decompose.h"

namespace tarvo::benders {
namespace {

constexpr int kFirstStageRows = 2;

// A master of two first-stage columns and THETA, two first-stage rows and `nzrows` cut rows.
// Column 2 has no stored position in the cut rows (it has no coupling entry). `room` adds
// capacity for the columns and the row of cut groups.
lp::ProblemSlot small_master(int nzrows, int room = 0) {
  lp::ProblemSlot s;
  const int m = kFirstStageRows + nzrows;
  lp::allocate_slot(s, m + room, 3 + room, 3 * m + 2 * room);
  s.m = m;
  s.n = 3;
  s.nb = s.n + s.m;
  int k = 1;
  for (int j = 1; j <= 3; ++j) {
    s.ka[j] = k;
    s.ha[k] = 1, s.a[k++] = 1.0;
    if (j == 2) continue;
    for (int r = kFirstStageRows + 1; r <= m; ++r) s.ha[k] = r, s.a[k++] = (j == 3 ? 1.0 : 0.0);
  }
  s.ka[4] = k;
  s.ne = k - 1;
  for (int i = 1; i <= m; ++i) s.bl[s.n + i] = -lp::kInfiniteBound, s.bu[s.n + i] = lp::kInfiniteBound;
  return s;
}

double coefficient(const lp::ProblemSlot& s, int j, int row) {
  for (int k = s.ka[j]; k < s.ka[j + 1]; ++k) {
    if (s.ha[k] == row) return s.a[k];
  }
  return 0.0;
}

TEST(MasterCuts, CutsFillTheReservedRowsThenReplaceTheSlackest) {
  const int nzrows = 3;
  lp::ProblemSlot master = small_master(nzrows);
  CutRows rows;
  allocate_cut_rows(rows, kFirstStageRows, nzrows);
  Units units;
  RunParams params;
  int iterations = 0;
  const std::vector<double> gus = {0.0, -2.5, 0.0, 1.0};
  for (int i = 1; i <= nzrows; ++i) {
    const Cut cut{gus.data(), 10.0 * i, 0.5 * i};
    ASSERT_EQ(add_cut(master, rows, cut, iterations, units, params, 0), CutResult::stored);
    const int row = kFirstStageRows + i;
    EXPECT_EQ(coefficient(master, 1, row), -2.5);
    EXPECT_EQ(master.bu[master.n + row], -10.0 * i);  // the row reads >= gls
    EXPECT_EQ(rows.variance[i], 0.5 * i);
  }
  EXPECT_EQ(iterations, nzrows);

  // Slacks at the last master solution: rows 1 and 3 equally slack, row 2 tight. The fourth cut
  // goes into row 1 (ties keep the lowest row); row 3 keeps its cut.
  const double activity[] = {0.0, 15.0, 20.0, 35.0};
  for (int r = 1; r <= nzrows; ++r) master.xn[master.n + kFirstStageRows + r] = -activity[r];
  const std::vector<double> replacement = {0.0, 4.0, 0.0, 1.0};
  ASSERT_EQ(add_cut(master, rows, Cut{replacement.data(), 1.0e30, 7.0}, iterations, units, params, 0),
            CutResult::stored);
  EXPECT_EQ(coefficient(master, 1, kFirstStageRows + 1), 4.0);
  EXPECT_EQ(master.bu[master.n + kFirstStageRows + 1], -lp::kInfiniteBound);  // gls clamped
  EXPECT_EQ(coefficient(master, 1, kFirstStageRows + 3), -2.5);
  EXPECT_EQ(rows.variance[1], 7.0);

  // Every stored cut tight: nothing is overwritten and the count jumps to its end mark.
  for (int r = 1; r <= nzrows; ++r) {
    master.xn[master.n + kFirstStageRows + r] = master.bu[master.n + kFirstStageRows + r];
  }
  EXPECT_EQ(add_cut(master, rows, Cut{gus.data(), 99.0, 0.0}, iterations, units, params, 0),
            CutResult::rows_exhausted);
  EXPECT_EQ(iterations, 999999);
  EXPECT_EQ(coefficient(master, 1, kFirstStageRows + 1), 4.0);
}

TEST(MasterCuts, CoefficientsNeedAStoredPositionUnlessZero) {
  lp::ProblemSlot master = small_master(1);
  const int row = kFirstStageRows + 1;
  const std::vector<double> zero_on_column_2 = {0.0, 1.0, 0.0, 1.0};
  EXPECT_TRUE(store_cut_row(master, zero_on_column_2.data(), 3.0, row));
  const std::vector<double> nonzero_on_column_2 = {0.0, 1.0, 0.5, 1.0};
  EXPECT_FALSE(store_cut_row(master, nonzero_on_column_2.data(), 3.0, row));
  // Below minus infinity the row is left free.
  EXPECT_TRUE(store_cut_row(master, zero_on_column_2.data(), -2.0e20, row));
  EXPECT_EQ(master.bu[master.n + row], lp::kInfiniteBound);
  EXPECT_EQ(master.bl[master.n + row], -lp::kInfiniteBound);
}

// A master with three cut groups: cuts take free rows first, then the rows slack the longest
// (ties: the slackest), but never a group's last cut unless that group gets a new one; each group
// column holds its THETASUM entry and a 1 in the rows of its cuts, and THETA has coefficient 0 in
// a group cut and 1 in a cut on THETA itself. With every row tight nothing is stored.
TEST(MasterCuts, GroupCutsShareTheRows) {
  const int nzrows = 4, groups = 3, theta = 3;
  lp::ProblemSlot master = small_master(nzrows, groups + 1);
  input::Decomposition dec;
  dec.n1 = 2;
  dec.nzrows = nzrows;
  Units units;
  ASSERT_EQ(input::add_cut_groups(master, dec, groups, units, {}), input::InputStatus::ok);
  const int link = master.m;
  CutRows rows;
  allocate_cut_rows(rows, kFirstStageRows, nzrows);
  allocate_cut_pool(rows, master, theta, groups);
  RunParams params;
  int iterations = 0;
  const std::vector<double> gradient = {0.0, -1.5, 0.0};
  const auto cut = [&](int group, double gls) { return PoolCut{group, gradient.data(), 1.0, gls, 0.25}; };
  const auto store = [&](std::vector<PoolCut> cuts) {
    return add_pool_cuts(master, rows, cuts.data(), static_cast<int>(cuts.size()), iterations, units, params, 0);
  };
  const auto row_of = [](int r) { return kFirstStageRows + r; };
  ASSERT_EQ(store({cut(1, 10.0), cut(2, 20.0), cut(3, 30.0)}), CutResult::stored);
  ASSERT_EQ(store({cut(0, 40.0)}), CutResult::stored);
  EXPECT_EQ(iterations, 2);
  for (int r = 1; r <= 3; ++r) {
    EXPECT_EQ(coefficient(master, 1, row_of(r)), -1.5);
    EXPECT_EQ(coefficient(master, theta, row_of(r)), 0.0);
    EXPECT_EQ(master.bu[master.n + row_of(r)], -10.0 * r);
  }
  EXPECT_EQ(coefficient(master, theta, row_of(4)), 1.0);
  EXPECT_EQ(coefficient(master, theta, link), 1.0);

  // Slacks: rows 1, 2 and 4 slack (row 1 the most), row 3 tight. Group 3's new cut may not take
  // the last cut of group 1 or 2, so it takes row 4.
  const double slack[] = {0.0, 5.0, 1.0, 0.0, 2.0};
  for (int r = 1; r <= nzrows; ++r) {
    master.xn[master.n + row_of(r)] = master.bu[master.n + row_of(r)] - slack[r];
  }
  ASSERT_EQ(store({cut(3, 50.0)}), CutResult::stored);
  EXPECT_EQ(rows.pool.holder[4], 3);
  EXPECT_EQ(coefficient(master, theta, row_of(4)), 0.0);
  // New cuts for groups 1 and 2 take rows 1 and 2, slack since iteration 1.
  ASSERT_EQ(store({cut(2, 60.0), cut(1, 70.0)}), CutResult::stored);
  EXPECT_EQ(rows.pool.holder[1], 2);
  EXPECT_EQ(rows.pool.holder[2], 1);
  EXPECT_EQ(master.bu[master.n + row_of(1)], -60.0);
  const int group_of_row[] = {0, 2, 1, 3, 3};
  for (int g = 1; g <= groups; ++g) {
    EXPECT_EQ(coefficient(master, theta + g, link), -1.0);
    int entries = 1;
    for (int r = 1; r <= nzrows; ++r) {
      const bool held = group_of_row[r] == g;
      EXPECT_EQ(coefficient(master, theta + g, row_of(r)), held ? 1.0 : 0.0) << g << " " << r;
      entries += held;
    }
    EXPECT_EQ(master.ka[theta + g + 1] - master.ka[theta + g], entries);
  }
  EXPECT_EQ(master.ka[master.n + 1], master.ne + 1);

  for (int r = 1; r <= nzrows; ++r) master.xn[master.n + row_of(r)] = master.bu[master.n + row_of(r)];
  EXPECT_EQ(store({cut(3, 80.0)}), CutResult::rows_exhausted);
  EXPECT_EQ(iterations, 999999);
  EXPECT_EQ(master.bu[master.n + row_of(4)], -50.0);
}

}  // namespace
}  // namespace tarvo::benders
