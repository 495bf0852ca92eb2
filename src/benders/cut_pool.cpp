#include <algorithm>

#include "benders/master_cuts.h"

namespace tarvo::benders {
namespace {

constexpr int kFree = -1;

// Where column j's entries in cut rows 1..nzrows stand one after the other, as the decomposition
// stores them, or 0.
int cut_row_run(const lp::ProblemSlot& master, const CutRows& rows, int j) {
  const int first_row = rows.first_stage_rows + 1;
  for (int k = master.ka[j]; k < master.ka[j + 1]; ++k) {
    if (master.ha[k] != first_row) continue;
    if (k + rows.nzrows > master.ka[j + 1]) return 0;
    for (int r = 2; r <= rows.nzrows; ++r) {
      if (master.ha[k + r - 1] != first_row + r - 1) return 0;
    }
    return k;
  }
  return 0;
}

// Position of column j's entry in cut row r (1..nzrows) of the master, or 0 when it has none; a
// column laid out otherwise than the decomposition lays it out is searched.
int cut_position(const lp::ProblemSlot& master, const CutRows& rows, int j, int r) {
  const int row = rows.first_stage_rows + r;
  const int at = rows.pool.cut_at[j];
  if (at != 0) return at + r - 1;
  for (int k = master.ka[j]; k < master.ka[j + 1]; ++k) {
    if (master.ha[k] == row) return k;
  }
  return 0;
}

// How many cut rows each group holds, into pool.group_rows.
void count_group_rows(CutPool& pool, int nzrows) {
  std::fill(pool.group_rows.begin(), pool.group_rows.end(), 0);
  for (int r = 1; r <= nzrows; ++r) {
    if (pool.holder[r] > 0) ++pool.group_rows[pool.holder[r]];
  }
}

// The group columns' entries: each its entry in THETASUM (-1), then a 1 in every cut row that
// holds one of its group's cuts, in row order.
void lay_out_group_columns(lp::ProblemSlot& master, CutRows& rows) {
  CutPool& pool = rows.pool;
  count_group_rows(pool, rows.nzrows);
  const int link = master.m;
  int p = master.ka[pool.theta + 1];
  for (int g = 1; g <= pool.groups; ++g) {
    const int column = pool.theta + g;
    master.ka[column] = p;
    master.ha[p] = link;
    master.a[p] = -1.0;
    const int count = pool.group_rows[g];
    pool.group_rows[g] = p + 1;  // from here on: the next free position of the column
    p += 1 + count;
  }
  master.ka[master.n + 1] = p;
  master.ne = p - 1;
  for (int r = 1; r <= rows.nzrows; ++r) {
    const int g = pool.holder[r];
    if (g <= 0) continue;
    const int at = pool.group_rows[g]++;
    master.ha[at] = rows.first_stage_rows + r;
    master.a[at] = 1.0;
  }
}

// Rows whose cuts were tight at the last master solution are marked with the iteration that
// produced it.
void note_tight_rows(CutRows& rows, int last_iteration) {
  CutPool& pool = rows.pool;
  for (int r = 1; r <= rows.nzrows; ++r) {
    if (pool.holder[r] != kFree && rows.slack[r] <= 0.0) pool.tight_at[r] = last_iteration;
  }
}

// Fills pool.taken[1..wanted] with the rows the new cuts take; returns how many it found.
int choose_rows(CutRows& rows, int wanted) {
  CutPool& pool = rows.pool;
  int found = 0;
  for (int r = 1; r <= rows.nzrows && found < wanted; ++r) {
    if (pool.holder[r] == kFree) pool.taken[++found] = r;
  }
  if (found == wanted) return found;
  // The rest from the slack cuts: slack the longest first, then the slackest, then the lowest row.
  int slack_rows = found;
  for (int r = 1; r <= rows.nzrows; ++r) {
    if (pool.holder[r] != kFree && rows.slack[r] > 0.0) pool.taken[++slack_rows] = r;
  }
  const auto first = pool.taken.begin() + found + 1;
  std::sort(first, pool.taken.begin() + slack_rows + 1, [&](int a, int b) {
    if (pool.tight_at[a] != pool.tight_at[b]) return pool.tight_at[a] < pool.tight_at[b];
    if (rows.slack[a] != rows.slack[b]) return rows.slack[a] > rows.slack[b];
    return a < b;
  });
  count_group_rows(pool, rows.nzrows);
  for (int i = found + 1; i <= slack_rows && found < wanted; ++i) {
    const int r = pool.taken[i];
    const int g = pool.holder[r];
    if (g > 0 && pool.group_rows[g] == 1 && !pool.gets_cut[g]) continue;
    if (g > 0) --pool.group_rows[g];
    pool.taken[++found] = r;
  }
  return found;
}

// The cut over every master column into pool.gus; returns it with its constant and variance.
Cut full_cut(CutPool& pool, const PoolCut& cut, int n) {
  for (int j = 1; j < pool.theta; ++j) pool.gus[j] = cut.gradient[j];
  for (int j = pool.theta; j <= n; ++j) pool.gus[j] = 0.0;
  if (cut.group == 0) {
    pool.gus[pool.theta] = cut.theta_coefficient;
  } else {
    pool.gus[pool.theta + cut.group] = 1.0;
  }
  return Cut{pool.gus.data(), cut.gls, cut.variance};
}

// Writes the cut's coefficients of the first-stage columns and THETA into cut row r (the group
// columns are laid out already) and its bounds. False when a nonzero has no position.
bool store_pool_cut(lp::ProblemSlot& master, const CutRows& rows, const Cut& cut, int r) {
  for (int j = 1; j <= rows.pool.theta; ++j) {
    const int p = cut_position(master, rows, j, r);
    if (p != 0) {
      master.a[p] = cut.gus[j];
    } else if (cut.gus[j] != 0.0) {
      return false;
    }
  }
  set_cut_limit(master, rows.first_stage_rows + r, cut.gls);
  return true;
}

}  // namespace

void allocate_cut_pool(CutRows& rows, const lp::ProblemSlot& master, int theta, int groups) {
  CutPool& pool = rows.pool;
  pool.groups = groups;
  pool.theta = theta;
  pool.holder.assign(rows.nzrows + 1, kFree);
  pool.tight_at.assign(rows.nzrows + 1, 0);
  pool.source.assign(rows.nzrows + 1, 0);
  pool.taken.assign(rows.nzrows + 1, 0);
  pool.group_rows.assign(groups + 1, 0);
  pool.gets_cut.assign(groups + 1, 0);
  pool.gus.assign(master.n + 1, 0.0);
  pool.cut_at.assign(theta + 1, 0);
  for (int j = 1; j <= theta; ++j) pool.cut_at[j] = cut_row_run(master, rows, j);
}

CutResult add_pool_cuts(lp::ProblemSlot& master, CutRows& rows, const PoolCut* cuts, int count,
                        int& iterations, Units& units, const RunParams& params, int log_unit) {
  CutPool& pool = rows.pool;
  iterations += 1;
  cut_row_slacks(master, rows);
  note_tight_rows(rows, iterations - 1);
  for (int i = 0; i < count; ++i) pool.gets_cut[cuts[i].group] = cuts[i].group > 0;
  const int found = choose_rows(rows, count);
  for (int i = 0; i < count; ++i) pool.gets_cut[cuts[i].group] = 0;
  if (found < count) return rows_exhausted(units, log_unit, iterations);
  for (int i = 0; i < count; ++i) {
    const int r = pool.taken[i + 1];
    pool.holder[r] = cuts[i].group;
    pool.source[r] = iterations;
    pool.tight_at[r] = iterations;
    rows.variance[r] = cuts[i].variance;
  }
  lay_out_group_columns(master, rows);
  for (int i = 0; i < count; ++i) {
    const int r = pool.taken[i + 1];
    const Cut cut = full_cut(pool, cuts[i], master.n);
    if (params.ibug >= 5) {
      trace_stored_cut(units, log_unit, master, cut, iterations, r, rows.slack[r], params.tolw);
    }
    if (!store_pool_cut(master, rows, cut, r)) return CutResult::missing_location;
  }
  return CutResult::stored;
}

}  // namespace tarvo::benders
