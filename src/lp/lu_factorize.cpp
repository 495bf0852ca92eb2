#include <algorithm>
#include <cmath>

#include "lp/lu_internal.h"

namespace tarvo::lp {

namespace {

// Checks basis_head and the basis columns for indices out of range and repeated rows.
bool basis_is_valid(LuBuild& b, int m, int n, const int* col_start, const int* row_index,
                    const int* basis_head, LuReport& report) {
  grow_to(b.seen, m);
  std::fill_n(b.seen.begin(), m, -1);
  for (int p = 0; p < m; ++p) {
    const int k = basis_head[p];
    if (k < 0 || k >= n + m) {
      report.bad_position = p;
      return false;
    }
    if (k >= n) continue;
    for (int e = col_start[k]; e < col_start[k + 1]; ++e) {
      const int i = row_index[e];
      if (i < 0 || i >= m || b.seen[i] == p) {
        report.bad_position = p;
        report.bad_element = e;
        return false;
      }
      b.seen[i] = p;
    }
  }
  return true;
}

int basis_element_count(int m, int n, const int* col_start, const int* basis_head) {
  int count = 0;
  for (int p = 0; p < m; ++p) {
    const int k = basis_head[p];
    count += k < n ? col_start[k + 1] - col_start[k] : 1;
  }
  return count;
}

// Sizes every array of the factors for m rows; arrays only ever grow.
void size_factors(LuFactors& lu, int m, int n) {
  lu.m = m;
  lu.n = n;
  LuBuild& b = lu.build;
  for (auto* v : {&b.col_head, &b.col_next, &b.col_prev, &b.col_listed, &b.row_head, &b.row_next,
                  &b.row_prev, &b.row_listed, &b.row_step, &b.col_step, &b.pivot_row,
                  &b.pivot_col, &b.mult_stamp, &b.visit_stamp, &lu.l_rank, &lu.l_forward,
                  &lu.l_backward, &lu.rank, &lu.row_of_col, &lu.col_of_row, &lu.spike_index,
                  &lu.result_index, &lu.stack, &lu.reach}) {
    grow_to(*v, m + 1);
  }
  for (auto* v : {&b.col_max, &b.mult, &lu.diag, &lu.spike_value, &lu.result_value}) {
    grow_to(*v, m + 1);
  }
  grow_to(lu.work, m);
  std::fill_n(lu.work.begin(), m, 0.0);
  grow_to(lu.mark, m);
  std::fill_n(lu.mark.begin(), m, 0);
  if (lu.scratch.size != m) sparse_resize(lu.scratch, m);
  sparse_clear(lu.scratch);
}

// Pivots every logical on its row, then loads the structural columns into the active submatrix;
// their entries in rows already pivoted go straight to U.
void load_basis(LuFactors& lu, const int* col_start, const int* row_index, const double* value,
                const int* basis_head) {
  const int m = lu.m;
  const int n = lu.n;
  LuBuild& b = lu.build;
  std::fill_n(b.row_step.begin(), m, -1);
  std::fill_n(b.col_step.begin(), m, -1);
  std::fill_n(b.mult_stamp.begin(), m, 0);
  std::fill_n(b.visit_stamp.begin(), m, 0);
  b.stamp = 0;
  b.steps = 0;
  b.eta_pivot.clear();
  b.eta_start.assign(1, 0);
  b.eta_index.clear();
  b.eta_value.clear();
  b.u_row.clear();
  b.u_col.clear();
  b.u_value.clear();
  for (int p = 0; p < m; ++p) {
    const int i = basis_head[p] - n;
    if (i >= 0 && b.row_step[i] < 0) {  // a repeated logical stays unpivoted: it is dependent
      lu_record_pivot(b, i, p);
      lu.diag[i] = 1.0;
    }
  }
  // Two passes: count each active line, then lay the lines out and fill them.
  std::vector<int>& col_len = b.col_listed;
  std::vector<int>& row_len = b.row_listed;
  std::fill_n(col_len.begin(), m, 0);
  std::fill_n(row_len.begin(), m, 0);
  long long active = 0;
  for (int p = 0; p < m; ++p) {
    const int k = basis_head[p];
    if (k >= n) continue;
    for (int e = col_start[k]; e < col_start[k + 1]; ++e) {
      if (value[e] == 0.0 || b.row_step[row_index[e]] >= 0) continue;
      ++col_len[p];
      ++row_len[row_index[e]];
      ++active;
    }
  }
  lines_reset(b.cols, m, static_cast<int>(2 * active + 4 * m), true);
  lines_reset(b.rows, m, static_cast<int>(2 * active + 4 * m), false);
  lines_layout(b.cols, col_len.data(), 2);
  lines_layout(b.rows, row_len.data(), 2);
  for (int p = 0; p < m; ++p) {
    const int k = basis_head[p];
    if (k >= n) continue;
    for (int e = col_start[k]; e < col_start[k + 1]; ++e) {
      const int i = row_index[e];
      if (value[e] == 0.0) continue;
      if (b.row_step[i] >= 0) {
        b.u_row.push_back(i);
        b.u_col.push_back(p);
        b.u_value.push_back(value[e]);
      } else {
        lines_append_growing(b.cols, p, i, value[e]);
        lines_append_growing(b.rows, i, p, 0.0);
      }
    }
  }
  b.active_count = active;
}

// Gives each dependent position the logical of a row left without a pivot.
void repair_singular(LuFactors& lu, int* basis_head, LuReport& report) {
  LuBuild& b = lu.build;
  int row = 0;
  for (int p = 0; p < lu.m; ++p) {
    if (b.col_step[p] >= 0) continue;
    while (b.row_step[row] >= 0) ++row;
    basis_head[p] = lu.n + row;
    lu_record_pivot(b, row, p);
    lu.diag[row] = 1.0;
    report.replaced_positions.push_back(p);
  }
}

// Lays U out by columns and by rows from the triplets of the factorization, leaving out the
// columns the repair replaced, and sets the pivot order.
void store_u(LuFactors& lu, int rank) {
  const int m = lu.m;
  LuBuild& b = lu.build;
  std::vector<int>& per_col = b.col_listed;
  std::vector<int>& per_row = b.row_listed;
  std::fill_n(per_col.begin(), m, 0);
  std::fill_n(per_row.begin(), m, 0);
  int kept = 0;
  for (std::size_t t = 0; t < b.u_row.size(); ++t) {
    if (b.col_step[b.u_col[t]] >= rank) continue;
    ++per_col[b.u_col[t]];
    ++per_row[b.u_row[t]];
    ++kept;
  }
  lu.length_u = kept;
  lu.fill_limit = 2 * kept + lu.length_l + 2 * m;
  const int capacity = 2 * lu.fill_limit + 2 * kLuLineSlack * m;
  lines_reset(lu.u_cols, m, capacity, true);
  lines_reset(lu.u_rows, m, capacity, true);
  lines_layout(lu.u_cols, per_col.data(), kLuLineSlack);
  lines_layout(lu.u_rows, per_row.data(), kLuLineSlack);
  for (std::size_t t = 0; t < b.u_row.size(); ++t) {
    if (b.col_step[b.u_col[t]] >= rank) continue;
    lines_append(lu.u_cols, b.u_col[t], b.u_row[t], b.u_value[t]);
    lines_append(lu.u_rows, b.u_row[t], b.u_col[t], b.u_value[t]);
  }
  for (int k = 0; k < m; ++k) {
    const int r = b.pivot_row[k];
    const int p = b.pivot_col[k];
    lu.order_row[k] = r;
    lu.order_col[k] = p;
    lu.rank[r] = k;
    lu.row_of_col[p] = r;
    lu.col_of_row[r] = p;
  }
  lu.order_length = m;
}

// Lays L out by pivot rows and transposed by rows, with the orders the sweeps follow.
void store_l(LuFactors& lu) {
  const int m = lu.m;
  LuBuild& b = lu.build;
  const int etas = static_cast<int>(b.eta_pivot.size());
  std::vector<int>& per_pivot = b.col_listed;
  std::vector<int>& per_row = b.row_listed;
  std::fill_n(per_pivot.begin(), m, 0);
  std::fill_n(per_row.begin(), m, 0);
  for (int e = 0; e < etas; ++e) {
    per_pivot[b.eta_pivot[e]] = b.eta_start[e + 1] - b.eta_start[e];
    for (int t = b.eta_start[e]; t < b.eta_start[e + 1]; ++t) ++per_row[b.eta_index[t]];
  }
  lu.length_l = static_cast<int>(b.eta_index.size());
  lines_reset(lu.l_cols, m, lu.length_l, true);
  lines_reset(lu.l_rows, m, lu.length_l, true);
  lines_layout(lu.l_cols, per_pivot.data(), 0);
  lines_layout(lu.l_rows, per_row.data(), 0);
  lu.l_forward_count = 0;
  for (int e = 0; e < etas; ++e) {
    const int r = b.eta_pivot[e];
    lu.l_forward[lu.l_forward_count++] = r;
    for (int t = b.eta_start[e]; t < b.eta_start[e + 1]; ++t) {
      lines_append(lu.l_cols, r, b.eta_index[t], b.eta_value[t]);
      lines_append(lu.l_rows, b.eta_index[t], r, b.eta_value[t]);
    }
  }
  lu.l_backward_count = 0;
  for (int k = m - 1; k >= 0; --k) {
    const int i = b.pivot_row[k];
    lu.l_rank[i] = k;
    if (lu.l_rows.length[i] > 0) lu.l_backward[lu.l_backward_count++] = i;
  }
}

// Sizes the row-eta file and the pivot order for the updates this factorization may take.
void prepare_updates(LuFactors& lu, const LuSettings& settings) {
  const int max_updates = std::max(0, settings.max_updates);
  grow_to(lu.eta_row, max_updates);
  grow_to(lu.eta_start, max_updates + 1);
  grow_to(lu.eta_index, lu.fill_limit);
  grow_to(lu.eta_value, lu.fill_limit);
  lu.eta_count = 0;
  lu.eta_length = 0;
  lu.eta_start[0] = 0;
  lu.update_count = 0;
  lu.spike_valid = false;
  lu.last_refusal = LuRefusal::none;
}

}  // namespace

void lu_record_pivot(LuBuild& b, int r, int c) {
  b.row_step[r] = b.steps;
  b.col_step[c] = b.steps;
  b.pivot_row[b.steps] = r;
  b.pivot_col[b.steps] = c;
  ++b.steps;
}

void lu_reserve(LuFactors& lu, int m, int elements, int updates) {
  LuBuild& b = lu.build;
  const std::size_t rows = static_cast<std::size_t>(m) + 1;
  for (auto* v : {&b.col_head, &b.col_next, &b.col_prev, &b.col_listed, &b.row_head, &b.row_next,
                  &b.row_prev, &b.row_listed, &b.row_step, &b.col_step, &b.pivot_row,
                  &b.pivot_col, &b.mult_stamp, &b.visit_stamp, &b.seen, &b.eta_pivot, &b.eta_start,
                  &b.dense_rows, &b.dense_cols, &lu.l_rank, &lu.l_forward, &lu.l_backward, &lu.rank,
                  &lu.row_of_col, &lu.col_of_row, &lu.spike_index, &lu.result_index, &lu.stack,
                  &lu.reach}) {
    v->reserve(rows);
  }
  for (auto* v : {&b.col_max, &b.mult, &lu.diag, &lu.spike_value, &lu.result_value, &lu.work}) v->reserve(rows);
  lu.mark.reserve(rows);
  // Entries: the basis columns and one per logical; the factors' own sizes follow the rules of
  // lu_factorize (active lines at twice their entries, U and the row etas at the fill limit).
  const std::size_t entries = static_cast<std::size_t>(elements) + m;
  const std::size_t fill_limit = 3 * entries + 2 * rows;
  for (auto* v : {&b.eta_index, &b.u_row, &b.u_col}) v->reserve(entries);
  for (auto* v : {&b.eta_value, &b.u_value}) v->reserve(entries);
  b.dense.reserve(2 * fill_limit);  // the dense block starts at half full, by the default density
  const auto reserve_lines = [rows](SparseLines& lines, std::size_t capacity) {
    for (auto* v : {&lines.start, &lines.length, &lines.room, &lines.by_start}) v->reserve(rows);
    lines.index.reserve(capacity);
    lines.value.reserve(capacity);
  };
  reserve_lines(b.cols, 2 * entries + 4 * rows);
  reserve_lines(b.rows, 2 * entries + 4 * rows);
  reserve_lines(lu.u_cols, 2 * fill_limit + 2 * kLuLineSlack * rows);
  reserve_lines(lu.u_rows, 2 * fill_limit + 2 * kLuLineSlack * rows);
  reserve_lines(lu.l_cols, entries);
  reserve_lines(lu.l_rows, entries);
  const std::size_t update_count = static_cast<std::size_t>(std::max(0, updates));
  lu.eta_row.reserve(update_count);
  lu.eta_start.reserve(update_count + 1);
  lu.eta_index.reserve(fill_limit);
  lu.eta_value.reserve(fill_limit);
  lu.order_row.reserve(rows + update_count);
  lu.order_col.reserve(rows + update_count);
}

LuStatus lu_factorize(LuFactors& lu, int m, int n, const int* col_start, const int* row_index,
                      const double* value, int* basis_head, const LuSettings& settings,
                      LuReport& report) {
  report.rank = 0;
  report.replaced_positions.clear();
  report.length_l = 0;
  report.length_u = 0;
  report.bad_position = -1;
  report.bad_element = -1;
  lu.valid = false;
  size_factors(lu, m, n);
  if (!basis_is_valid(lu.build, m, n, col_start, row_index, basis_head, report)) {
    return LuStatus::invalid_input;
  }
  // A tolerance below 1 would reject even the largest entry of a column.
  double tol = std::max(1.0, settings.factor_tol);
  report.factor_tol_used = tol;
  const int elements = basis_element_count(m, n, col_start, basis_head);
  reserve_to(lu.build.u_row, elements);  // U holds at least the loaded entries
  reserve_to(lu.build.u_col, elements);
  reserve_to(lu.build.u_value, elements);
  for (;;) {
    load_basis(lu, col_start, row_index, value, basis_head);
    lu_factor_nucleus(lu, tol, settings);
    if (lu.build.steps == m || tol <= kLuMinFactorTol) break;
    tol = std::max(kLuMinFactorTol, tol / kLuFactorTolReduction);
  }
  report.factor_tol_used = tol;
  const int rank = lu.build.steps;
  repair_singular(lu, basis_head, report);
  store_l(lu);
  // The pivot order has a slot for every row and one more for each update to come.
  grow_to(lu.order_row, m + std::max(0, settings.max_updates));
  grow_to(lu.order_col, m + std::max(0, settings.max_updates));
  store_u(lu, rank);
  prepare_updates(lu, settings);
  lu.valid = true;
  report.rank = rank;
  report.length_l = lu.length_l;
  report.length_u = lu.length_u + m;
  return rank == m ? LuStatus::ok : LuStatus::singular_repaired;
}

int lu_update_count(const LuFactors& lu) { return lu.update_count; }

LuRefusal lu_last_refusal(const LuFactors& lu) { return lu.last_refusal; }

int lu_length_l(const LuFactors& lu) { return lu.length_l + lu.eta_length; }

int lu_length_u(const LuFactors& lu) { return lu.length_u + lu.m; }

}  // namespace tarvo::lp
