#pragma once
// Solving the master problem and listing its solution on the screen log.
#include "benders/solve_state.h"
#include "sampling/evaluation.h"

namespace tarvo::benders {

// Selects the master and solves it with the start mode (0 cold, 1 warm), timing the solve as
// master time and counting its pivots. The solution lands in ctx.master_primal /
// ctx.master_duals. Returns inform.
int solve_master(const sampling::Context& ctx, SolveState& state, int start, double& objective);

// open j close value (" x (" j "):") for every first-stage column above tolw in magnitude.
void list_first_stage(const sampling::Context& ctx, const char* open, const char* close);

// "dual(i):" value for every master row whose dual is above tolw in magnitude.
void list_master_duals(const sampling::Context& ctx);

}  // namespace tarvo::benders
