// Sparse elimination of the active submatrix: singletons first (they cost no fill), then
// Markowitz pivots under a threshold, until the rest is dense enough for lu_factor_dense.
//
// Threshold: an entry a_ij may pivot when |a_ij| >= max_k |a_kj| / factor_tol, so that no
// multiplier of L exceeds factor_tol in magnitude. Among those, the Markowitz count
// (r_i - 1)(c_j - 1) is minimized over the first few columns and rows of lowest count.
#include <climits>
#include <cmath>

#include "lp/lu_internal.h"

namespace tarvo::lp {

namespace {

void list_remove(std::vector<int>& head, std::vector<int>& next, std::vector<int>& prev,
                 std::vector<int>& listed, int item) {
  const int count = listed[item];
  if (prev[item] >= 0) {
    next[prev[item]] = next[item];
  } else {
    head[count] = next[item];
  }
  if (next[item] >= 0) prev[next[item]] = prev[item];
  listed[item] = -1;
}

void list_insert(std::vector<int>& head, std::vector<int>& next, std::vector<int>& prev,
                 std::vector<int>& listed, int item, int count) {
  next[item] = head[count];
  prev[item] = -1;
  if (head[count] >= 0) prev[head[count]] = item;
  head[count] = item;
  listed[item] = count;
}

void unlist_col(LuBuild& b, int c) {
  if (b.col_listed[c] < 0) return;
  list_remove(b.col_head, b.col_next, b.col_prev, b.col_listed, c);
  --b.cols_live;
}

void unlist_row(LuBuild& b, int r) {
  if (b.row_listed[r] < 0) return;
  list_remove(b.row_head, b.row_next, b.row_prev, b.row_listed, r);
  --b.rows_live;
}

// Files the column under its present count; an emptied column leaves the lists for good.
void relist_col(LuBuild& b, int c) {
  const int count = b.cols.length[c];
  if (b.col_listed[c] == count) return;
  unlist_col(b, c);
  if (count == 0) return;
  list_insert(b.col_head, b.col_next, b.col_prev, b.col_listed, c, count);
  ++b.cols_live;
}

void relist_row(LuBuild& b, int r) {
  const int count = b.rows.length[r];
  if (b.row_listed[r] == count) return;
  unlist_row(b, r);
  if (count == 0) return;
  list_insert(b.row_head, b.row_next, b.row_prev, b.row_listed, r, count);
  ++b.rows_live;
}

void init_lists(LuBuild& b, int m) {
  std::fill_n(b.col_head.begin(), m + 1, -1);
  std::fill_n(b.row_head.begin(), m + 1, -1);
  std::fill_n(b.col_listed.begin(), m, -1);
  std::fill_n(b.row_listed.begin(), m, -1);
  std::fill_n(b.col_max.begin(), m, -1.0);
  b.cols_live = 0;
  b.rows_live = 0;
  for (int k = 0; k < m; ++k) {
    if (b.col_step[k] < 0) relist_col(b, k);
    if (b.row_step[k] < 0) relist_row(b, k);
  }
}

double column_max(LuBuild& b, int c) {
  if (b.col_max[c] < 0.0) {
    double big = 0.0;
    const int begin = b.cols.start[c];
    for (int k = begin; k < begin + b.cols.length[c]; ++k) {
      big = std::max(big, std::fabs(b.cols.value[k]));
    }
    b.col_max[c] = big;
  }
  return b.col_max[c];
}

double entry_value(const LuBuild& b, int r, int c) {
  return b.cols.value[lines_find(b.cols, c, r)];
}

// Takes a column with no usable entry out of the active submatrix; it stays unpivoted.
void reject_col(LuBuild& b, int c) {
  for (int k = 0; k < b.cols.length[c]; ++k) {
    const int i = b.cols.index[b.cols.start[c] + k];
    lines_erase_slot(b.rows, i, lines_find(b.rows, i, c));
    relist_row(b, i);
  }
  b.active_count -= b.cols.length[c];
  b.cols.length[c] = 0;
  unlist_col(b, c);
}

// Column j minus u times the multipliers of the pivot column c (rows stamped `stamp`).
void update_column(LuBuild& b, int j, int c, int r, double u, int stamp) {
  SparseLines& cols = b.cols;
  const int visit = ++b.stamp;
  for (int k = 0; k < cols.length[j];) {
    const int slot = cols.start[j] + k;
    const int i = cols.index[slot];
    if (b.mult_stamp[i] != stamp) {
      ++k;
      continue;
    }
    b.visit_stamp[i] = visit;
    const double v = cols.value[slot] - b.mult[i] * u;
    if (std::fabs(v) < kLuDropTol) {
      lines_erase_slot(cols, j, slot);
      lines_erase_slot(b.rows, i, lines_find(b.rows, i, j));
      --b.active_count;
    } else {
      cols.value[slot] = v;
      ++k;
    }
  }
  for (int k = 0; k < cols.length[c]; ++k) {
    const int i = cols.index[cols.start[c] + k];
    if (i == r || b.visit_stamp[i] == visit) continue;
    const double v = -b.mult[i] * u;
    if (std::fabs(v) < kLuDropTol) continue;
    lines_append_growing(cols, j, i, v);
    lines_append_growing(b.rows, i, j, 0.0);
    ++b.active_count;
  }
}

// One elimination step on the pivot (r, c): column c gives the multipliers of L, row r becomes a
// row of U, and every other column of row r is updated.
void eliminate(LuFactors& lu, int r, int c) {
  LuBuild& b = lu.build;
  SparseLines& cols = b.cols;
  SparseLines& rows = b.rows;
  const double pivot = entry_value(b, r, c);
  const int stamp = ++b.stamp;
  int multipliers = 0;
  for (int k = 0; k < cols.length[c]; ++k) {
    const int i = cols.index[cols.start[c] + k];
    if (i == r) continue;
    const double l = cols.value[cols.start[c] + k] / pivot;
    b.mult[i] = l;
    b.mult_stamp[i] = stamp;
    b.eta_index.push_back(i);
    b.eta_value.push_back(l);
    ++multipliers;
    lines_erase_slot(rows, i, lines_find(rows, i, c));
  }
  if (multipliers > 0) {
    b.eta_pivot.push_back(r);
    b.eta_start.push_back(static_cast<int>(b.eta_index.size()));
  }
  b.active_count -= cols.length[c];
  unlist_col(b, c);
  unlist_row(b, r);
  for (int k = 0; k < rows.length[r]; ++k) {
    const int j = rows.index[rows.start[r] + k];
    if (j == c) continue;
    const int slot = lines_find(cols, j, r);
    const double u = cols.value[slot];
    lines_erase_slot(cols, j, slot);
    --b.active_count;
    b.u_row.push_back(r);
    b.u_col.push_back(j);
    b.u_value.push_back(u);
    if (multipliers > 0) update_column(b, j, c, r, u, stamp);
    b.col_max[j] = -1.0;
    relist_col(b, j);
  }
  for (int k = 0; k < cols.length[c]; ++k) {
    const int i = cols.index[cols.start[c] + k];
    if (i != r) relist_row(b, i);
  }
  cols.length[c] = 0;
  rows.length[r] = 0;
  lu_record_pivot(b, r, c);
  lu.diag[r] = pivot;
}

bool acceptable(double a, double column_max, double factor_tol, double singularity_tol) {
  const double size = std::fabs(a);
  return size > singularity_tol && size * factor_tol >= column_max;
}

bool find_row_singleton(LuBuild& b, double factor_tol, double singularity_tol, int& r, int& c) {
  for (int i = b.row_head[1]; i >= 0; i = b.row_next[i]) {
    const int j = b.rows.index[b.rows.start[i]];
    if (acceptable(entry_value(b, i, j), column_max(b, j), factor_tol, singularity_tol)) {
      r = i;
      c = j;
      return true;
    }
  }
  return false;
}

struct Candidate {
  int r = -1;
  int c = -1;
  long long cost = LLONG_MAX;
  double ratio = 0.0;  // |a| / column max: prefer the more stable of equal costs

  void offer(int i, int j, long long new_cost, double new_ratio) {
    if (new_cost < cost || (new_cost == cost && new_ratio > ratio)) {
      r = i;
      c = j;
      cost = new_cost;
      ratio = new_ratio;
    }
  }
};

// Markowitz search over columns and rows in order of count; columns whose entries are all below
// the singularity tolerance are rejected on the way.
bool markowitz_search(LuBuild& b, double factor_tol, double singularity_tol, int& r, int& c) {
  Candidate best;
  int examined = 0;
  const int m = b.cols.lines;
  for (int count = 1; count <= m; ++count) {
    for (int j = b.col_head[count]; j >= 0;) {
      const int next = b.col_next[j];
      const double big = column_max(b, j);
      if (big <= singularity_tol) {
        reject_col(b, j);
        j = next;
        continue;
      }
      for (int k = b.cols.start[j]; k < b.cols.start[j] + count; ++k) {
        const double a = b.cols.value[k];
        if (!acceptable(a, big, factor_tol, singularity_tol)) continue;
        const int i = b.cols.index[k];
        best.offer(i, j, static_cast<long long>(b.rows.length[i] - 1) * (count - 1),
                   std::fabs(a) / big);
      }
      if (best.r >= 0 && ++examined >= kLuSearchLimit) break;
      j = next;
    }
    if (best.r >= 0 && examined >= kLuSearchLimit) break;
    for (int i = b.row_head[count]; i >= 0; i = b.row_next[i]) {
      for (int k = b.rows.start[i]; k < b.rows.start[i] + count; ++k) {
        const int j = b.rows.index[k];
        const double a = entry_value(b, i, j);
        const double big = column_max(b, j);
        if (!acceptable(a, big, factor_tol, singularity_tol)) continue;
        best.offer(i, j, static_cast<long long>(count - 1) * (b.cols.length[j] - 1),
                   std::fabs(a) / big);
      }
      if (best.r >= 0 && ++examined >= kLuSearchLimit) break;
    }
    if (best.r >= 0 && (examined >= kLuSearchLimit ||
                        best.cost <= static_cast<long long>(count) * count)) {
      break;
    }
  }
  r = best.r;
  c = best.c;
  return best.r >= 0;
}

}  // namespace

void lu_factor_nucleus(LuFactors& lu, double factor_tol, const LuSettings& settings) {
  if (lu.m == 0) return;  // nothing to eliminate (and no count lists to read)
  LuBuild& b = lu.build;
  init_lists(b, lu.m);
  const double singularity_tol = settings.singularity_tol;
  for (;;) {
    int r = -1;
    int c = -1;
    if (b.col_head[1] >= 0) {
      c = b.col_head[1];
      r = b.cols.index[b.cols.start[c]];
      if (std::fabs(b.cols.value[b.cols.start[c]]) <= singularity_tol) {
        reject_col(b, c);
        continue;
      }
    } else if (!find_row_singleton(b, factor_tol, singularity_tol, r, c)) {
      if (b.cols_live == 0 || b.rows_live == 0) break;
      const double density = static_cast<double>(b.active_count) /
                             (static_cast<double>(b.rows_live) * b.cols_live);
      if (density > settings.density_tol) {
        lu_factor_dense(lu, settings);
        break;
      }
      if (!markowitz_search(b, factor_tol, singularity_tol, r, c)) break;
    }
    eliminate(lu, r, c);
  }
}

}  // namespace tarvo::lp
