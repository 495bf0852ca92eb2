#pragma once
// Internals shared by the simplex files: the settings of one solve taken from the options, the
// exit codes, and the operations on the working problem and its basis.
#include <algorithm>
#include <cmath>

#include "lp/simplex.h"

namespace tarvo::lp {

// Exit codes (inform).
inline constexpr int kExitOptimal = 0;
inline constexpr int kExitInfeasible = 1;
inline constexpr int kExitUnbounded = 2;
inline constexpr int kExitIterations = 3;
inline constexpr int kExitStalled = 4;
inline constexpr int kExitSuperbasicsLimit = 5;
inline constexpr int kExitCannotImprove = 9;
inline constexpr int kExitNumerical = 10;
inline constexpr int kExitRefactorTwice = 12;
inline constexpr int kExitNearOptimal = 13;
inline constexpr int kExitFactorStorage = 20;
inline constexpr int kExitBasisError = 21;
inline constexpr int kExitWorkspace = 42;

// The options as one solve uses them.
struct SimplexSettings {
  double feasibility_tol = 1.0e-6;
  double optimality_tol = 1.0e-6;
  double pivot_tol = 3.25e-11;
  int partial_price = 10;
  int crash_option = 3;
  double crash_tol = 0.1;
  int scale_option = 2;
  double scale_tol = 0.9;
  int factor_frequency = 100;
  int expand_frequency = 10000;
  int check_frequency = 60;
  double unbounded_step = 1.0e10;
  double unbounded_objective = 1.0e20;
  int iteration_limit = 10000;
  int log_frequency = 100;
  int summary_frequency = 100;
  int print_level = 0;
  int print_unit = 0;
  int summary_unit = 0;
  int superbasics_limit = 1;
  double sense = 1.0;
  LuSettings lu;
};

SimplexSettings settings_from_options(const Options& options);

// Loading the slot into the working problem and the solution back (problem_copy.cpp).
bool slot_matrix_unchanged(const SimplexState& s, const ProblemSlot& slot, int scale_option);
// What a reload keeps of the scales: none, all, or all but those of the rows in row_changed.
enum class ScaleReuse { none, all, unchanged_rows };
// Marks in row_changed the working rows whose entries differ between the source of the scaled
// copy and the slot. False, with nothing marked, when the two differ in shape, objective row or
// scale option.
bool mark_changed_rows(SimplexState& s, const ProblemSlot& slot, int scale_option);
void load_working_matrix(SimplexState& s, const ProblemSlot& slot, const SimplexSettings& settings,
                         ScaleReuse reuse);
// Returns true when a working cost differs from the previous load's. `matrix_kept`: the working
// matrix was not reloaded since the last call.
bool load_costs_and_bounds(SimplexState& s, const ProblemSlot& slot, const SimplexSettings& settings,
                           bool matrix_kept);
void store_solution(const SimplexState& s, ProblemSlot& slot, bool phase_one_duals);

// Scale factors of the working matrix (scaling.cpp).
void compute_scales(SimplexState& s, const SimplexSettings& settings);
// New scales of the rows in row_changed against the kept column scales.
void scale_changed_rows(SimplexState& s);

// Starting bases (crash.cpp).
void slack_basis(SimplexState& s);
void crash_basis(SimplexState& s, int option, double tolerance);

// The basis and the quantities derived from it (basis.cpp).
void basis_from_slot(SimplexState& s, const ProblemSlot& slot);
bool keep_basis_from_slot(SimplexState& s, const ProblemSlot& slot);
void place_nonbasic(SimplexState& s, int j);
int factorize_basis(SimplexState& s, const SimplexSettings& settings, Units& units);
void compute_primal_values(SimplexState& s);
bool set_basic_costs(SimplexState& s);
void compute_duals(SimplexState& s);
void measure_infeasibility(SimplexState& s);
bool rows_hold(SimplexState& s);
// Every CHECK FREQUENCY updates the rows are checked; true when they fail and the factors are due.
inline bool check_due(SimplexState& s, const SimplexSettings& settings) {
  if (s.updates == 0 || s.updates % settings.check_frequency != 0 || rows_hold(s)) return false;
  s.refactor_due = true;
  return true;
}
int count_dual_infeasible(const SimplexState& s);
double working_objective(const SimplexState& s);
void load_column(const SimplexState& s, int j, SparseVector& v);
void load_unit_row(SimplexState& s, int r);
void compute_pivot_row(SimplexState& s);
void swap_basic(SimplexState& s, int r, int q, int leaving_state, double leaving_value);
bool update_factors(SimplexState& s, int r, const SimplexSettings& settings, Units& units);
// The row and the column of a pivot must agree; when they do not, the factors are recomputed, with
// a lower factor tolerance when they were fresh already. Returns false when the tolerance cannot
// be lowered further: the pivot is then to be avoided instead.
bool pivot_agrees(double from_row, double from_column);
bool refactor_for_accuracy(SimplexState& s, const SimplexSettings& settings, Units& units);
void update_reduced_costs(SimplexState& s, int q, int r, double dual_step);
void restore_costs(SimplexState& s);
void restore_bounds(SimplexState& s);
double next_random(SimplexState& s);

// The solution checked in true units, and the tolerances tightened where it falls short or
// widened where an infeasible verdict does not hold there (unscaled_check.cpp).
void reset_tolerances(SimplexState& s, const SimplexSettings& settings);
struct TrueUnitCheck {
  int primal = 0;  // variables whose working feasibility tolerance was cut
  int dual = 0;    // and whose optimality tolerance was cut
  int polish = 0;  // variables within the tolerances held to a share of them
  double worst_dual = 0.0;  // the largest reduced cost of the wrong sign, in working units
};
TrueUnitCheck tighten_unscaled_violations(SimplexState& s, const SimplexSettings& settings, bool polish);
bool loosen_to_true_units(SimplexState& s, const SimplexSettings& settings);

// Anti-degeneracy by expanding tolerances (expand.cpp).
void reset_expand(SimplexState& s);
void advance_expand(SimplexState& s, const SimplexSettings& settings);
bool expand_reset_due(const SimplexState& s, const SimplexSettings& settings);
// The least share of a variable's tolerance that a step must move it by.
double expand_increment(const SimplexSettings& settings);
bool return_slipped_nonbasics(SimplexState& s);
// At an optimum: returns the slipped nonbasic variables to their bounds unless that takes a basic
// one beyond its tolerance; recomputes the basic values. True when they returned.
bool settle_slipped_nonbasics(SimplexState& s);
void shift_slipped_costs(SimplexState& s);

// Pricing (pricing.cpp).
void reset_primal_weights(SimplexState& s);
int choose_entering(SimplexState& s, const SimplexSettings& settings);
void update_primal_weights(SimplexState& s, int q, int r, double pivot);
void reset_dual_weights(SimplexState& s);
// Dual weights across a reload of the matrix that changed some rows only: kept by basic
// variable before it and given back after the basis is built (1 for variables that were not
// basic); the logicals of changed rows are weighed exactly once the basis is factorized.
void keep_dual_weights_by_variable(SimplexState& s);
void take_kept_dual_weights(SimplexState& s);
void weigh_changed_rows(SimplexState& s);
int choose_leaving(SimplexState& s);
void update_dual_weights(SimplexState& s, int r, double pivot);

// Ratio tests (ratio_tests.cpp).
struct PrimalStep {
  int position = -1;  // basis position of the leaving variable, -1 for a bound flip or no limit
  double step = 0.0;  // distance the entering variable moves
  bool unbounded = false;
  bool flip = false;
  bool rejected = false;  // a phase-1 move beyond the entering variable's bound that gains nothing
  int leaving_state = kNonbasicLower;
  double leaving_value = 0.0;
};
PrimalStep primal_ratio_test(SimplexState& s, int q, int direction, const SimplexSettings& settings);
PrimalStep phase_one_ratio_test(SimplexState& s, int q, int direction, const SimplexSettings& settings);
struct DualStep {
  int entering = -1;  // -1: no candidate, the problem is infeasible
  bool degenerate = false;  // the dual step is zero
};
// `infeasibility` is the leaving variable's distance beyond the bound it leaves at, `tolerance` its
// feasibility tolerance.
DualStep dual_ratio_test(SimplexState& s, double infeasibility, double tolerance, const SimplexSettings& settings);

// The two methods (primal_simplex.cpp, dual_simplex.cpp) and the quadratic objective
// (reduced_gradient.cpp). Each returns an exit code.
int run_primal(SimplexState& s, const SimplexSettings& settings, Units& units);
// Starts from the phase 2 values of the current basis on valid factors, as the caller leaves them;
// `dual_feasible` tells whether the caller found every reduced cost within its tolerance.
int run_dual(SimplexState& s, const SimplexSettings& settings, Units& units, bool dual_feasible);
// Phase 1 of the dual method: leaves a basis whose reduced costs have the signs the bounds ask for
// wherever the problem allows it, with the phase 2 values, duals and reduced costs computed.
int run_dual_phase_one(SimplexState& s, const SimplexSettings& settings, Units& units);
void perturb_costs(SimplexState& s);
int run_reduced_gradient(SimplexState& s, const SimplexSettings& settings, Units& units,
                         const Regularization& regularization);
void evaluate_quadratic_gradient(SimplexState& s, const Regularization& regularization);

// Output (simplex_log.cpp).
void log_iteration(SimplexState& s, const SimplexSettings& settings, Units& units);
void write_exit_message(int inform, int stall_count, int superbasics_limit,
                        const SimplexSettings& settings, Units& units);
void write_final_summary(const SimplexState& s, const ProblemSlot& slot,
                         const SimplexSettings& settings, Units& units);
void write_start_not_recognized(std::string_view word, const SimplexSettings& settings, Units& units);
void write_factor_events(const LuReport& report, double factor_tol, int m,
                         const SimplexSettings& settings, Units& units);
void write_factor_tol_reduced(double factor_tol, const SimplexSettings& settings, Units& units);
void write_replace_singular(int position, const SimplexSettings& settings, Units& units);

inline bool is_boxed(const SimplexState& s, int j) {
  return std::isfinite(s.lower[j]) && std::isfinite(s.upper[j]);
}

// Variable j is no candidate (to enter, or in the dual to leave) before the iteration count
// reaches `until`.
inline void set_aside(SimplexState& s, int j, int until) {
  s.rejected[j] = until;
  s.candidates_rejected = true;
}
void clear_rejections(SimplexState& s);

// How far a basic variable lies beyond its bounds widened by its tolerance (0 within them).
inline double primal_infeasibility(const SimplexState& s, int j) {
  const double x = s.x[j];
  if (x < s.lower[j] - s.primal_tol[j]) return s.lower[j] - x;
  if (x > s.upper[j] + s.primal_tol[j]) return x - s.upper[j];
  return 0.0;
}

// The part of reduced cost dj that has the wrong sign for state st (basic: 0), without branches:
// the passes over every variable that use it run once or twice per solve.
inline double wrong_sign_part(signed char st, double dj) {
  static_assert(kBasicVar == 0 && kNonbasicLower == 1 && kNonbasicUpper == 2 && kNonbasicFree == 3 &&
                kSuperbasicVar == 4);
  static constexpr double kWrongSign[] = {0.0, -1.0, 1.0, 0.0, 0.0};
  static constexpr double kEitherSign[] = {0.0, 0.0, 0.0, 1.0, 1.0};
  return std::max(kWrongSign[st] * dj, kEitherSign[st] * std::fabs(dj));
}

// A reduced cost of the wrong sign for its variable's state (a fixed variable never counts).
inline double dual_infeasibility(const SimplexState& s, int j) {
  if (s.lower[j] == s.upper[j]) return 0.0;
  return wrong_sign_part(s.state[j], s.d[j]);
}

}  // namespace tarvo::lp
