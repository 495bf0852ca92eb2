// Forrest-Tomlin column replacement. Position p, pivoted on row r, takes the spike s (the new
// column after L and the row etas). Row r and position p move to the end of the pivot order;
// row r's entries in U are eliminated by the rows after it, which is recorded as one row eta
// x[r] -= m . x, with m solving m^T U22 = (row r of U). The new diagonal is s_r - m . s.
//
// Stability: the update cannot exchange rows to keep its multipliers small, as a fresh
// factorization does under factor_tol, so it accepts multipliers up to update_tol to the power
// kLuUpdateGrowthPower and relies for accuracy on a direct check: in exact arithmetic the new
// diagonal equals the pivot of the ftran result times the old diagonal, and an update where the
// two disagree is refused.
#include <algorithm>
#include <cmath>

#include "lp/lu_internal.h"

namespace tarvo::lp {

namespace {

LuStatus refuse(LuFactors& lu, LuRefusal why) {
  sparse_clear(lu.scratch);
  lu.last_refusal = why;
  return LuStatus::refactor_needed;
}

// Multipliers m of the row eta, over rows, left in lu.scratch.
void eta_multipliers(LuFactors& lu, int r) {
  SparseVector& w = lu.scratch;
  const SparseLines& u = lu.u_rows;
  for (int s = u.start[r]; s < u.start[r] + u.length[r]; ++s) {
    w.value[u.index[s]] = u.value[s];
    w.index[w.count++] = u.index[s];
  }
  lu_solve_u_transposed(lu, w);
}

double result_at(const LuFactors& lu, int p) {
  for (int k = 0; k < lu.result_count; ++k) {
    if (lu.result_index[k] == p) return lu.result_value[k];
  }
  return 0.0;
}

// Slots the U lines may need when they take the spike; true when there is room for them.
bool u_has_room(LuFactors& lu) {
  const int column_need = lu.spike_count + kLuLineSlack;
  if (lines_free(lu.u_cols) < column_need) lines_compress(lu.u_cols);
  if (lines_free(lu.u_cols) < column_need) return false;
  int row_need = 0;
  const SparseLines& rows = lu.u_rows;
  for (int k = 0; k < lu.spike_count; ++k) {
    const int i = lu.spike_index[k];
    if (rows.length[i] >= rows.room[i]) row_need += lines_moved_room(rows.length[i]);
  }
  if (lines_free(lu.u_rows) < row_need) lines_compress(lu.u_rows);
  return lines_free(lu.u_rows) >= row_need;
}

// Gives a line at least `need` slots of room, moving it to the free end (room checked before).
void reserve_line(SparseLines& s, int line, int need) {
  if (s.room[line] >= need) return;
  s.start[line] = s.used;
  s.room[line] = need;
  s.used += need;
}

// Takes line `line` of one copy of U out of both copies: `mirror` is the transposed copy.
void remove_u_line(LuFactors& lu, SparseLines& lines, SparseLines& mirror, int line) {
  for (int s = lines.start[line]; s < lines.start[line] + lines.length[line]; ++s) {
    const int other = lines.index[s];
    lines_erase_slot(mirror, other, lines_find(mirror, other, line));
  }
  lu.length_u -= lines.length[line];
  lines.length[line] = 0;
}

void append_eta(LuFactors& lu, int r) {
  const SparseVector& m = lu.scratch;
  int end = lu.eta_start[lu.eta_count];
  for (int k = 0; k < m.count; ++k) {
    const int i = m.index[k];
    if (m.value[i] == 0.0) continue;
    lu.eta_index[end] = i;
    lu.eta_value[end++] = m.value[i];
  }
  if (end == lu.eta_start[lu.eta_count]) return;
  lu.eta_row[lu.eta_count++] = r;
  lu.eta_start[lu.eta_count] = end;
  lu.eta_length = end;
}

void insert_spike(LuFactors& lu, int p, int r) {
  reserve_line(lu.u_cols, p, lu.spike_count + kLuLineSlack);
  for (int k = 0; k < lu.spike_count; ++k) {
    const int i = lu.spike_index[k];
    if (i == r) continue;
    lines_append(lu.u_cols, p, i, lu.spike_value[k]);
    lines_append(lu.u_rows, i, p, lu.spike_value[k]);
    ++lu.length_u;
  }
}

}  // namespace

LuStatus lu_update(LuFactors& lu, int position, const LuSettings& settings) {
  lu.last_refusal = LuRefusal::none;
  if (!lu.valid || !lu.spike_valid) return refuse(lu, LuRefusal::no_spike);
  if (position < 0 || position >= lu.m) return refuse(lu, LuRefusal::bad_position);
  const int capacity = static_cast<int>(std::min(lu.eta_row.size(), lu.order_row.size() - lu.m));
  if (lu.update_count >= settings.max_updates || lu.update_count >= capacity) {
    return refuse(lu, LuRefusal::too_many_updates);
  }
  const int p = position;
  const int r = lu.row_of_col[p];
  eta_multipliers(lu, r);
  const double* m = lu.scratch.value.data();
  double diagonal = 0.0;
  double spike_max = 0.0;
  for (int k = 0; k < lu.spike_count; ++k) {
    const int i = lu.spike_index[k];
    spike_max = std::max(spike_max, std::fabs(lu.spike_value[k]));
    diagonal += i == r ? lu.spike_value[k] : -m[i] * lu.spike_value[k];
  }
  double growth = 0.0;
  int eta_entries = 0;
  for (int k = 0; k < lu.scratch.count; ++k) {
    growth = std::max(growth, std::fabs(m[lu.scratch.index[k]]));
    ++eta_entries;
  }
  if (std::fabs(diagonal) <= settings.singularity_tol * std::max(1.0, spike_max)) {
    return refuse(lu, LuRefusal::singular);
  }
  const double expected = result_at(lu, p) * lu.diag[r];
  if (growth > std::pow(settings.update_tol, kLuUpdateGrowthPower) ||
      std::fabs(diagonal - expected) > kLuUpdateCheckTol * std::fabs(diagonal)) {
    return refuse(lu, LuRefusal::unstable);
  }
  const int new_length = lu.length_u - lu.u_cols.length[p] - lu.u_rows.length[r] +
                         lu.spike_count + lu.eta_length + eta_entries;
  if (new_length > lu.fill_limit) return refuse(lu, LuRefusal::fill);
  if (lu.eta_length + eta_entries > static_cast<int>(lu.eta_index.size()) || !u_has_room(lu)) {
    return refuse(lu, LuRefusal::storage);
  }
  remove_u_line(lu, lu.u_cols, lu.u_rows, p);
  remove_u_line(lu, lu.u_rows, lu.u_cols, r);
  append_eta(lu, r);
  insert_spike(lu, p, r);
  sparse_clear(lu.scratch);
  lu.diag[r] = diagonal;
  const int slot = lu.rank[r];
  lu.order_row[slot] = -1;
  lu.order_col[slot] = -1;
  lu.order_row[lu.order_length] = r;
  lu.order_col[lu.order_length] = p;
  lu.rank[r] = lu.order_length++;
  ++lu.update_count;
  lu.spike_valid = false;
  return LuStatus::ok;
}

}  // namespace tarvo::lp
