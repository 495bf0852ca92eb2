// ftran and btran. Each triangular stage either sweeps its whole factor or, when the vector is
// very sparse, first finds the nodes its nonzeros can reach through the factor's graph and
// visits only those. The reach is visited in pivot order, the same order a sweep takes, so both
// ways do the same operations and give bit-identical results whichever one a solve picks.
#include <algorithm>
#include <cmath>

#include "lp/lu_internal.h"

namespace tarvo::lp {

namespace {

bool worth_search(const LuFactors& lu, int count) { return count <= kLuHyperStart * lu.m; }

// Lists in lu.reach every node reachable from the listed entries of x, where node v leads to
// the indices of line line_of[v] of g (line v when line_of is null; no line when negative).
// Returns the number listed, or -1 once more than the abandon fraction of m is reached.
int find_reach(LuFactors& lu, const SparseLines& g, const int* line_of, const SparseVector& x) {
  const int limit = std::max(1, static_cast<int>(kLuHyperAbandon * lu.m));
  char* mark = lu.mark.data();
  int* reach = lu.reach.data();
  int* stack = lu.stack.data();
  int count = 0;
  int top = 0;
  bool abandoned = false;
  for (int k = 0; k < x.count && !abandoned; ++k) {
    const int v = x.index[k];
    if (mark[v]) continue;
    mark[v] = 1;
    reach[count++] = v;
    stack[top++] = v;
    while (top > 0 && !abandoned) {
      const int node = stack[--top];
      const int line = line_of ? line_of[node] : node;
      if (line < 0) continue;
      const int begin = g.start[line];
      for (int s = begin; s < begin + g.length[line]; ++s) {
        const int w = g.index[s];
        if (mark[w]) continue;
        if (count == limit) {
          abandoned = true;
          break;
        }
        mark[w] = 1;
        reach[count++] = w;
        stack[top++] = w;
      }
    }
  }
  for (int k = 0; k < count; ++k) mark[reach[k]] = 0;
  return abandoned ? -1 : count;
}

void sort_reach(LuFactors& lu, int count, const int* key, bool descending) {
  int* reach = lu.reach.data();
  if (descending) {
    std::sort(reach, reach + count, [key](int a, int b) { return key[a] > key[b]; });
  } else {
    std::sort(reach, reach + count, [key](int a, int b) { return key[a] < key[b]; });
  }
}

void adopt_reach(const LuFactors& lu, SparseVector& x, int count) {
  std::copy_n(lu.reach.data(), count, x.index.data());
  x.count = count;
}

// x[i] -= l_ir x[r] over the multipliers of the step that pivoted on row r.
void scatter_l_column(const LuFactors& lu, double* x, int r) {
  const double xr = x[r];
  if (xr == 0.0) return;
  const SparseLines& l = lu.l_cols;
  for (int s = l.start[r]; s < l.start[r] + l.length[r]; ++s) x[l.index[s]] -= l.value[s] * xr;
}

// x[r] -= l_ir x[i] over the multipliers that row i received.
void scatter_l_row(const LuFactors& lu, double* x, int i) {
  const double xi = x[i];
  if (xi == 0.0) return;
  const SparseLines& l = lu.l_rows;
  for (int s = l.start[i]; s < l.start[i] + l.length[i]; ++s) x[l.index[s]] -= l.value[s] * xi;
}

void mark_pattern(LuFactors& lu, const SparseVector& x, char flag) {
  for (int k = 0; k < x.count; ++k) lu.mark[x.index[k]] = flag;
}

// x[i] -= mult * x[pivot] over one line of L, listing each index x did not list yet: a full sweep
// then keeps the pattern for the price of what it touches instead of a pass over all m.
void scatter_listed(LuFactors& lu, const SparseLines& l, SparseVector& x, int line, int pivot) {
  const double xp = x.value[pivot];
  if (xp == 0.0) return;
  double* v = x.value.data();
  for (int s = l.start[line]; s < l.start[line] + l.length[line]; ++s) {
    const int i = l.index[s];
    if (!lu.mark[i]) {
      lu.mark[i] = 1;
      x.index[x.count++] = i;
    }
    v[i] -= l.value[s] * xp;
  }
}

void solve_l(LuFactors& lu, SparseVector& x) {
  double* v = x.value.data();
  if (worth_search(lu, x.count)) {
    const int count = find_reach(lu, lu.l_cols, nullptr, x);
    if (count >= 0) {
      sort_reach(lu, count, lu.l_rank.data(), false);
      for (int k = 0; k < count; ++k) scatter_l_column(lu, v, lu.reach[k]);
      adopt_reach(lu, x, count);
      return;
    }
  }
  mark_pattern(lu, x, 1);
  for (int k = 0; k < lu.l_forward_count; ++k) {
    const int r = lu.l_forward[k];
    if (v[r] != 0.0) scatter_listed(lu, lu.l_cols, x, r, r);
  }
  mark_pattern(lu, x, 0);
}

void solve_l_transposed(LuFactors& lu, SparseVector& x) {
  double* v = x.value.data();
  if (worth_search(lu, x.count)) {
    const int count = find_reach(lu, lu.l_rows, nullptr, x);
    if (count >= 0) {
      sort_reach(lu, count, lu.l_rank.data(), true);
      for (int k = 0; k < count; ++k) scatter_l_row(lu, v, lu.reach[k]);
      adopt_reach(lu, x, count);
      return;
    }
  }
  mark_pattern(lu, x, 1);
  for (int k = 0; k < lu.l_backward_count; ++k) {
    const int i = lu.l_backward[k];
    if (v[i] != 0.0) scatter_listed(lu, lu.l_rows, x, i, i);
  }
  mark_pattern(lu, x, 0);
}

// Row etas in the order the updates made them: x[r] -= m . x.
void apply_etas(LuFactors& lu, SparseVector& x) {
  if (lu.eta_count == 0) return;
  double* v = x.value.data();
  mark_pattern(lu, x, 1);
  for (int j = 0; j < lu.eta_count; ++j) {
    double dot = 0.0;
    for (int s = lu.eta_start[j]; s < lu.eta_start[j + 1]; ++s) {
      dot += lu.eta_value[s] * v[lu.eta_index[s]];
    }
    if (dot == 0.0) continue;
    const int r = lu.eta_row[j];
    v[r] -= dot;
    if (!lu.mark[r]) {
      lu.mark[r] = 1;
      x.index[x.count++] = r;
    }
  }
  mark_pattern(lu, x, 0);
}

// The transposed etas in reverse order: x[i] -= m_i x[r].
void apply_etas_transposed(LuFactors& lu, SparseVector& x) {
  if (lu.eta_count == 0) return;
  double* v = x.value.data();
  mark_pattern(lu, x, 1);
  for (int j = lu.eta_count - 1; j >= 0; --j) {
    const double xr = v[lu.eta_row[j]];
    if (xr == 0.0) continue;
    for (int s = lu.eta_start[j]; s < lu.eta_start[j + 1]; ++s) {
      const int i = lu.eta_index[s];
      v[i] -= lu.eta_value[s] * xr;
      if (!lu.mark[i]) {
        lu.mark[i] = 1;
        x.index[x.count++] = i;
      }
    }
  }
  mark_pattern(lu, x, 0);
}

// Back substitution for the pivot on row r: the value of its position goes to out, and the
// column of U carries it into the rows above.
void back_substitute(LuFactors& lu, double* x, double* out, int r) {
  double xr = x[r];
  if (xr == 0.0) return;
  x[r] = 0.0;
  xr /= lu.diag[r];
  const int p = lu.col_of_row[r];
  out[p] = xr;
  const SparseLines& u = lu.u_cols;
  for (int s = u.start[p]; s < u.start[p] + u.length[p]; ++s) x[u.index[s]] -= u.value[s] * xr;
}

// Forward substitution with U^T for position p: its row's value goes to out, and the row of U
// carries it into the positions after it.
void forward_substitute(LuFactors& lu, double* x, double* out, int p) {
  double xp = x[p];
  if (xp == 0.0) return;
  x[p] = 0.0;
  const int r = lu.row_of_col[p];
  xp /= lu.diag[r];
  out[r] = xp;
  const SparseLines& u = lu.u_rows;
  for (int s = u.start[r]; s < u.start[r] + u.length[r]; ++s) x[u.index[s]] -= u.value[s] * xp;
}

// Moves the values gathered in lu.work (all else of x is zero by now) back into x. `map` turns a
// reached node into the index of its value; null means the node is the index.
void take_work(LuFactors& lu, SparseVector& x, int count, const int* map) {
  double* out = lu.work.data();
  x.count = 0;
  for (int k = 0; k < count; ++k) {
    const int node = lu.reach[k];
    const int at = map ? map[node] : node;
    if (out[at] == 0.0) continue;
    x.value[at] = out[at];
    out[at] = 0.0;
    x.index[x.count++] = at;
  }
}


// U x = rhs: rows in, positions out.
void solve_u(LuFactors& lu, SparseVector& x) {
  double* v = x.value.data();
  double* out = lu.work.data();
  if (worth_search(lu, x.count)) {
    const int count = find_reach(lu, lu.u_cols, lu.col_of_row.data(), x);
    if (count >= 0) {
      sort_reach(lu, count, lu.rank.data(), true);
      for (int k = 0; k < count; ++k) back_substitute(lu, v, out, lu.reach[k]);
      take_work(lu, x, count, lu.col_of_row.data());
      return;
    }
  }
  // The sweep lists the positions it fills, in the order the search would have found them.
  int count = 0;
  for (int k = lu.order_length - 1; k >= 0; --k) {
    const int r = lu.order_row[k];
    if (r < 0 || v[r] == 0.0) continue;
    back_substitute(lu, v, out, r);
    lu.reach[count++] = r;
  }
  take_work(lu, x, count, lu.col_of_row.data());
}

// Drops results below the drop tolerance, so that noise neither spreads nor fills patterns.
void drop_tiny(SparseVector& x) {
  int kept = 0;
  for (int k = 0; k < x.count; ++k) {
    const int i = x.index[k];
    if (std::fabs(x.value[i]) <= kLuDropTol) {
      x.value[i] = 0.0;
    } else {
      x.index[kept++] = i;
    }
  }
  x.count = kept;
}

void keep_copy(const SparseVector& x, int& count, std::vector<int>& index,
               std::vector<double>& value) {
  count = 0;
  for (int k = 0; k < x.count; ++k) {
    const int i = x.index[k];
    if (x.value[i] == 0.0) continue;
    index[count] = i;
    value[count++] = x.value[i];
  }
}

}  // namespace

void lu_solve_u_transposed(LuFactors& lu, SparseVector& x) {
  double* v = x.value.data();
  double* out = lu.work.data();
  if (worth_search(lu, x.count)) {
    const int count = find_reach(lu, lu.u_rows, lu.row_of_col.data(), x);
    if (count >= 0) {
      // Sorting positions by the slot of their pivot row.
      for (int k = 0; k < count; ++k) lu.stack[lu.reach[k]] = lu.rank[lu.row_of_col[lu.reach[k]]];
      sort_reach(lu, count, lu.stack.data(), false);
      for (int k = 0; k < count; ++k) forward_substitute(lu, v, out, lu.reach[k]);
      take_work(lu, x, count, lu.row_of_col.data());
      return;
    }
  }
  int count = 0;
  for (int k = 0; k < lu.order_length; ++k) {
    const int p = lu.order_col[k];
    if (p < 0 || v[p] == 0.0) continue;
    forward_substitute(lu, v, out, p);
    lu.reach[count++] = p;
  }
  take_work(lu, x, count, lu.row_of_col.data());
}

void lu_ftran(LuFactors& lu, SparseVector& rhs, bool keep_spike) {
  if (lu.m == 0 || !lu.valid) return;
  solve_l(lu, rhs);
  apply_etas(lu, rhs);
  if (keep_spike) {
    keep_copy(rhs, lu.spike_count, lu.spike_index, lu.spike_value);
    lu.spike_valid = true;
  }
  solve_u(lu, rhs);
  drop_tiny(rhs);
  if (keep_spike) keep_copy(rhs, lu.result_count, lu.result_index, lu.result_value);
}

void lu_btran(LuFactors& lu, SparseVector& rhs) {
  if (lu.m == 0 || !lu.valid) return;
  lu_solve_u_transposed(lu, rhs);
  apply_etas_transposed(lu, rhs);
  solve_l_transposed(lu, rhs);
  drop_tiny(rhs);
}

}  // namespace tarvo::lp
