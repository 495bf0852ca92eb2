#pragma once
// The state of a Benders solve that lives across iterations and across the expected-value run
// and the strategy run that follows it.
#include <vector>

#include "benders/master_cuts.h"

namespace tarvo::benders {

struct SolveState {
  int iterations = 0;              // cuts added so far; never reset between the two runs
  double master_objective = 0.0;   // of the last master solve (the best upper once a run ends)
  double theta = 0.0;              // THETA's value, the master's estimate of recourse cost
  double first_stage_cost = 0.0;   // objm: master objective minus theta (minus the term)
  double lower = 0.0;              // master objective of the last plain solve
  double lower_variance = 0.0;
  double relative_gap = 0.0;
  double lower_end = 0.0;          // the 95% interval reported at the end
  double upper_end = 0.0;
  double regularization_term = 0.0;
  double zsub = 0.0;               // expected second-stage cost of the final solution
  long long master_solves = 0;
  long long master_pivots = 0;     // simplex iterations over all master solves

  std::vector<double> master_primal;  // [1..n+m] master columns, then row logicals
  std::vector<double> master_duals;   // [1..m] row duals, then [m+1..m+n] reduced costs
  std::vector<double> cut_duals;      // [1..nzrows] duals of the reserved rows
  std::vector<double> gradient;       // [1..n] of the regularization term
  CutRows rows;
  // A multi-cut master: the cuts of the current iteration, and the lower-bound statistic's view
  // of the cut rows, one entry per iteration whose cuts are still in the master.
  std::vector<PoolCut> new_cuts;         // [0..groups - 1]
  std::vector<double> iteration_duals;   // [1..nzrows] largest dual of the iteration's rows
  std::vector<double> iteration_variance;  // [1..nzrows] summed variance of its rows
};

// Sizes the state once for the master slot as the decomposition built it.
void allocate_solve_state(SolveState& state, int master_rows, int master_columns,
                          int first_stage_rows, int nzrows);

// Sizes the multi-cut part of the state for a master with `groups` group columns after THETA.
void allocate_cut_groups(SolveState& state, const lp::ProblemSlot& master, int theta, int groups);

}  // namespace tarvo::benders
