// The optimizer's entry: options and workspace, the start word, the choice between the primal
// and the dual method, and the solution handed back to the slot.
#include <algorithm>
#include <cctype>
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

// Updates per factorization that the factors reserve room for: the default factorization
// frequency (a larger one grows the update file on its first use).
constexpr int kReservedUpdates = 100;

enum class StartKind { cold, warm, hot };

struct StartMode {
  StartKind kind = StartKind::cold;
  bool keep_factors = false;
  bool keep_hessian = false;
  bool keep_scales = false;
};

// First letter C or B cold, W warm, H hot. A hot word of at most four characters keeps the
// factors, the reduced Hessian and the scales; a longer one keeps those whose letters (F, H, S)
// stand in its fifth and later characters.
StartMode interpret_start(std::string_view word, const SimplexSettings& settings, Units& units) {
  StartMode mode;
  const char first = word.empty() ? ' ' : static_cast<char>(std::toupper(static_cast<unsigned char>(word[0])));
  switch (first) {
    case 'C':
    case 'B': return mode;
    case 'W': mode.kind = StartKind::warm; return mode;
    case 'H': break;
    default: write_start_not_recognized(word, settings, units); return mode;
  }
  mode.kind = StartKind::hot;
  std::string_view trimmed = word;
  while (!trimmed.empty() && trimmed.back() == ' ') trimmed.remove_suffix(1);
  if (trimmed.size() <= 4) {
    mode.keep_factors = mode.keep_hessian = mode.keep_scales = true;
    return mode;
  }
  for (char c : trimmed.substr(4)) {
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    mode.keep_factors |= c == 'F';
    mode.keep_hessian |= c == 'H';
    mode.keep_scales |= c == 'S';
  }
  return mode;
}

// Takes the basis the slot and the kept state allow. Returns true when the kept factors still
// belong to it.
bool prepare_basis(SimplexState& s, const ProblemSlot& slot, const SimplexSettings& settings, StartMode mode,
                   bool matrix_kept) {
  if (mode.kind == StartKind::cold) {
    std::fill(s.state.begin(), s.state.begin() + s.n + s.m, static_cast<signed char>(kNonbasicLower));
    if (settings.crash_option > 0) crash_basis(s, settings.crash_option, settings.crash_tol);
    else slack_basis(s);
    return false;
  }
  if (matrix_kept && s.factors_valid && (mode.kind == StartKind::warm || mode.keep_factors) &&
      keep_basis_from_slot(s, slot))
    return true;
  basis_from_slot(s, slot);
  return false;
}

// Solves the working problem from the prepared basis: the primal method from a primal feasible
// basis, the dual method otherwise; then takes perturbations and shifts away and cleans up with
// whichever method the remaining infeasibilities call for. Reduced costs of the wrong sign at a
// cold start get the dual phase 1, and the costs are perturbed at once, since degeneracy is to be
// expected there; a warm start, close to an optimum, shifts the few costs its basis leaves of the
// wrong sign instead. An infeasible problem always ends with a primal phase 1, so that its duals
// are those of the sum of infeasibilities.
int solve_working_problem(SimplexState& s, const SimplexSettings& settings, Units& units, bool cold) {
  if (!s.factors_valid) {
    s.duals_current = false;  // fresh factors are there to recompute everything from
    const int code = factorize_basis(s, settings, units);
    if (code != kExitOptimal) return code;
  }
  if (s.changed_row_weights_due) weigh_changed_rows(s);
  int code = kExitOptimal;
  // True while x_B, y and d are those of the phase 2 objective at the current basis and costs;
  // then the final values need not be computed again.
  bool values_fresh = false;
  bool primal_current = false;  // x_B belongs to the bounds in use (costs do not move it)
  for (int round = 0; round < 4; ++round) {
    if (!primal_current) compute_primal_values(s);
    measure_infeasibility(s);
    s.phase = 2;
    if (round > 0 || !s.duals_current) {
      set_basic_costs(s);
      compute_duals(s);
    }
    int wrong_sign = count_dual_infeasible(s);
    if (s.ninf == 0 && wrong_sign == 0) {
      code = kExitOptimal;
      values_fresh = true;
      break;
    }
    if (s.ninf == 0) {
      code = run_primal(s, settings, units);
    } else {
      if (cold && round == 0 && wrong_sign > 0) {
        // The auxiliary problem is feasible: an infeasible verdict there can only be numerical,
        // and shifted costs take over as they do after a stall.
        code = run_dual_phase_one(s, settings, units);
        if (code != kExitOptimal && code != kExitStalled && code != kExitInfeasible) break;
        wrong_sign = count_dual_infeasible(s);
      }
      if (cold && round == 0) perturb_costs(s);
      code = run_dual(s, settings, units, wrong_sign == 0);
      values_fresh = code == kExitOptimal;
      if (code == kExitInfeasible) {
        restore_costs(s);
        code = run_primal(s, settings, units);
      }
    }
    if (code != kExitOptimal) break;
    if (!s.costs_shifted && !s.bounds_perturbed) break;
    values_fresh = false;
    primal_current = !s.bounds_perturbed;
    if (s.costs_shifted) restore_costs(s);
    if (s.bounds_perturbed) restore_bounds(s);
  }
  if (s.costs_shifted) restore_costs(s);
  if (s.bounds_perturbed) restore_bounds(s);
  s.duals_current = code == kExitOptimal;
  if (values_fresh) {
    measure_infeasibility(s);
    return code;
  }
  // Final values from the factors, with the duals of the objective (or of the sum of
  // infeasibilities when infeasible).
  if (s.factors_valid) {
    compute_primal_values(s);
    measure_infeasibility(s);
    s.phase = code == kExitInfeasible ? 1 : 2;
    for (int p = 0; p < s.m; ++p) s.basic_cost[p] = std::nan("");
    set_basic_costs(s);
    compute_duals(s);
    if (code == kExitInfeasible && s.ninf == 0) code = kExitNumerical;
  } else {
    s.duals_current = false;
  }
  return code;
}

// One solve of the working problem from the current basis, ending with the duals of its final
// point (of the gradient when the objective is quadratic).
int solve_from_basis(SimplexState& s, const SimplexSettings& settings, Units& units,
                     const Regularization& regularization, bool cold) {
  if (!s.quadratic) return solve_working_problem(s, settings, units, cold);
  const int code = run_reduced_gradient(s, settings, units, regularization);
  if (s.factors_valid && code != kExitInfeasible) {
    // Duals and reduced gradients of the final point, with the true costs kept in base_cost.
    compute_primal_values(s);
    evaluate_quadratic_gradient(s, regularization);
  }
  return code;
}

// Solves, then judges the result in true units: an optimal solution that falls short there has
// the offending variables' tolerances tightened, and one within the tolerances is polished, and the
// solve continues from the basis (on fresh factors after a shortfall, since inaccurate factors can
// cause one); an infeasible verdict that does not hold in true units has them widened instead. An
// optimal solution that still violates a row or bound in true units ends the solve with exit 10.
int solve_to_true_tolerances(SimplexState& s, const SimplexSettings& settings, Units& units,
                             const Regularization& regularization, bool cold) {
  reset_tolerances(s, settings);
  int code = solve_from_basis(s, settings, units, regularization, cold);
  bool polished = s.quadratic;
  double worst_dual = 0.0;
  for (int round = 0;; ++round) {
    const bool last = round == kCleanupRounds;
    if (code == kExitOptimal && s.factors_valid) {
      const TrueUnitCheck check = tighten_unscaled_violations(s, settings, !polished && !last);
      worst_dual = check.worst_dual;
      if (check.primal > 0 && last) return kExitNumerical;
      if (check.primal + check.dual + check.polish == 0 || last) break;
      if (check.primal + check.dual > 0) s.factors_valid = false;
      polished = true;
    } else if (last || code != kExitInfeasible || !s.factors_valid || !loosen_to_true_units(s, settings)) {
      break;
    }
    ++s.counters.cleanup_rounds;
    s.duals_current = false;
    clear_rejections(s);
    code = solve_from_basis(s, settings, units, regularization, false);
  }
  if (code != kExitOptimal) return code;
  // Optimal or near-optimal: the largest reduced gradient against the size of the duals.
  double reference = 1.0;
  for (int i = 0; i < s.m; ++i) reference = std::max(reference, std::fabs(s.y[i]));
  s.optimality_ratio = worst_dual / reference;
  return s.optimality_ratio < kNearOptimalRatio ? kExitOptimal : kExitNearOptimal;
}

int solve_slot(SimplexState& s, ProblemSlot& slot, const SimplexSettings& settings, Units& units, StartMode mode,
               const Regularization& regularization) {
  s.counters = SimplexCounters{};
  s.log_header_written = false;
  s.partial_start = 0;
  s.stall_count = 0;
  s.changed_row_weights_due = false;
  s.factor_tol = settings.lu.factor_tol;
  s.objadd = slot.objadd;
  const bool matrix_kept = slot_matrix_unchanged(s, slot, settings.scale_option);
  ScaleReuse reuse = ScaleReuse::none;
  if (!matrix_kept) {
    const bool same_shape = s.matrix_valid && s.source_m == slot.m && s.source_n == slot.n &&
                            s.source_scale_option == settings.scale_option;
    if (same_shape && mode.kind == StartKind::hot && mode.keep_scales) {
      reuse = ScaleReuse::all;
    } else if (slot.rescale_changed_rows_only && mark_changed_rows(s, slot, settings.scale_option)) {
      reuse = ScaleReuse::unchanged_rows;
      keep_dual_weights_by_variable(s);
    }
    load_working_matrix(s, slot, settings, reuse);
    s.counters.reused_scales = reuse == ScaleReuse::all;
  } else {
    s.counters.reused_scales = true;
  }
  const bool costs_changed = load_costs_and_bounds(s, slot, settings, matrix_kept);
  s.counters.reused_factors = prepare_basis(s, slot, settings, mode, matrix_kept);
  if (!s.counters.reused_factors) {
    s.factors_valid = false;
    s.dual_weights_valid = false;
    if (reuse == ScaleReuse::unchanged_rows && mode.kind != StartKind::cold) take_kept_dual_weights(s);
  }
  s.quadratic = slot.nnobj > 0;
  s.duals_current = s.duals_current && matrix_kept && s.counters.reused_factors && !costs_changed && !s.quadratic;
  s.nonlinear_objective = 0.0;
  clear_rejections(s);
  const int code = solve_to_true_tolerances(s, settings, units, regularization, mode.kind == StartKind::cold);
  store_solution(s, slot, code == kExitInfeasible);
  // An objective beyond UNBOUNDED OBJECTIVE VALUE counts as unbounded, however it was reached.
  if ((code == kExitOptimal || code == kExitNearOptimal) && std::fabs(slot.obj) > settings.unbounded_objective)
    return kExitUnbounded;
  return code;
}

}  // namespace

void allocate_simplex_state(SimplexState& s, int mmax, int nmax, int nemax) {
  s.mmax = mmax;
  s.nmax = nmax;
  s.nemax = nemax;
  const int nt = mmax + nmax;
  s.slot_row.assign(mmax, 0);
  s.work_row.assign(mmax + 1, -1);
  s.col_start.assign(nmax + 1, 0);
  s.row_start.assign(mmax + 1, 0);
  // Arrays of matrix entries are only reserved: loading a matrix sizes them to its entries, so a
  // run touches (and the system maps) the memory its problems use, not the whole capacity.
  for (auto* v : {&s.row_index, &s.col_index, &s.source_ha, &s.objective_col, &s.objective_at})
    v->reserve(nemax);
  for (auto* v : {&s.value, &s.row_value, &s.source_a}) v->reserve(nemax);
  for (auto* v : {&s.cost, &s.base_cost, &s.lower, &s.upper, &s.base_lower, &s.base_upper, &s.scale,
                  &s.inverse_scale, &s.x, &s.d,
                  &s.primal_weight, &s.primal_tol, &s.dual_tol, &s.pivot_row, &s.candidate_ratio, &s.hessian_diag,
                  &s.centre, &s.search})
    v->assign(nt, 0.0);
  std::fill(s.scale.begin(), s.scale.end(), 1.0);
  std::fill(s.inverse_scale.begin(), s.inverse_scale.end(), 1.0);
  s.col_scale_work.assign(nmax, 1.0);
  s.row_scale_work.assign(mmax, 1.0);
  s.row_min_work.assign(mmax, 0.0);
  s.row_floor_work.assign(mmax, 0.0);
  s.implied_row.assign(mmax, 0.0);
  s.col_floor_work.assign(nmax, 0.0);
  s.source_ka.assign(nmax + 1, 0);
  s.source_bl.assign(nmax, 0.0);
  s.source_bu.assign(nmax, 0.0);
  s.head.assign(mmax, 0);
  s.saved_head.assign(mmax, 0);
  s.position.assign(nt, -1);
  s.state.assign(nt, kNonbasicLower);
  s.y.assign(mmax, 0.0);
  s.basic_cost.assign(mmax, 0.0);
  s.dual_weight.assign(mmax, 1.0);
  s.pivot_index.assign(nt, 0);
  s.pivot_mark.assign(nt, 0);
  s.candidate.assign(nt, 0);
  s.rejected.assign(nt, -1);
  s.flipped.assign(nt, 0);
  s.row_mark.assign(mmax, 0);
  s.row_changed.assign(mmax, 0);
  s.variable_weight.assign(nt, 0.0);
  s.source_row_sum.assign(mmax, 0.0);
  s.slot_row_sum.assign(mmax, 0.0);
  s.superbasic.assign(nt, 0);
  s.regobj_x.assign(nmax + 1, 0.0);
  s.regobj_g.assign(nmax + 1, 0.0);
  for (auto* v : {&s.column, &s.rho, &s.tau, &s.work}) sparse_resize(*v, mmax);
  lu_reserve(s.lu, mmax, nemax, kReservedUpdates);
}

int simplex_workspace_needed(int m, int n, int ne) {
  (void)m;
  (void)n;
  return 2 * ne;
}

std::string_view solve_status_word(int status) {
  static constexpr std::string_view kWords[] = {"PROCEEDING  ", "OPTIMAL SOLN", "INFEASIBLE  ",
                                                "UNBOUNDED   ", "EXCESS ITNS ", "ERROR CONDN"};
  return kWords[std::clamp(status, 0, 5)];
}

SimplexSettings settings_from_options(const Options& o) {
  SimplexSettings t;
  t.feasibility_tol = o.rval[kFeasibilityTolerance];
  t.optimality_tol = o.rval[kOptimalityTolerance];
  t.pivot_tol = o.rval[kPivotTolerance];
  t.partial_price = o.ival[kPartialPrice];
  t.crash_option = o.ival[kCrashOption];
  t.crash_tol = o.rval[kCrashTolerance];
  t.scale_option = o.ival[kScaleOption];
  t.scale_tol = o.rval[kScaleTolerance];
  t.factor_frequency = std::max(1, o.ival[kFactorizationFrequency]);
  t.expand_frequency = std::max(1, o.ival[kExpandFrequency]);
  t.check_frequency = std::max(1, o.ival[kCheckFrequency]);
  t.unbounded_step = o.rval[kUnboundedStep];
  t.unbounded_objective = o.rval[kUnboundedObjective];
  t.iteration_limit = o.ival[kIterationLimit];
  t.log_frequency = o.ival[kLogFrequency];
  t.summary_frequency = o.ival[kSummaryFrequency];
  t.print_level = o.ival[kPrintLevel];
  t.print_unit = o.ival[kPrintFile];
  t.summary_unit = o.ival[kSummaryFile];
  t.superbasics_limit = o.ival[kSuperbasicsLimit];
  t.sense = o.ival[kObjectiveSense] == -1 ? -1.0 : 1.0;
  t.lu.factor_tol = o.rval[kLuFactorTolerance];
  t.lu.update_tol = o.rval[kLuUpdateTolerance];
  t.lu.density_tol = o.rval[kLuDensityTolerance];
  t.lu.singularity_tol = o.rval[kLuSingularityTolerance];
  t.lu.max_updates = t.factor_frequency;
  return t;
}

int optimizer_solve(SimplexState& state, Options& options, Units& units, ProblemSlot& slot, std::string_view start,
                    const std::array<Name8, 5>& names, int nwcore, const Regularization& regularization) {
  // A state is sized for the first problem it solves; a larger one gets a fresh state (its first
  // solve then starts from the slot's basis, as after any change of the matrix). Entry arrays are
  // reserved up to the slot's capacity, which costs no memory until used, so that a matrix that
  // fills up (cut rows) is not copied to ever larger arrays.
  if (state.mmax < slot.m || state.nmax < slot.n) {
    state = SimplexState{};
    allocate_simplex_state(state, slot.m, slot.n, std::max(slot.ne, slot.nemax));
  }
  state.slot_m = slot.m;
  state.slot_n = slot.n;
  state.slot_ne = slot.ne;
  state.nncon = slot.nncon;
  state.nnobj = slot.nnobj;
  state.nnjac = slot.nnjac;
  state.nwcore = nwcore;
  set_problem_counts(options, slot.nncon, slot.nnobj, slot.nnjac);
  apply_defaults(options, units, 2);
  slot.mincor = simplex_workspace_needed(slot.m, slot.n, slot.ne);
  if (slot.mincor > nwcore) return kExitWorkspace;
  apply_defaults(options, units, 3);
  state.problem_name = names[0].c;
  const SimplexSettings settings = settings_from_options(options);
  const StartMode mode = interpret_start(start, settings, units);
  const int inform = solve_slot(state, slot, settings, units, mode, regularization);
  write_exit_message(inform, state.stall_count, settings.superbasics_limit, settings, units);
  write_final_summary(state, slot, settings, units);
  return inform;
}

}  // namespace tarvo::lp
