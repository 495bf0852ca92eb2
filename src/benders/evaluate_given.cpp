#include "benders/benders_loop.h"
#include "benders/master_solve.h"
#include "common/free_format.h"
#include "lp/optimizer.h"
#include "sampling/evaluate.h"
#include "sampling/subproblem.h"

namespace tarvo::benders {
namespace {

constexpr int kColdStart = 0;

// Fixes the first-stage columns at the given values. THETA is fixed at 0 as well: with no cut
// in the master it would sit at its lower bound, and the master objective would no longer be
// the first-stage cost of the solution.
void fix_first_stage(lp::ProblemSlot& master, int n1, const std::vector<double>& x) {
  for (int j = 1; j <= n1; ++j) master.bl[j] = master.bu[j] = x[j];
  master.bl[n1 + 1] = master.bu[n1 + 1] = 0.0;
}

void report_failed_solve(const sampling::Context& ctx, const char* message) {
  write_free(ctx.units, ctx.log_unit, message);
  write_free(ctx.units, kConsoleUnit, message);
}

}  // namespace

int evaluate_given_solution(const sampling::Context& ctx, sampling::Evaluation& ev,
                            SolveState& st, int istrat, const std::vector<double>& x) {
  lp::select_problem(ctx.optimizer, lp::kMasterSlot);
  fix_first_stage(ctx.optimizer.slot[lp::kMasterSlot], ctx.model.n1, x);
  const int inform = solve_master(ctx, st, kColdStart, st.master_objective);
  if (inform == 1) {
    report_failed_solve(ctx, "error: problem infeasible");
    return sampling::dumpbad(ctx, lp::kMasterSlot, inform);
  }
  if (inform == 2) {
    report_failed_solve(ctx, "error: problem unbounded");
    return sampling::dumpbad(ctx, lp::kMasterSlot, inform);
  }
  if (inform != 0) {
    write_free(ctx.units, ctx.log_unit, "error: error code: ", inform);
    write_free(ctx.units, kConsoleUnit, "error: error code: ", inform);
    return sampling::kErrorExit;
  }
  write_free(ctx.units, ctx.log_unit, "master done, obj:", st.master_objective);
  if (ctx.params.ibug >= 1) list_first_stage(ctx, " x (", "):");
  st.theta = 0.0;
  st.first_stage_cost = st.master_objective;
  if (sampling::evaluate(ctx, ev, istrat) != sampling::kOk) return sampling::kErrorExit;
  st.zsub = ev.cut.objs;
  st.master_objective = ev.cut.objs + st.first_stage_cost;
  return sampling::kOk;
}

}  // namespace tarvo::benders
