#pragma once
// The simplex optimizer's solve of one problem slot, and the state it keeps per slot between
// solves (basis, factors, scales) so that warm and hot starts are cheap.
#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "common/units.h"
#include "lp/lu_factor.h"
#include "lp/options.h"
#include "lp/problem_slot.h"
#include "lp/sparse_vector.h"

namespace tarvo::lp {

// Centre and weight of the regularization term of the master's quadratic objective; set by the
// Benders loop before a regularized solve and read by regobj.
struct Regularization {
  std::vector<double> xhat;  // [1..n]
  double rho = 1000.0;
  // Columns at the end of the master that take no part in the term: THETA, and the THETA of
  // every cut group when the master carries them.
  int free_columns = 1;
};

// State of one variable of the working problem (columns 0..n-1, then one logical per row).
enum VarState : signed char {
  kBasicVar = 0,
  kNonbasicLower,
  kNonbasicUpper,
  kNonbasicFree,  // free and nonbasic: held at zero
  kSuperbasicVar,  // between its bounds, not basic
};

// Counters of one solve, kept for the log, the summary and the benchmark.
struct SimplexCounters {
  int iterations = 0;
  int primal_iterations = 0;
  int dual_iterations = 0;
  int bound_flips = 0;
  int factorizations = 0;
  int singular_repairs = 0;
  int regobj_calls = 0;
  int cleanup_rounds = 0;  // re-solves with tolerances changed after the check in true units
  bool reused_factors = false;  // the solve started from the factors kept from the last one
  bool reused_scales = false;
};

// What the simplex keeps for one slot between solves. Work arrays are sized once from the slot
// capacities; the working problem is a scaled, 0-based copy of the slot in which the objective
// row is taken out as the cost vector and each other row i has its logical as variable n + i
// (column +e_i, so that A x + s = 0 and the logical's bounds are the slot's [-up, -lo]).
struct SimplexState {
  int mmax = 0;
  int nmax = 0;
  int nemax = 0;

  // Sizes recorded by the entry.
  int slot_m = 0;
  int slot_n = 0;
  int slot_ne = 0;
  int nncon = 0;
  int nnobj = 0;
  int nnjac = 0;
  int nwcore = 0;

  // Working problem (scaled).
  int m = 0;  // constraint rows: the slot's rows less the objective row
  int n = 0;
  int objective_row = 0;        // slot row holding the costs (1-based), 0 when none
  // The slot's objective row entries in column order: column and index into the slot's arrays,
  // so that loading the costs does not scan the whole matrix.
  std::vector<int> objective_col;
  std::vector<int> objective_at;
  int objective_count = 0;
  double sense = 1.0;           // -1 when maximizing
  double objadd = 0.0;
  std::vector<int> slot_row;    // [m] slot row (1-based) of working row i
  std::vector<int> work_row;    // [slot m + 1] working row of a slot row, -1 for the objective
  std::vector<int> col_start;   // [n + 1] column-major matrix without the objective row
  std::vector<int> row_index;
  std::vector<double> value;
  std::vector<int> row_start;   // [m + 1] the same matrix row by row
  std::vector<int> col_index;
  std::vector<double> row_value;
  std::vector<double> cost;     // [n + m] costs in use (may carry shifts or perturbations)
  std::vector<double> base_cost;  // [n + m] scaled costs as given
  std::vector<double> lower;    // [n + m] bounds in use (may carry perturbations)
  std::vector<double> upper;
  std::vector<double> base_lower;  // [n + m] scaled bounds as given
  std::vector<double> base_upper;
  std::vector<double> scale;    // [n + m] true value = scale * working value (a power of 2)
  std::vector<double> inverse_scale;  // [n + m] 1 / scale, exactly
  std::vector<double> col_scale_work;  // [n] scratch for the scaling passes
  std::vector<double> row_scale_work;  // [m]
  std::vector<double> row_min_work;    // [m]
  std::vector<double> row_floor_work;  // [m] entries below this and their column's floor do not
  std::vector<double> col_floor_work;  // [n] steer the scale factors
  // Feasibility and optimality tolerances of each variable in working units: the options' values
  // unless the check of the solution in true units has changed them.
  std::vector<double> primal_tol;  // [n + m]
  std::vector<double> dual_tol;    // [n + m]
  std::vector<double> implied_row;  // [m] scratch of the check: each logical's value from A x
  // What primal_tol and dual_tol hold: the options' values over this many variables, unless a
  // check has changed some.
  int tolerances_filled = 0;
  double filled_feasibility_tol = 0.0;
  double filled_optimality_tol = 0.0;
  bool tolerances_changed = false;
  bool candidates_rejected = false;  // rejected holds marks of this or the last solve
  bool costs_shifted = false;
  bool bounds_perturbed = false;

  // Source of the scaled matrix, to tell cheaply whether the slot's matrix changed.
  int source_m = -1;
  int source_n = -1;
  int source_ne = -1;
  int source_objective_row = -1;
  int source_scale_option = -1;
  std::vector<int> source_ka;
  std::vector<int> source_ha;
  std::vector<double> source_a;
  bool matrix_valid = false;
  // The slot's column bounds at the last load ([n] each), valid with the matrix: re-solves that
  // change only row limits (outcomes of a right-hand side) then skip the columns' load.
  std::vector<double> source_bl;
  std::vector<double> source_bu;
  // Rows whose entries differ between the source and the slot, and each row's entries summed
  // as the load sums them (kept at zero between uses), for a reload that rescales those rows only.
  std::vector<char> row_changed;       // [m]
  std::vector<double> source_row_sum;  // [m]
  std::vector<double> slot_row_sum;    // [m]

  // Basis and solution of the working problem.
  std::vector<int> head;         // [m] variable in each basis position
  std::vector<int> position;     // [n + m] basis position, -1 when nonbasic
  std::vector<signed char> state;  // [n + m] VarState
  std::vector<double> x;         // [n + m]
  std::vector<double> y;         // [m] duals of the cost vector in use
  std::vector<double> d;         // [n + m] reduced costs (0 for basic variables)
  std::vector<double> basic_cost;  // [m] cost of each basis position in the current phase
  int phase = 2;                 // 1 while minimizing the sum of infeasibilities
  int ninf = 0;
  double sinf = 0.0;

  // Factors of the basis.
  LuFactors lu;
  LuSettings lu_settings;
  // LU factor tolerance in force: the option's, lowered for the rest of the solve when fresh
  // factors prove inaccurate.
  double factor_tol = 100.0;
  LuReport lu_report;
  bool factors_valid = false;
  // y and d are the phase 2 duals of the current basis and costs, as the last optimal solve
  // left them: a re-solve after right-hand side or bound changes starts from them.
  bool duals_current = false;
  int updates = 0;           // basis changes since the last factorization
  bool refactor_due = false;

  // Anti-degeneracy: the ratio tests let variables pass their bounds (reduced costs pass zero) by
  // this share of their tolerances, which grows every iteration and starts again every EXPAND
  // FREQUENCY iterations and at each refactorization inside the primal and dual iterations (it
  // carries over between solves otherwise).
  double expand_share = 0.5;
  int expand_count = 0;

  // Pricing weights: primal Devex over variables, dual steepest edge over basis positions.
  std::vector<double> primal_weight;  // [n + m]
  std::vector<double> dual_weight;    // [m]
  std::vector<double> variable_weight;  // [n + m] dual weights by basic variable across a reload
  bool dual_weights_valid = false;
  bool changed_row_weights_due = false;  // the weights of changed rows' logicals are placeholders
  int partial_start = 0;
  int entering_direction = 1;   // +1 up, -1 down, set by the primal pricing
  std::vector<int> rejected;    // [n + m] not a candidate to enter before this iteration count

  // Work vectors.
  SparseVector column;  // [m] the entering column, transformed
  SparseVector rho;     // [m] a row of the basis inverse
  SparseVector tau;     // [m] B^-1 rho, for the dual steepest edge update
  SparseVector work;    // [m] general use (right-hand sides, flips, cost changes)
  std::vector<double> pivot_row;   // [n + m] rho^T [A I] on the nonbasic variables
  std::vector<int> pivot_index;    // [n + m] its pattern
  std::vector<char> pivot_mark;    // [n + m] listed in pivot_index
  int pivot_count = 0;
  std::vector<int> saved_head;     // [m] the head before a factorization that may repair it
  std::vector<int> candidate;      // [n + m] ratio test candidates
  std::vector<double> candidate_ratio;
  std::vector<int> flipped;        // [n + m] variables flipped by one dual ratio test
  std::vector<char> row_mark;      // [m] rows listed in a vector being gathered; kept clear
  int flipped_count = 0;
  std::uint64_t random = 0x9E3779B97F4A7C15ull;  // perturbation generator

  // Quadratic objective (regularized master): superbasic set and reduced Hessian.
  std::vector<int> superbasic;     // [<= n] variables in the superbasic set
  int superbasic_count = 0;
  std::vector<double> hessian_diag;  // [n + m] working-space diagonal of the Hessian
  std::vector<double> centre;        // [n + m] working-space centre of the quadratic term
  std::vector<double> reduced_hessian;  // dense ns x ns, then its Cholesky factor (grown on use)
  std::vector<double> basic_moves;      // dense m x ns: B^-1 times the superbasic columns
  std::vector<double> search;           // [n + m] search direction
  std::vector<double> regobj_x;         // [n + 1] column values for regobj, 1-based
  std::vector<double> regobj_g;         // [n + 1] its gradient
  double nonlinear_objective = 0.0;     // f(x) at the final point
  bool quadratic = false;
  bool stop_when_feasible = false;      // the primal method ends with phase 1

  // Reporting.
  SimplexCounters counters;
  int stall_count = 0;       // iterations without progress behind exit 4
  double step_last = 0.0;
  double pivot_last = 0.0;
  double dj_last = 0.0;      // reduced cost (or gradient) of the last entering variable
  bool log_header_written = false;
  double optimality_ratio = 0.0;  // reduced-gradient norm over the reference norm
  std::array<char, 8> problem_name{' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
};

// Sizes the state's work arrays once from the slot capacities.
void allocate_simplex_state(SimplexState& state, int mmax, int nmax, int nemax);

// The optimizer's entry: records the problem sizes, completes the options (apply_defaults 2),
// checks the workspace (mincor against nwcore: inform 42), writes the Parameters report
// (apply_defaults 3), and solves the slot from the start word ("cold", "warm", "hot ", ...).
// Fills hs, xn, pi, rc, ns, ninf, sinf, obj, mincor of the slot; returns inform.
int optimizer_solve(SimplexState& state, Options& options, Units& units, ProblemSlot& slot,
                    std::string_view start, const std::array<Name8, 5>& names, int nwcore,
                    const Regularization& regularization);

// Workspace in doubles that a problem of these sizes needs: one copy of the matrix for the
// scaled working problem and as much again for the basis factors.
int simplex_workspace_needed(int m, int n, int ne);

// Solve status words used in the headers of basis and solution files: "PROCEEDING  ",
// "OPTIMAL SOLN", "INFEASIBLE  ", "UNBOUNDED   ", "EXCESS ITNS ", "ERROR CONDN" (codes above 5
// show as 5).
std::string_view solve_status_word(int status);

}  // namespace tarvo::lp
