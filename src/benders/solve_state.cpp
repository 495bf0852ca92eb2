#include "benders/solve_state.h"

namespace tarvo::benders {

void allocate_solve_state(SolveState& state, int master_rows, int master_columns,
                          int first_stage_rows, int nzrows) {
  const int nb = master_rows + master_columns;
  state.master_primal.assign(nb + 1, 0.0);
  state.master_duals.assign(nb + 1, 0.0);
  state.cut_duals.assign(nzrows + 1, 0.0);
  state.gradient.assign(master_columns + 1, 0.0);
  allocate_cut_rows(state.rows, first_stage_rows, nzrows);
}

void allocate_cut_groups(SolveState& state, const lp::ProblemSlot& master, int theta, int groups) {
  allocate_cut_pool(state.rows, master, theta, groups);
  state.new_cuts.assign(groups, PoolCut{});
  state.iteration_duals.assign(state.rows.nzrows + 1, 0.0);
  state.iteration_variance.assign(state.rows.nzrows + 1, 0.0);
}

}  // namespace tarvo::benders
