// The working problem: a scaled, 0-based copy of a slot with the objective row taken out as the
// cost vector, and the way back from its solution to the slot's arrays.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>

#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

// Scales are powers of 2, so multiplying by the inverse is exact.
double working_lower(double bound, double inverse_scale) {
  return bound <= -kInfiniteBound ? -kInf : bound * inverse_scale;
}
double working_upper(double bound, double inverse_scale) {
  return bound >= kInfiniteBound ? kInf : bound * inverse_scale;
}

int objective_row_of(const ProblemSlot& slot) { return slot.iobj >= 1 && slot.iobj <= slot.m ? slot.iobj : 0; }

// The row-wise copy of the column-wise matrix.
void build_row_copy(SimplexState& s) {
  std::fill(s.row_start.begin(), s.row_start.begin() + s.m + 1, 0);
  const int ne = s.col_start[s.n];
  for (int k = 0; k < ne; ++k) ++s.row_start[s.row_index[k] + 1];
  for (int i = 0; i < s.m; ++i) s.row_start[i + 1] += s.row_start[i];
  std::vector<int>& next = s.candidate;  // free until the first ratio test
  std::copy(s.row_start.begin(), s.row_start.begin() + s.m, next.begin());
  for (int j = 0; j < s.n; ++j) {
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      const int slot_k = next[s.row_index[k]]++;
      s.col_index[slot_k] = j;
      s.row_value[slot_k] = s.value[k];
    }
  }
}

}  // namespace

// The constraint part (every row but the objective) equal to what the scaled copy was made from.
bool slot_matrix_unchanged(const SimplexState& s, const ProblemSlot& slot, int scale_option) {
  if (!s.matrix_valid || s.source_m != slot.m || s.source_n != slot.n || s.source_ne != slot.ne ||
      s.source_objective_row != objective_row_of(slot) || s.source_scale_option != scale_option)
    return false;
  if (std::memcmp(s.source_ka.data(), slot.ka.data() + 1, sizeof(int) * (slot.n + 1)) != 0) return false;
  if (std::memcmp(s.source_ha.data(), slot.ha.data() + 1, sizeof(int) * slot.ne) != 0) return false;
  if (std::memcmp(s.source_a.data(), slot.a.data() + 1, sizeof(double) * slot.ne) == 0) return true;
  const int iobj = objective_row_of(slot);
  for (int k = 0; k < slot.ne; ++k)
    if (s.source_a[k] != slot.a[k + 1] && slot.ha[k + 1] != iobj) return false;
  return true;
}

namespace {

// Adds each entry of a column's list to its working row's sum, skipping those the load skips,
// and lists (and marks in row_mark) the rows first touched.
void add_row_sums(SimplexState& s, const int* rows, const double* values, int count, int slot_m,
                  std::vector<double>& sum, int* touched, int& touched_count) {
  for (int k = 0; k < count; ++k) {
    const int i = rows[k];
    if (i == s.objective_row || i < 1 || i > slot_m || values[k] == 0.0) continue;
    const int r = s.work_row[i];
    if (!s.row_mark[r]) {
      s.row_mark[r] = 1;
      touched[touched_count++] = r;
    }
    sum[r] += values[k];
  }
}

void mark_differing_values(SimplexState& s, const int* rows, const double* before, const double* now, int count,
                           int slot_m) {
  for (int k = 0; k < count; ++k) {
    const int i = rows[k];
    if (before[k] == now[k] || i == s.objective_row || i < 1 || i > slot_m) continue;
    s.row_changed[s.work_row[i]] = 1;
  }
}

}  // namespace

bool mark_changed_rows(SimplexState& s, const ProblemSlot& slot, int scale_option) {
  if (!s.matrix_valid || s.source_m != slot.m || s.source_n != slot.n ||
      s.source_objective_row != objective_row_of(slot) || s.source_scale_option != scale_option)
    return false;
  std::fill(s.row_changed.begin(), s.row_changed.begin() + s.m, 0);
  int* touched = s.candidate.data();  // free until the first ratio test
  for (int j = 0; j < s.n; ++j) {
    const int source_first = s.source_ka[j] - 1;
    const int source_count = s.source_ka[j + 1] - s.source_ka[j];
    const int slot_first = slot.ka[j + 1];
    const int slot_count = slot.ka[j + 2] - slot.ka[j + 1];
    if (source_count == slot_count &&
        std::memcmp(&s.source_ha[source_first], &slot.ha[slot_first], sizeof(int) * slot_count) == 0) {
      // Same rows in the same order (values rewritten in place): the rows of differing values
      // change, which marks a row whose repeated entries keep their sum too, harmlessly.
      mark_differing_values(s, &slot.ha[slot_first], &s.source_a[source_first], &slot.a[slot_first],
                            slot_count, slot.m);
      continue;
    }
    int touched_count = 0;
    add_row_sums(s, &s.source_ha[source_first], &s.source_a[source_first], source_count, slot.m,
                 s.source_row_sum, touched, touched_count);
    add_row_sums(s, &slot.ha[slot_first], &slot.a[slot_first], slot_count, slot.m, s.slot_row_sum, touched,
                 touched_count);
    for (int t = 0; t < touched_count; ++t) {
      const int r = touched[t];
      s.row_changed[r] |= s.source_row_sum[r] != s.slot_row_sum[r];
      s.source_row_sum[r] = s.slot_row_sum[r] = 0.0;
      s.row_mark[r] = 0;
    }
  }
  return true;
}

void load_working_matrix(SimplexState& s, const ProblemSlot& slot, const SimplexSettings& settings,
                         ScaleReuse reuse) {
  const int iobj = objective_row_of(slot);
  s.objective_row = iobj;
  s.n = slot.n;
  s.m = 0;
  for (int i = 1; i <= slot.m; ++i) {
    if (i == iobj) {
      s.work_row[i] = -1;
      continue;
    }
    s.work_row[i] = s.m;
    s.slot_row[s.m++] = i;
  }
  // The arrays of entries only grow, so that a matrix reloaded at its earlier size (a master
  // whose cuts come and go) is not zeroed again.
  const std::size_t entries = static_cast<std::size_t>(std::max(slot.ne, 0));
  for (auto* v : {&s.row_index, &s.col_index, &s.source_ha})
    if (v->size() < entries) v->resize(entries);
  for (auto* v : {&s.value, &s.row_value, &s.source_a})
    if (v->size() < entries) v->resize(entries);
  // Entries repeated within a column add up (the factorization takes each row once).
  int* last = s.candidate.data();  // position of each row's entry in the current column
  std::fill(last, last + s.m, -1);
  int ne = 0;
  s.objective_count = 0;
  for (int j = 0; j < s.n; ++j) {
    s.col_start[j] = ne;
    for (int k = slot.ka[j + 1]; k < slot.ka[j + 2]; ++k) {
      const int i = slot.ha[k];
      if (i == iobj && iobj > 0) {
        // The objective row's entry lists grow as entries are met: sized by all entries, they
        // would touch memory no objective uses.
        if (static_cast<std::size_t>(s.objective_count) == s.objective_col.size()) {
          const std::size_t room = 2 * s.objective_col.size() + 16;
          s.objective_col.resize(room);
          s.objective_at.resize(room);
        }
        s.objective_col[s.objective_count] = j;
        s.objective_at[s.objective_count++] = k;
      }
      if (i == iobj || i < 1 || i > slot.m || slot.a[k] == 0.0) continue;
      const int r = s.work_row[i];
      if (last[r] >= s.col_start[j]) {
        s.value[last[r]] += slot.a[k];
        continue;
      }
      last[r] = ne;
      s.row_index[ne] = r;
      s.value[ne++] = slot.a[k];
    }
  }
  s.col_start[s.n] = ne;
  // Solve vectors span this problem's rows, not the slot's capacity: their dense passes then
  // cost O(m). The capacity stays, so no allocation happens here.
  for (auto* v : {&s.column, &s.rho, &s.tau, &s.work}) sparse_resize(*v, s.m);

  s.source_m = slot.m;
  s.source_n = slot.n;
  s.source_ne = slot.ne;
  s.source_objective_row = iobj;
  s.source_scale_option = settings.scale_option;
  std::copy(slot.ka.begin() + 1, slot.ka.begin() + slot.n + 2, s.source_ka.begin());
  std::copy(slot.ha.begin() + 1, slot.ha.begin() + slot.ne + 1, s.source_ha.begin());
  std::copy(slot.a.begin() + 1, slot.a.begin() + slot.ne + 1, s.source_a.begin());

  if (reuse == ScaleReuse::none) compute_scales(s, settings);
  if (reuse == ScaleReuse::unchanged_rows && settings.scale_option > 0) scale_changed_rows(s);
  for (int j = 0; j < s.n; ++j) {
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k)
      s.value[k] *= s.scale[j] / s.scale[s.n + s.row_index[k]];
  }
  build_row_copy(s);
  s.matrix_valid = true;
  s.factors_valid = false;
  s.dual_weights_valid = false;
}

namespace {

// The costs of the objective row's entries, summed per column in entry order.
bool load_costs_in_full(SimplexState& s, const ProblemSlot& slot) {
  const int nt = s.n + s.m;
  // The new costs go to `cost` first, so that they can be compared with the previous ones.
  std::fill(s.cost.begin(), s.cost.begin() + nt, 0.0);
  for (int t = 0; t < s.objective_count; ++t) {
    const int j = s.objective_col[t];
    s.cost[j] += s.sense * slot.a[s.objective_at[t]] * s.scale[j];
  }
  const bool costs_changed = !std::equal(s.cost.begin(), s.cost.begin() + nt, s.base_cost.begin());
  std::copy(s.cost.begin(), s.cost.begin() + nt, s.base_cost.begin());
  return costs_changed;
}

// The same when the working matrix and its objective entries are those of the last load and the
// costs carry no shifts: every other cost is zero already, so only the listed columns are visited.
bool load_listed_costs(SimplexState& s, const ProblemSlot& slot) {
  bool costs_changed = false;
  for (int t = 0; t < s.objective_count;) {
    const int j = s.objective_col[t];
    double c = 0.0;
    for (; t < s.objective_count && s.objective_col[t] == j; ++t)
      c += s.sense * slot.a[s.objective_at[t]] * s.scale[j];
    costs_changed |= c != s.base_cost[j];
    s.cost[j] = s.base_cost[j] = c;
  }
  return costs_changed;
}

// The working column bounds are those a load would give: the slot's column bounds are bit for
// bit those last loaded, with the same scales, and no solve left them perturbed (the working
// bounds are then the base ones).
bool column_bounds_kept(const SimplexState& s, const ProblemSlot& slot, bool matrix_kept) {
  const std::size_t bytes = sizeof(double) * s.n;
  return matrix_kept && !s.bounds_perturbed &&
         std::memcmp(slot.bl.data() + 1, s.source_bl.data(), bytes) == 0 &&
         std::memcmp(slot.bu.data() + 1, s.source_bu.data(), bytes) == 0;
}

}  // namespace

bool load_costs_and_bounds(SimplexState& s, const ProblemSlot& slot, const SimplexSettings& settings,
                           bool matrix_kept) {
  s.sense = settings.sense;
  const bool costs_changed =
      matrix_kept && !s.costs_shifted ? load_listed_costs(s, slot) : load_costs_in_full(s, slot);
  const auto load_bounds = [&s, &slot](int j, int k) {
    s.lower[j] = s.base_lower[j] = working_lower(slot.bl[k], s.inverse_scale[j]);
    s.upper[j] = s.base_upper[j] = working_upper(slot.bu[k], s.inverse_scale[j]);
  };
  if (!column_bounds_kept(s, slot, matrix_kept)) {
    for (int j = 0; j < s.n; ++j) load_bounds(j, j + 1);
    std::copy_n(slot.bl.begin() + 1, s.n, s.source_bl.begin());
    std::copy_n(slot.bu.begin() + 1, s.n, s.source_bu.begin());
  }
  for (int i = 0; i < s.m; ++i) load_bounds(s.n + i, slot.n + s.slot_row[i]);
  s.costs_shifted = false;
  s.bounds_perturbed = false;
  return costs_changed;
}

// Unscales the working solution into the slot: xn (columns, then each row's logical, which is
// minus the row activity), pi = d obj / d row limit, rc = c - A^T pi, hs, ninf, sinf, obj.
void store_solution(const SimplexState& s, ProblemSlot& slot, bool phase_one_duals) {
  const double sense = phase_one_duals ? 1.0 : s.sense;
  static_assert(kBasicVar == 0 && kNonbasicLower == 1 && kNonbasicUpper == 2 && kNonbasicFree == 3 &&
                kSuperbasicVar == 4);
  static constexpr int kSlotState[] = {kBasic, kAtLower, kAtUpper, kAtLower, kSuperbasic};
  // Locals throughout: the stores to hs (ints) could otherwise alias the sizes, which would then
  // be read again for each variable.
  const int n = s.n;
  const int m = s.m;
  const signed char* state = s.state.data();
  const double* x = s.x.data();
  const double* scale = s.scale.data();
  const double* inverse_scale = s.inverse_scale.data();
  const double* base_cost = s.base_cost.data();
  const double* d = s.d.data();
  const double* y = s.y.data();
  const int* slot_row = s.slot_row.data();
  int* hs = slot.hs.data();
  double* xn = slot.xn.data();
  double* rc = slot.rc.data();
  double* pi = slot.pi.data();
  const int slot_n = slot.n;
  // Scales are powers of 2: a nonbasic variable on its bound reports the bound exactly (one that
  // slipped within its tolerance, where it is).
  const auto value_of = [&](int j) { return state[j] == kNonbasicFree ? 0.0 : x[j] * scale[j]; };
  double activity = 0.0;  // of the objective row
  int superbasics = 0;
  for (int j = 0; j < n; ++j) {
    const int k = j + 1;
    const double value = value_of(j);
    hs[k] = kSlotState[state[j]];
    xn[k] = value;
    rc[k] = sense * d[j] * inverse_scale[j];
    if (base_cost[j] != 0.0) activity += s.sense * base_cost[j] * inverse_scale[j] * value;
    superbasics += state[j] == kSuperbasicVar;
  }
  for (int i = 0; i < m; ++i) {
    const int j = n + i;
    const int k = slot_n + slot_row[i];
    hs[k] = kSlotState[state[j]];
    xn[k] = value_of(j);
    pi[slot_row[i]] = sense * y[i] * inverse_scale[j];
    superbasics += state[j] == kSuperbasicVar;
  }
  if (s.objective_row > 0) {
    slot.pi[s.objective_row] = 0.0;
    slot.hs[slot.n + s.objective_row] = kBasic;
    slot.xn[slot.n + s.objective_row] = -activity;
  }
  slot.ns = superbasics;
  slot.ninf = s.ninf;
  slot.sinf = s.sinf;
  slot.obj = activity + s.nonlinear_objective + slot.objadd;
}

}  // namespace tarvo::lp
