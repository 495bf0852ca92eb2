#pragma once
// Sparse LU factorization of a simplex basis, with column replacement updates.
//
// The basis is m columns chosen from [A I]: basic variable k < n is column k of A (0-based
// compressed columns), k >= n is the unit column of row k - n. The factorization B = L U is
// computed with Markowitz pivot choice under threshold pivoting; after each basis change the
// factors are updated in place (Forrest-Tomlin) instead of recomputed, until the update count or
// the growth asks for a fresh factorization.
//
// Index spaces: ftran takes a vector over rows and returns one over basis positions (x[p] is the
// weight of the variable in position p); btran takes one over positions and returns one over rows.
#include <vector>

#include "lp/lu_lines.h"
#include "lp/sparse_vector.h"

namespace tarvo::lp {

struct LuSettings {
  double factor_tol = 100.0;        // largest multiplier |l_ij| accepted in a fresh factorization
  double update_tol = 10.0;         // bounds an update's multipliers (see lu_update)
  double density_tol = 0.5;         // switch to dense elimination of the remaining block above this
  double singularity_tol = 3.25e-11;  // pivots below this are treated as zero
  int max_updates = 100;            // updates before the caller should refactorize
};

enum class LuStatus {
  ok,
  singular_repaired,   // dependent columns were replaced by logicals (see LuReport)
  refactor_needed,     // an update was refused (growth, storage, too many updates)
  out_of_storage,
  invalid_input,       // a basis entry or matrix element is out of range or repeated (see LuReport)
};

// Why the last lu_update returned refactor_needed.
enum class LuRefusal {
  none,
  no_spike,          // no lu_ftran with keep_spike since the last factorization or update
  bad_position,      // position outside 0..m-1
  too_many_updates,  // max_updates reached
  singular,          // the new diagonal is zero or tiny relative to the spike
  unstable,          // multiplier too large, or the new diagonal disagrees with the pivot
  fill,              // the factors have grown so much that refactorizing is cheaper
  storage,           // no room left in the factor storage
};

struct LuReport {
  int rank = 0;
  std::vector<int> replaced_positions;  // basis positions whose variable became a logical
  double factor_tol_used = 0.0;         // lowered when the factorization had to retry
  int length_l = 0;                     // multipliers in L
  int length_u = 0;                     // entries of U, diagonal included
  int bad_position = -1;  // invalid_input: basis position whose variable is out of range, or
  int bad_element = -1;   // the element (index into row_index/value) out of range or repeated
};

// Work space of one factorization: the active submatrix and the record of pivots.
struct LuBuild {
  SparseLines cols;  // active columns with values; line = basis position
  SparseLines rows;  // active rows, pattern only; line = row
  // Columns and rows listed by their active count (doubly linked); listed_* = count listed under.
  std::vector<int> col_head, col_next, col_prev, col_listed;
  std::vector<int> row_head, row_next, row_prev, row_listed;
  int cols_live = 0;
  int rows_live = 0;
  long long active_count = 0;
  std::vector<double> col_max;  // largest |a| of an active column; negative when unknown
  std::vector<int> row_step;    // pivot step of each row, -1 while unpivoted
  std::vector<int> col_step;    // pivot step of each position, -1 while unpivoted
  std::vector<int> pivot_row, pivot_col;
  int steps = 0;
  // L as one column of multipliers per elimination step that had any.
  std::vector<int> eta_pivot, eta_start, eta_index;
  std::vector<double> eta_value;
  // U off the diagonal as triplets (row, position, value).
  std::vector<int> u_row, u_col;
  std::vector<double> u_value;
  // Elimination scratch: multipliers of the pivot column, and stamps marking rows.
  std::vector<double> mult;
  std::vector<int> mult_stamp, visit_stamp;
  int stamp = 0;
  std::vector<int> seen;  // input check: last position that used each row
  std::vector<double> dense;
  std::vector<int> dense_rows, dense_cols;
};

// The factors and their work arrays; sized once, reused by every factorization and update.
struct LuFactors {
  int m = 0;
  int n = 0;
  bool valid = false;
  // L: line r of l_cols holds the multipliers (row i, l_ir) of the step that pivoted on row r;
  // l_rows holds the same transposed, line i = (r, l_ir). l_rank is the pivot step of each row.
  SparseLines l_cols, l_rows;
  std::vector<int> l_rank;
  std::vector<int> l_forward;   // rows with multipliers, ascending step
  std::vector<int> l_backward;  // rows that appear in multipliers, descending step
  int l_forward_count = 0;
  int l_backward_count = 0;
  int length_l = 0;
  // Row etas of the updates: eta j does x[eta_row[j]] -= sum of eta_value * x[eta_index].
  std::vector<int> eta_row, eta_start, eta_index;
  std::vector<double> eta_value;
  int eta_count = 0;
  int eta_length = 0;
  // U without its diagonal, by columns (line = position: (row, u)) and rows (line = row:
  // (position, u)); diag by row. Slot k of the pivot order pairs order_row[k] with order_col[k];
  // an update vacates a slot (-1) and appends one at the end.
  SparseLines u_cols, u_rows;
  std::vector<double> diag;
  std::vector<int> order_row, order_col;
  int order_length = 0;
  std::vector<int> rank;        // slot of each row in the pivot order
  std::vector<int> row_of_col;  // pivot row of each position
  std::vector<int> col_of_row;  // position pivoted on each row
  int length_u = 0;             // off-diagonal entries
  // Updates.
  int update_count = 0;
  int fill_limit = 0;  // U and row-eta entries beyond which an update is refused
  LuRefusal last_refusal = LuRefusal::none;
  bool spike_valid = false;
  int spike_count = 0;  // the column kept by lu_ftran after L and the row etas
  std::vector<int> spike_index;
  std::vector<double> spike_value;
  int result_count = 0;  // the same call's result, for the pivot check of the update
  std::vector<int> result_index;
  std::vector<double> result_value;
  // Solve work: a dense vector kept zero, node marks kept clear, and node lists.
  std::vector<double> work;
  std::vector<char> mark;
  std::vector<int> stack, reach;
  SparseVector scratch;
  LuBuild build;
};

// Reserves capacity for factorizations of up to m rows whose bases hold up to `elements` matrix
// entries, with up to `updates` updates each, so that a run's factorizations and updates do not
// allocate. Only capacity: memory is touched when a factorization uses it.
void lu_reserve(LuFactors& lu, int m, int elements, int updates);

// Factorizes the basis. basis_head[p] (p = 0..m-1) names the basic variable in position p; when
// the basis is singular, dependent variables are swapped for logicals of the rows left without a
// pivot (basis_head is changed) and singular_repaired is returned.
LuStatus lu_factorize(LuFactors& lu, int m, int n, const int* col_start, const int* row_index,
                      const double* value, int* basis_head, const LuSettings& settings,
                      LuReport& report);

// The solves need factors from a factorization that returned ok or singular_repaired; without
// them they leave rhs as it is.
//
// Solves B x = rhs in place. With keep_spike the partially transformed column is remembered for
// the next lu_update.
void lu_ftran(LuFactors& lu, SparseVector& rhs, bool keep_spike);

// Solves B^T y = rhs in place.
void lu_btran(LuFactors& lu, SparseVector& rhs);

// Replaces the column in basis position `position` by the column last passed to lu_ftran with
// keep_spike. On refactor_needed the factors still represent the old basis, and
// lu_last_refusal tells why.
LuStatus lu_update(LuFactors& lu, int position, const LuSettings& settings);

int lu_update_count(const LuFactors& lu);
LuRefusal lu_last_refusal(const LuFactors& lu);
// Present sizes of the factors: L with the row etas of the updates, and U with its diagonal.
int lu_length_l(const LuFactors& lu);
int lu_length_u(const LuFactors& lu);

}  // namespace tarvo::lp
