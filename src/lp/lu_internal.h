#pragma once
// Tolerances and steps shared by the LU files; not part of the LU interface.
#include "lp/lu_factor.h"

namespace tarvo::lp {

// Computed values (fill, dense elimination, solve results) below this magnitude are dropped:
// they are rounding noise and would only spread.
inline constexpr double kLuDropTol = 1e-14;
// A singular-looking basis is refactorized with factor_tol divided by this, down to the minimum,
// since a loose threshold can make a sound basis look singular.
inline constexpr double kLuFactorTolReduction = 10.0;
inline constexpr double kLuMinFactorTol = 2.0;
// Markowitz search: lines examined once a candidate pivot is known.
inline constexpr int kLuSearchLimit = 4;
// Slack slots per line of U, so that updates seldom move a line.
inline constexpr int kLuLineSlack = 4;
// A solve searches the reach of the nonzeros when they are at most this fraction of m, and falls
// back to a full sweep when the reach passes the second fraction. A sweep that only lists what it
// touches is cheap, so the search pays only for very sparse vectors.
inline constexpr double kLuHyperStart = 0.02;
inline constexpr double kLuHyperAbandon = 0.05;
// An update is refused when its multipliers exceed the update tolerance to this power (1e8 for the
// default 10). The diagonal check below catches the updates that lose accuracy; a bound as tight
// as the factorization's would refactorize the dense bases of models like pilot every few
// iterations.
inline constexpr int kLuUpdateGrowthPower = 8;
// An update is refused when its new diagonal and the pivot of the ftran result times the old
// diagonal (equal in exact arithmetic) differ relatively by more than this.
inline constexpr double kLuUpdateCheckTol = 1e-8;

// Records that step b.steps pivots on row r and position c.
void lu_record_pivot(LuBuild& b, int r, int c);
// Eliminates the active submatrix of lu.build (singletons, Markowitz, then dense), recording
// pivots, multipliers and rows of U; unpivoted rows and positions are left for the repair.
void lu_factor_nucleus(LuFactors& lu, double factor_tol, const LuSettings& settings);
// Eliminates the remaining active submatrix as a dense block with complete pivoting.
void lu_factor_dense(LuFactors& lu, const LuSettings& settings);
// The U^T stage of btran: x over positions in, over rows out.
void lu_solve_u_transposed(LuFactors& lu, SparseVector& x);

}  // namespace tarvo::lp
