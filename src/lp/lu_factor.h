#pragma once
// Sparse LU factorization of a simplex basis, with column replacement updates.
//
// The basis is m columns chosen from [A I]: basic variable k < n is column k of A (0-based
// compressed columns), k >= n is the unit column of row k - n. The factorization B = L U is
// computed with Markowitz pivot choice under threshold pivoting; after each basis change the
// factors are updated in place (Forrest-Tomlin) instead of recomputed, until the update count or
// the growth asks for a fresh factorization.
#include <vector>

#include "lp/sparse_vector.h"

namespace tarvo::lp {

struct LuSettings {
  double factor_tol = 100.0;        // largest multiplier |l_ij| accepted in a fresh factorization
  double update_tol = 10.0;         // largest multiplier accepted in an update
  double density_tol = 0.5;         // switch to dense elimination of the remaining block above this
  double singularity_tol = 3.25e-11;  // pivots below this are treated as zero
  int max_updates = 100;            // updates before the caller should refactorize
};

enum class LuStatus {
  ok,
  singular_repaired,   // dependent columns were replaced by logicals (see LuReport)
  refactor_needed,     // an update was refused (growth, storage, too many updates)
  out_of_storage,
};

struct LuReport {
  int rank = 0;
  std::vector<int> replaced_positions;  // basis positions whose variable became a logical
  double factor_tol_used = 0.0;         // lowered when the factorization had to retry
  int length_l = 0;
  int length_u = 0;
};

// The factors and their work arrays; sized once, reused by every factorization and update.
struct LuFactors {
  // (fields owned by the LU code)
};

// Factorizes the basis. basis_head[p] (p = 0..m-1) names the basic variable in position p; when
// the basis is singular, dependent variables are swapped for logicals of the rows left without a
// pivot (basis_head is changed) and singular_repaired is returned.
LuStatus lu_factorize(LuFactors& lu, int m, int n, const int* col_start, const int* row_index,
                      const double* value, int* basis_head, const LuSettings& settings,
                      LuReport& report);

// Solves B x = rhs in place. With keep_spike the partially transformed column is remembered for
// the next lu_update.
void lu_ftran(LuFactors& lu, SparseVector& rhs, bool keep_spike);

// Solves B^T y = rhs in place.
void lu_btran(LuFactors& lu, SparseVector& rhs);

// Replaces the column in basis position `position` by the column last passed to lu_ftran with
// keep_spike.
LuStatus lu_update(LuFactors& lu, int position, const LuSettings& settings);

int lu_update_count(const LuFactors& lu);

}  // namespace tarvo::lp
