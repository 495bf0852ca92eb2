#include "sampling/evaluate.h"

#include "common/free_format.h"
#include "lp/optimizer.h"
#include "sampling/importance.h"
#include "sampling/sample_tables.h"
#include "sampling/solve_pass.h"
#include "sampling/strategies.h"

namespace tarvo::sampling {

namespace {

constexpr int kLowestCosts = 1;
constexpr int kLastApproximation = 7;
constexpr int kBestApproximation = 2;

enum class Family { expected, importance, universe, crude, presample, control, undefined };

Family family_of(int istrat) {
  switch (istrat) {
    case 1: return Family::expected;
    case 2: case 3: return Family::importance;
    case 4: case 5: return Family::universe;
    case 6: case 7: return Family::crude;
    case 8: case 9: return Family::presample;
    case 10: case 11: return Family::control;
    default: return Family::undefined;
  }
}

void write_strategy_message(const Context& ctx, Family family) {
  const char* text = "";
  switch (family) {
    case Family::expected: text = "evaluating w/ expected values"; break;
    case Family::importance: text = "evaluating w/ importance sampling"; break;
    case Family::universe: text = "evaluating w/ universe"; break;
    case Family::crude: text = "evaluating w/ crude monte carlo"; break;
    case Family::presample: text = "evaluating w/ monte carlo presampling"; break;
    case Family::control: text = "evaluating w/ control variable sampling"; break;
    case Family::undefined: return;
  }
  write_free(ctx.units, ctx.log_unit, text);
}

int strategy_not_defined(const Context& ctx, int unit) {
  write_free(ctx.units, unit, "error: strategy not defined");
  write_free(ctx.units, unit, "program terminated");
  return kErrorExit;
}

// Sum of the block weights of the working approximation, in block order.
double weight_sum(const Evaluation& ev) {
  double sum = 0.0;
  for (int b = 1; b <= ev.nblocks; ++b) sum += ev.approx.deltabar[b];
  return sum;
}

int crude_instead(const Context& ctx, Evaluation& ev, int& startflag) {
  write_free(ctx.units, ctx.log_unit, " crude monte carlo selected!");
  sampcmc(ctx, ev);
  return evalcmc(ctx, ev, startflag);
}

// Marginal table, its evaluation and the approximation. An infeasible marginal row ends the
// evaluation with its feasibility cut (`ended`).
int build_approximation(const Context& ctx, Evaluation& ev, int& startflag, bool& ended) {
  margtab(ctx, ev, kLowestCosts);
  if (evalmarg(ctx, ev, startflag) != kOk) return kErrorExit;
  ended = ev.infeasible_point != 0;
  if (!ended) approx(ctx, ev);
  return kOk;
}

int evaluate_importance(const Context& ctx, Evaluation& ev, int& startflag) {
  bool ended = false;
  if (build_approximation(ctx, ev, startflag, ended) != kOk) return kErrorExit;
  if (ended) return kOk;
  sampis(ctx, ev);
  if (weight_sum(ev) == 0.0) return crude_instead(ctx, ev, startflag);
  return evalis(ctx, ev);
}

int evaluate_control(const Context& ctx, Evaluation& ev, int& startflag) {
  bool ended = false;
  if (build_approximation(ctx, ev, startflag, ended) != kOk) return kErrorExit;
  if (ended) return kOk;
  sampcmc(ctx, ev);
  return evalcv(ctx, ev);
}

int evaluate_universe(const Context& ctx, Evaluation& ev, int& startflag) {
  if (univtab(ctx, ev) != kOk) return kErrorExit;
  return evaluniv(ctx, ev, startflag);
}

int run_strategy(const Context& ctx, Evaluation& ev, Family family, int& startflag) {
  switch (family) {
    case Family::expected:
      return evalev(ctx, ev, startflag);
    case Family::importance:
      return evaluate_importance(ctx, ev, startflag);
    case Family::universe:
      return evaluate_universe(ctx, ev, startflag);
    case Family::crude:
      sampcmc(ctx, ev);
      return evalcmc(ctx, ev, startflag);
    case Family::presample:
      return evalcmc(ctx, ev, startflag);
    case Family::control:
      return evaluate_control(ctx, ev, startflag);
    case Family::undefined:
      break;
  }
  return strategy_not_defined(ctx, ctx.log_unit);
}

bool keeps_approximation(Family family) {
  return family != Family::expected && family != Family::universe;
}

// Ties replace the best, so a later proposal of equal cost becomes the incumbent.
void keep_if_best(const Context& ctx, Evaluation& ev) {
  ev.current_total = ev.cut.objs + ctx.first_stage_cost;
  if (ev.current_total <= ev.best_total) {
    ev.best_total = ev.current_total;
    ev.best_variance = ev.cut.variance;
    snapshot(ctx, ev, 1);
    snapshot(ctx, ev, 3);
  }
}

int rerun_importance(const Context& ctx, Evaluation& ev, int& startflag) {
  snapshot(ctx, ev, kBestApproximation);
  if (weight_sum(ev) == 0.0) return crude_instead(ctx, ev, startflag);
  sampis(ctx, ev);
  return evalis(ctx, ev);
}

// The strategies again for the re-evaluation: a fresh sample wherever one is drawn, the
// approximation of the best proposal for importance sampling, the last one for control variables.
int rerun_strategy(const Context& ctx, Evaluation& ev, Family family, int& startflag) {
  switch (family) {
    case Family::expected:
      return evalev(ctx, ev, startflag);
    case Family::importance:
      return rerun_importance(ctx, ev, startflag);
    case Family::universe:
      return evaluate_universe(ctx, ev, startflag);
    case Family::crude:
    case Family::presample:
      sampcmc(ctx, ev);
      return evalcmc(ctx, ev, startflag);
    case Family::control:
      sampcmc(ctx, ev);
      return evalcv(ctx, ev);
    case Family::undefined:
      break;
  }
  return strategy_not_defined(ctx, ctx.err_unit);
}

}  // namespace

int evaluate(const Context& ctx, Evaluation& ev, int istrat) {
  lp::select_problem(ctx.optimizer, lp::kSubproblemSlot);
  const Family family = family_of(istrat);
  write_strategy_message(ctx, family);
  // Only the run's first subproblem starts cold. A new proposal changes only right-hand sides, so
  // the last evaluation's final basis stays dual feasible and is the cheapest start.
  if (run_strategy(ctx, ev, family, ev.start_flag) != kOk) return kErrorExit;
  if (keeps_approximation(family)) snapshot(ctx, ev, kLastApproximation);
  keep_if_best(ctx, ev);
  lp::select_problem(ctx.optimizer, lp::kMasterSlot);
  return kOk;
}

int reevaluate(const Context& ctx, Evaluation& ev, int istrat) {
  write_free(ctx.units, ctx.log_unit, "re-evaluating best solution for upper bnd");
  lp::select_problem(ctx.optimizer, lp::kSubproblemSlot);
  // Only this evaluation feeds the report, so its sums start from zero.
  ev.collect = 1;
  clear_accumulators(ev);
  const Family family = family_of(istrat);
  write_strategy_message(ctx, family);
  int startflag = 1;
  const int status = rerun_strategy(ctx, ev, family, startflag);
  ev.collect = 0;
  if (status != kOk) return kErrorExit;
  ev.best_total = ev.cut.objs + ctx.first_stage_cost;
  ev.best_variance = ev.cut.variance;
  lp::select_problem(ctx.optimizer, lp::kMasterSlot);
  return kOk;
}

void prepare_presample(const Context& ctx, Evaluation& ev) { sampcmc(ctx, ev); }

}  // namespace tarvo::sampling
