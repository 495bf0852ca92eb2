#include "benders/master_solve.h"

#include <cmath>

#include "common/free_format.h"
#include "lp/optimizer.h"

namespace tarvo::benders {

int solve_master(const sampling::Context& ctx, SolveState& state, int start, double& objective) {
  lp::Optimizer& opt = ctx.optimizer;
  lp::select_problem(opt, lp::kMasterSlot);
  // Between solves only cut rows are rewritten: the optimizer rescales and reweighs just those.
  opt.slot[lp::kMasterSlot].rescale_changed_rows_only = true;
  clock_interval(ctx.clock, nullptr);
  int inform = 0;
  double spare = 0.0;
  lp::solve_problem(opt, ctx.units, ctx.log_unit, inform, start, objective, spare,
                    ctx.master_duals, spare, ctx.master_primal);
  clock_interval(ctx.clock, &ctx.clock.master);
  ++state.master_solves;
  state.master_pivots += opt.solver[lp::kMasterSlot].counters.iterations;
  return inform;
}

void list_first_stage(const sampling::Context& ctx, const char* open, const char* close) {
  for (int j = 1; j <= ctx.model.n1; ++j) {
    const double x = ctx.master_primal[j];
    if (std::fabs(x) > ctx.params.tolw) write_free(ctx.units, ctx.log_unit, open, j, close, x);
  }
}

void list_master_duals(const sampling::Context& ctx) {
  const int m = ctx.optimizer.slot[lp::kMasterSlot].m;
  for (int i = 1; i <= m; ++i) {
    const double y = ctx.master_duals[i];
    if (std::fabs(y) > ctx.params.tolw) write_free(ctx.units, ctx.log_unit, "dual(", i, "):", y);
  }
}

}  // namespace tarvo::benders
