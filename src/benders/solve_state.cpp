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

}  // namespace tarvo::benders
