#pragma once
// The simplex optimizer's solve of one problem slot, and the state it keeps per slot between
// solves (basis, factors, scales) so that warm and hot starts are cheap.
#include <array>
#include <string_view>
#include <vector>

#include "common/units.h"
#include "lp/lu_factor.h"
#include "lp/options.h"
#include "lp/problem_slot.h"

namespace tarvo::lp {

// Centre and weight of the regularization term of the master's quadratic objective; set by the
// Benders loop before a regularized solve and read by regobj.
struct Regularization {
  std::vector<double> xhat;  // [1..n]
  double rho = 1000.0;
};

// What the simplex keeps for one slot between solves.
struct SimplexState {
  // (fields owned by the simplex code)
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

}  // namespace tarvo::lp
