// The basis of the working problem: building it from a slot's states, factorizing it (with the
// repair of a singular basis), and the primal values, duals, reduced costs and pivot rows that
// follow from it.
#include <algorithm>
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

void place_nonbasic(SimplexState& s, int j) {
  const double lo = s.lower[j];
  const double up = s.upper[j];
  signed char st = s.state[j];
  if (st == kSuperbasicVar) {
    if (s.x[j] >= lo && s.x[j] <= up) return;
    st = kNonbasicLower;
  }
  if (st == kNonbasicUpper && std::isfinite(up)) {
    s.x[j] = up;
  } else if (std::isfinite(lo)) {
    st = kNonbasicLower;
    s.x[j] = lo;
  } else if (std::isfinite(up)) {
    st = kNonbasicUpper;
    s.x[j] = up;
  } else {
    st = kNonbasicFree;
    s.x[j] = 0.0;
  }
  s.state[j] = st;
}

namespace {

// Nonbasic variable j takes the state slot entry k gives it, and the value that goes with it.
void take_nonbasic_state(SimplexState& s, const ProblemSlot& slot, int j, int k) {
  const int hs = slot.hs[k];
  if (hs == kSuperbasic) {
    s.state[j] = kSuperbasicVar;
    s.x[j] = slot.xn[k] * s.inverse_scale[j];
  } else {
    s.state[j] = hs == kAtUpper ? kNonbasicUpper : kNonbasicLower;
  }
  place_nonbasic(s, j);
}

}  // namespace

// Takes hs (and xn for superbasics) as the starting basis. Too many basic variables: the last
// ones become nonbasic; too few: logicals fill the gap (the factorization repairs the rest).
void basis_from_slot(SimplexState& s, const ProblemSlot& slot) {
  const int nt = s.n + s.m;
  int count = 0;
  for (int j = 0; j < nt; ++j) {
    const int k = j < s.n ? j + 1 : slot.n + s.slot_row[j - s.n];
    const int hs = slot.hs[k];
    s.position[j] = -1;
    if (hs == kBasic && count < s.m) {
      s.state[j] = kBasicVar;
      s.position[j] = count;
      s.head[count++] = j;
      continue;
    }
    take_nonbasic_state(s, slot, j, k);
  }
  for (int i = 0; i < s.m && count < s.m; ++i) {
    const int j = s.n + i;
    if (s.state[j] == kBasicVar) continue;
    s.state[j] = kBasicVar;
    s.position[j] = count;
    s.head[count++] = j;
  }
}

// The kept basis when the slot's basic variables are exactly its own: then only the nonbasic
// states and values are taken, in the same pass that compares. Returns false, with the states
// partly taken, at the first difference.
bool keep_basis_from_slot(SimplexState& s, const ProblemSlot& slot) {
  // Locals throughout: a store to a state (a char) could otherwise alias every member, which
  // would then be read again for each variable.
  const int n = s.n;
  const int nt = s.n + s.m;
  const int slot_n = slot.n;
  const int* slot_hs = slot.hs.data();
  const int* slot_row = s.slot_row.data();
  const double* lower = s.lower.data();
  const double* upper = s.upper.data();
  signed char* state = s.state.data();
  double* x = s.x.data();
  for (int j = 0; j < nt; ++j) {
    const int k = j < n ? j + 1 : slot_n + slot_row[j - n];
    const int hs = slot_hs[k];
    if ((hs == kBasic) != (state[j] == kBasicVar)) return false;
    if (hs == kBasic) continue;
    // At a finite bound of the state it had, as place_nonbasic would settle it.
    if (hs == kAtLower && std::isfinite(lower[j])) {
      state[j] = kNonbasicLower;
      x[j] = lower[j];
    } else if (hs == kAtUpper && std::isfinite(upper[j])) {
      state[j] = kNonbasicUpper;
      x[j] = upper[j];
    } else {
      take_nonbasic_state(s, slot, j, k);
    }
  }
  return true;
}

int factorize_basis(SimplexState& s, const SimplexSettings& settings, Units& units) {
  s.lu_settings = settings.lu;
  s.lu_settings.factor_tol = s.factor_tol;
  s.lu_settings.max_updates = settings.factor_frequency;
  std::copy(s.head.begin(), s.head.begin() + s.m, s.saved_head.begin());
  const LuStatus status = lu_factorize(s.lu, s.m, s.n, s.col_start.data(), s.row_index.data(),
                                       s.value.data(), s.head.data(), s.lu_settings, s.lu_report);
  ++s.counters.factorizations;
  write_factor_events(s.lu_report, s.lu_settings.factor_tol, s.m, settings, units);
  if (status == LuStatus::out_of_storage || status == LuStatus::invalid_input) {
    s.factors_valid = false;
    return status == LuStatus::out_of_storage ? kExitFactorStorage : kExitBasisError;
  }
  if (status == LuStatus::singular_repaired) {
    ++s.counters.singular_repairs;
    for (int p : s.lu_report.replaced_positions) {
      const int old = s.saved_head[p];
      const int now = s.head[p];
      if (old == now) continue;
      s.position[old] = -1;
      s.state[old] = kNonbasicLower;
      place_nonbasic(s, old);
      s.d[old] = 0.0;
      s.position[now] = p;
      s.state[now] = kBasicVar;
    }
    s.dual_weights_valid = false;
  }
  s.factors_valid = true;
  s.updates = 0;
  s.refactor_due = false;
  return kExitOptimal;
}

void load_column(const SimplexState& s, int j, SparseVector& v) {
  sparse_clear(v);
  if (j >= s.n) {
    v.value[j - s.n] = 1.0;
    v.index[v.count++] = j - s.n;
    return;
  }
  for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
    v.value[s.row_index[k]] = s.value[k];
    v.index[v.count++] = s.row_index[k];
  }
}

void load_unit_row(SimplexState& s, int r) {
  sparse_clear(s.rho);
  s.rho.value[r] = 1.0;
  s.rho.index[s.rho.count++] = r;
}

// x_B = B^-1 (-N x_N): the rows of [A I] x = 0 hold exactly.
void compute_primal_values(SimplexState& s) {
  SparseVector& w = s.work;
  sparse_clear(w);
  for (int j = 0; j < s.n; ++j) {
    if (s.state[j] == kBasicVar || s.x[j] == 0.0) continue;
    const double xj = s.x[j];
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) w.value[s.row_index[k]] -= s.value[k] * xj;
  }
  for (int i = 0; i < s.m; ++i) {
    const int j = s.n + i;
    if (s.state[j] != kBasicVar) w.value[i] -= s.x[j];
  }
  sparse_rebuild_pattern(w, 0.0);
  lu_ftran(s.lu, w, false);
  for (int p = 0; p < s.m; ++p) s.x[s.head[p]] = w.value[p];
  sparse_clear(w);
}

// Costs of the basic variables for the current phase; in phase 1 the gradient of the sum of
// infeasibilities. Returns true when any changed.
bool set_basic_costs(SimplexState& s) {
  bool changed = false;
  for (int p = 0; p < s.m; ++p) {
    const int j = s.head[p];
    double c = s.cost[j];
    if (s.phase == 1) {
      // Weighted by the scale so that the sum is that of the true infeasibilities.
      c = 0.0;
      if (s.x[j] < s.lower[j] - s.primal_tol[j]) c = -s.scale[j];
      else if (s.x[j] > s.upper[j] + s.primal_tol[j]) c = s.scale[j];
    }
    if (c != s.basic_cost[p]) {
      s.basic_cost[p] = c;
      changed = true;
    }
  }
  return changed;
}

// y = B^-T c_B, then d_j = c_j - a_j^T y for the nonbasic variables (c_j = 0 in phase 1).
void compute_duals(SimplexState& s) {
  SparseVector& w = s.work;
  sparse_clear(w);
  for (int p = 0; p < s.m; ++p) w.value[p] = s.basic_cost[p];
  sparse_rebuild_pattern(w, 0.0);
  lu_btran(s.lu, w);
  for (int i = 0; i < s.m; ++i) s.y[i] = w.value[i];
  sparse_clear(w);
  const bool phase_one = s.phase == 1;
  for (int j = 0; j < s.n; ++j) {
    if (s.state[j] == kBasicVar) {
      s.d[j] = 0.0;
      continue;
    }
    double dj = phase_one ? 0.0 : s.cost[j];
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) dj -= s.value[k] * s.y[s.row_index[k]];
    s.d[j] = dj;
  }
  for (int i = 0; i < s.m; ++i) {
    const int j = s.n + i;
    s.d[j] = s.state[j] == kBasicVar ? 0.0 : (phase_one ? 0.0 : s.cost[j]) - s.y[i];
  }
}

// Whether [A I] x = 0 holds to kRowResidualTol relative to the largest |x_j|: updates of the basic
// values drift from it as the factors age.
bool rows_hold(SimplexState& s) {
  std::fill(s.implied_row.begin(), s.implied_row.begin() + s.m, 0.0);
  double largest = 1.0;
  for (int j = 0; j < s.n; ++j) {
    const double xj = s.x[j];
    if (xj == 0.0) continue;
    largest = std::max(largest, std::fabs(xj));
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) s.implied_row[s.row_index[k]] += s.value[k] * xj;
  }
  double worst = 0.0;
  for (int i = 0; i < s.m; ++i) {
    largest = std::max(largest, std::fabs(s.x[s.n + i]));
    worst = std::max(worst, std::fabs(s.implied_row[i] + s.x[s.n + i]));
  }
  return worst <= kRowResidualTol * largest;
}

void measure_infeasibility(SimplexState& s) {
  s.ninf = 0;
  s.sinf = 0.0;
  for (int p = 0; p < s.m; ++p) {
    const int j = s.head[p];
    const double v = primal_infeasibility(s, j);
    if (v > 0.0) {
      ++s.ninf;
      s.sinf += v * s.scale[j];
    }
  }
}

// Fixed variables are screened last: few reduced costs have the wrong sign at all.
int count_dual_infeasible(const SimplexState& s) {
  int count = 0;
  for (int j = 0; j < s.n + s.m; ++j)
    count += wrong_sign_part(s.state[j], s.d[j]) > s.dual_tol[j] && s.lower[j] != s.upper[j];
  return count;
}

double working_objective(const SimplexState& s) {
  double sum = 0.0;
  for (int j = 0; j < s.n; ++j) sum += s.base_cost[j] * s.x[j];
  return sum;
}

// pivot_row = rho^T [A I] over the nonbasic variables, row-wise while rho is sparse.
void compute_pivot_row(SimplexState& s) {
  for (int k = 0; k < s.pivot_count; ++k) {
    s.pivot_row[s.pivot_index[k]] = 0.0;
    s.pivot_mark[s.pivot_index[k]] = 0;
  }
  s.pivot_count = 0;
  const SparseVector& rho = s.rho;
  long long rowwise_entries = 0;
  for (int t = 0; t < rho.count; ++t) rowwise_entries += s.row_start[rho.index[t] + 1] - s.row_start[rho.index[t]];
  if (rowwise_entries < kRowwiseShare * s.col_start[s.n]) {
    for (int t = 0; t < rho.count; ++t) {
      const int i = rho.index[t];
      const double ri = rho.value[i];
      if (ri == 0.0) continue;
      for (int k = s.row_start[i]; k < s.row_start[i + 1]; ++k) {
        const int j = s.col_index[k];
        if (s.state[j] == kBasicVar) continue;
        if (!s.pivot_mark[j]) {
          s.pivot_mark[j] = 1;
          s.pivot_index[s.pivot_count++] = j;
        }
        s.pivot_row[j] += ri * s.row_value[k];
      }
      const int j = s.n + i;
      if (s.state[j] != kBasicVar) {
        s.pivot_mark[j] = 1;
        s.pivot_index[s.pivot_count++] = j;
        s.pivot_row[j] = ri;
      }
    }
    return;
  }
  for (int j = 0; j < s.n; ++j) {
    if (s.state[j] == kBasicVar) continue;
    double sum = 0.0;
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) sum += rho.value[s.row_index[k]] * s.value[k];
    if (sum == 0.0) continue;
    s.pivot_mark[j] = 1;
    s.pivot_index[s.pivot_count++] = j;
    s.pivot_row[j] = sum;
  }
  for (int i = 0; i < s.m; ++i) {
    const int j = s.n + i;
    if (s.state[j] == kBasicVar || rho.value[i] == 0.0) continue;
    s.pivot_mark[j] = 1;
    s.pivot_index[s.pivot_count++] = j;
    s.pivot_row[j] = rho.value[i];
  }
}

// Variable q takes basis position r; the variable there leaves at the given value.
void swap_basic(SimplexState& s, int r, int q, int leaving_state, double leaving_value) {
  const int p = s.head[r];
  s.head[r] = q;
  s.position[q] = r;
  s.state[q] = kBasicVar;
  s.position[p] = -1;
  s.state[p] = static_cast<signed char>(leaving_state);
  s.x[p] = leaving_value;
}

// Replaces the factors' column in position r by the column last transformed with keep_spike.
// Returns false when the factors must be recomputed before the next iteration.
bool update_factors(SimplexState& s, int r, const SimplexSettings& settings, Units& units) {
  ++s.updates;
  const LuStatus status = lu_update(s.lu, r, s.lu_settings);
  if (status != LuStatus::ok) {
    if (lu_last_refusal(s.lu) == LuRefusal::singular) write_replace_singular(r + 1, settings, units);
    s.refactor_due = true;
    return false;
  }
  return true;
}

bool pivot_agrees(double from_row, double from_column) {
  return std::fabs(from_row - from_column) <= kPivotMismatch * (1.0 + std::fabs(from_column));
}

bool refactor_for_accuracy(SimplexState& s, const SimplexSettings& settings, Units& units) {
  if (s.updates > 0) {
    s.refactor_due = true;
    return true;
  }
  if (s.factor_tol <= kLeastFactorTol) return false;
  s.factor_tol = std::max(kLeastFactorTol, s.factor_tol / kFactorTolReduction);
  write_factor_tol_reduced(s.factor_tol, settings, units);
  s.refactor_due = true;
  return true;
}

// After a basis change with entering q in position r: d_j -= dual_step * alpha_rj, and the
// leaving variable's reduced cost is -dual_step. The duals move along rho.
void update_reduced_costs(SimplexState& s, int q, int r, double dual_step) {
  if (dual_step != 0.0) {
    for (int k = 0; k < s.pivot_count; ++k) {
      const int j = s.pivot_index[k];
      s.d[j] -= dual_step * s.pivot_row[j];
    }
    for (int t = 0; t < s.rho.count; ++t) {
      const int i = s.rho.index[t];
      s.y[i] += dual_step * s.rho.value[i];
    }
  }
  // A phase-1 cost belongs to the basic position; as nonbasic the leaving variable costs 0.
  const int leaving = s.head[r];
  s.d[leaving] = -dual_step - (s.phase == 1 ? s.basic_cost[r] : 0.0);
  s.d[q] = 0.0;
  s.basic_cost[r] = s.phase == 1 ? 0.0 : s.cost[q];
}

void clear_rejections(SimplexState& s) {
  if (!s.candidates_rejected) return;
  std::fill(s.rejected.begin(), s.rejected.end(), -1);
  s.candidates_rejected = false;
}

void restore_costs(SimplexState& s) {
  std::copy(s.base_cost.begin(), s.base_cost.begin() + s.n + s.m, s.cost.begin());
  s.costs_shifted = false;
}

void restore_bounds(SimplexState& s) {
  const int nt = s.n + s.m;
  std::copy(s.base_lower.begin(), s.base_lower.begin() + nt, s.lower.begin());
  std::copy(s.base_upper.begin(), s.base_upper.begin() + nt, s.upper.begin());
  for (int j = 0; j < nt; ++j)
    if (s.state[j] != kBasicVar) place_nonbasic(s, j);
  s.bounds_perturbed = false;
}

// Uniform in [0, 1), from a 64-bit xorshift generator kept in the state so that runs repeat.
double next_random(SimplexState& s) {
  s.random ^= s.random << 13;
  s.random ^= s.random >> 7;
  s.random ^= s.random << 17;
  return static_cast<double>(s.random >> 11) * (1.0 / 9007199254740992.0);
}

}  // namespace tarvo::lp
