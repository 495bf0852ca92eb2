// Dense elimination of what remains of the active submatrix once it has filled in. Complete
// pivoting: the largest remaining entry pivots, which keeps every multiplier at most 1 and tells
// rank most reliably; elimination stops when no entry exceeds the singularity tolerance.
#include <cmath>
#include <utility>

#include "lp/lu_internal.h"

namespace tarvo::lp {

namespace {

// Live rows and columns of the active submatrix, in list order.
void gather_live(LuBuild& b, int m) {
  b.dense_rows.clear();
  b.dense_cols.clear();
  for (int count = 1; count <= m; ++count) {
    for (int i = b.row_head[count]; i >= 0; i = b.row_next[i]) b.dense_rows.push_back(i);
    for (int j = b.col_head[count]; j >= 0; j = b.col_next[j]) b.dense_cols.push_back(j);
  }
}

// Column-major block of the live rows and columns; b.seen maps a row to its block row.
void load_block(LuBuild& b, int rows, int cols) {
  const std::size_t size = static_cast<std::size_t>(rows) * cols;
  grow_to(b.dense, size);
  std::fill_n(b.dense.begin(), size, 0.0);
  for (int a = 0; a < rows; ++a) b.seen[b.dense_rows[a]] = a;
  for (int q = 0; q < cols; ++q) {
    const int j = b.dense_cols[q];
    double* column = b.dense.data() + static_cast<std::size_t>(q) * rows;
    for (int k = b.cols.start[j]; k < b.cols.start[j] + b.cols.length[j]; ++k) {
      column[b.seen[b.cols.index[k]]] = b.cols.value[k];
    }
  }
}

// Position (row, column) of the largest |entry| in the trailing block from (k, k).
double largest_trailing(const LuBuild& b, int rows, int cols, int k, int& at_row, int& at_col) {
  double big = -1.0;
  for (int q = k; q < cols; ++q) {
    const double* column = b.dense.data() + static_cast<std::size_t>(q) * rows;
    for (int a = k; a < rows; ++a) {
      if (std::fabs(column[a]) > big) {
        big = std::fabs(column[a]);
        at_row = a;
        at_col = q;
      }
    }
  }
  return big;
}

void swap_block_rows(LuBuild& b, int rows, int cols, int a1, int a2) {
  if (a1 == a2) return;
  for (int q = 0; q < cols; ++q) {
    double* column = b.dense.data() + static_cast<std::size_t>(q) * rows;
    std::swap(column[a1], column[a2]);
  }
  std::swap(b.dense_rows[a1], b.dense_rows[a2]);
}

void swap_block_cols(LuBuild& b, int rows, int q1, int q2) {
  if (q1 == q2) return;
  double* c1 = b.dense.data() + static_cast<std::size_t>(q1) * rows;
  double* c2 = b.dense.data() + static_cast<std::size_t>(q2) * rows;
  for (int a = 0; a < rows; ++a) std::swap(c1[a], c2[a]);
  std::swap(b.dense_cols[q1], b.dense_cols[q2]);
}

// Eliminates below the pivot at (k, k): multipliers to L, the pivot row to U.
void eliminate_block(LuFactors& lu, int rows, int cols, int k) {
  LuBuild& b = lu.build;
  double* pivot_column = b.dense.data() + static_cast<std::size_t>(k) * rows;
  const double pivot = pivot_column[k];
  const int r = b.dense_rows[k];
  bool any = false;
  for (int a = k + 1; a < rows; ++a) {
    double l = pivot_column[a] / pivot;
    if (std::fabs(l) < kLuDropTol) l = 0.0;
    pivot_column[a] = l;
    if (l == 0.0) continue;
    b.eta_index.push_back(b.dense_rows[a]);
    b.eta_value.push_back(l);
    any = true;
  }
  if (any) {
    b.eta_pivot.push_back(r);
    b.eta_start.push_back(static_cast<int>(b.eta_index.size()));
  }
  for (int q = k + 1; q < cols; ++q) {
    double* column = b.dense.data() + static_cast<std::size_t>(q) * rows;
    const double u = column[k];
    if (std::fabs(u) < kLuDropTol) continue;
    b.u_row.push_back(r);
    b.u_col.push_back(b.dense_cols[q]);
    b.u_value.push_back(u);
    if (!any) continue;
    for (int a = k + 1; a < rows; ++a) column[a] -= pivot_column[a] * u;
  }
  lu_record_pivot(b, r, b.dense_cols[k]);
  lu.diag[r] = pivot;
}

}  // namespace

void lu_factor_dense(LuFactors& lu, const LuSettings& settings) {
  LuBuild& b = lu.build;
  gather_live(b, lu.m);
  const int rows = static_cast<int>(b.dense_rows.size());
  const int cols = static_cast<int>(b.dense_cols.size());
  load_block(b, rows, cols);
  const int steps = std::min(rows, cols);
  for (int k = 0; k < steps; ++k) {
    int at_row = k;
    int at_col = k;
    if (largest_trailing(b, rows, cols, k, at_row, at_col) <= settings.singularity_tol) break;
    swap_block_rows(b, rows, cols, k, at_row);
    swap_block_cols(b, rows, k, at_col);
    eliminate_block(lu, rows, cols, k);
  }
}

}  // namespace tarvo::lp
