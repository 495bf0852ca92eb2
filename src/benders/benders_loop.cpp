#include "benders/benders_loop.h"

#include <algorithm>
#include <cmath>

#include "benders/master_solve.h"
#include "common/free_format.h"
#include "common/record_format.h"
#include "lp/optimizer.h"
#include "sampling/cut_groups.h"
#include "sampling/evaluate.h"
#include "sampling/statistics.h"
#include "sampling/subproblem.h"

namespace tarvo::benders {
namespace {

using SV = std::string_view;

constexpr int kConsole = kConsoleUnit;
constexpr int kErrUnit = kErrorUnit;
// 1.65 as a single-precision literal: the upper confidence factor.
constexpr double kUpperConfidenceFactor = 1.649999976158142;

constexpr int kColdStart = 0;
constexpr int kWarmStart = 1;
// A group's cut enters a multi-cut master when the group's cost exceeds its THETA by more than
// this fraction of tolben (relative to the cost): well inside the gap the stopping test allows.
constexpr double kGroupCutExcess = 1.0e-3;
// A stabilized iteration counts as progress when the lower bound rose by this fraction of it.
constexpr double kLowerBoundRise = 1.0e-9;

bool statistical_test(int s) { return s == 2 || s == 3 || s == 6 || s == 7 || s == 11; }
bool sampled(int s) { return s >= 2 && s <= 11 && s != 4 && s != 5; }
bool presampled(int s) { return s == 8 || s == 9; }
bool expected_value_first(int s) { return s == 3 || s == 5 || s == 7 || s == 9 || s == 11; }

int master_failed(const sampling::Context& ctx, int inform) {
  return sampling::dumpbad(ctx, lp::kMasterSlot, inform);
}

void write_table_header(Units& u) {
  write_record(u, kConsole, "(/,1x,a4,3(1x,a20),/)",
               {SV("iter"), SV("               lower"), SV("          best upper"),
                SV("       current upper")});
}

void write_table_row(Units& u, const SolveState& st, const sampling::Evaluation& ev) {
  write_record(u, kConsole, "(1x,i6,3(1x,e20.4))",
               {static_cast<long long>(st.iterations), st.lower, ev.best_total, ev.current_total});
}

double theta_of(const sampling::Context& ctx) { return ctx.master_primal[ctx.model.n1 + 1]; }

// Variance of the lower bound: the cuts' variances weighted by their squared duals.
double lower_bound_variance(const sampling::Context& ctx, SolveState& st) {
  const int first = st.rows.first_stage_rows;
  double sum = 0.0;
  for (int r = 1; r <= st.rows.nzrows; ++r) {
    st.cut_duals[r] = ctx.master_duals[first + r];
    sum += st.cut_duals[r] * st.cut_duals[r] * st.rows.variance[r];
  }
  return sum;
}

// The relaxed master before the first evaluation of a run.
int solve_relaxed_master(const sampling::Context& ctx, SolveState& st) {
  Units& u = ctx.units;
  write_free(u, ctx.log_unit, "solve relaxed master");
  lp::select_problem(ctx.optimizer, lp::kMasterSlot);
  lp::set_objective_mode(ctx.optimizer, u, 0, ctx.log_unit);
  const int inform = solve_master(ctx, st, st.iterations != 0 ? kWarmStart : kColdStart,
                                  st.master_objective);
  if (inform != 0) return master_failed(ctx, inform);
  write_free(u, ctx.log_unit, "relaxed master done, obj:", st.master_objective);
  if (ctx.params.ibug >= 1) list_first_stage(ctx, " x (", "):");
  st.theta = theta_of(ctx);
  st.first_stage_cost = st.master_objective - st.theta;
  write_free(u, ctx.log_unit, "objm", st.first_stage_cost);
  write_free(u, ctx.log_unit, "theta :", st.theta);
  return sampling::kOk;
}

// The regularized master around the incumbent; its solution becomes the next proposal.
int solve_regularized_master(const sampling::Context& ctx, const sampling::Evaluation& ev,
                             SolveState& st) {
  Units& u = ctx.units;
  lp::Optimizer& opt = ctx.optimizer;
  lp::Regularization& reg = opt.regularization;
  const int n = opt.slot[lp::kMasterSlot].n;
  reg.rho = ctx.params.rho;
  reg.free_columns = n - ctx.model.n1;
  reg.xhat.assign(ev.best_master_primal.begin(), ev.best_master_primal.begin() + n + 1);
  lp::select_problem(opt, lp::kMasterSlot);
  lp::set_objective_mode(opt, u, 1, ctx.log_unit);
  write_free(u, ctx.log_unit, "solve regularized master, iteration: ", st.iterations);
  const int inform = solve_master(ctx, st, kWarmStart, st.master_objective);
  lp::set_objective_mode(opt, u, 0, ctx.log_unit);
  if (inform != 0) return master_failed(ctx, inform);
  lp::regobj(reg, 0, n, ctx.master_primal.data(), st.regularization_term, st.gradient.data(), 0,
             lp::kMasterSlot);
  write_free(u, ctx.log_unit, "regularized objective: ", st.master_objective);
  write_free(u, ctx.log_unit, "regularization term: ", st.regularization_term);
  return sampling::kOk;
}

// One pass of the loop after the evaluation and the cut: the master, its bounds and lists.
int solve_next_master(const sampling::Context& ctx, const sampling::Evaluation& ev,
                      SolveState& st, int ireg) {
  Units& u = ctx.units;
  write_free(u, ctx.log_unit, "solve master, iteration: ", st.iterations);
  const int inform = solve_master(ctx, st, kWarmStart, st.master_objective);
  if (inform != 0) return master_failed(ctx, inform);
  write_free(u, ctx.log_unit, "master objective: ", st.master_objective);
  if (ctx.params.ibug >= 1) list_first_stage(ctx, " x (", "):");
  if (ctx.params.ibug >= 4) list_master_duals(ctx);
  st.theta = theta_of(ctx);
  st.lower = st.master_objective;
  st.lower_variance = lower_bound_variance(ctx, st);
  write_free(u, ctx.log_unit, "lower bnd.:", st.lower, "  var.:", st.lower_variance);
  write_free(u, ctx.log_unit, "upper bnd.:", ev.best_total, "  var.:", ev.best_variance);
  st.regularization_term = 0.0;
  if (ireg == 1) {
    const int status = solve_regularized_master(ctx, ev, st);
    if (status != sampling::kOk) return status;
  }
  st.theta = theta_of(ctx);
  st.first_stage_cost = st.master_objective - st.theta - st.regularization_term;
  write_free(u, ctx.log_unit, "objm", st.first_stage_cost);
  if (ctx.params.ibug >= 1) list_first_stage(ctx, " x (", "):");
  if (ctx.params.ibug >= 4) list_master_duals(ctx);
  return sampling::kOk;
}

bool gap_closed(const sampling::Context& ctx, const sampling::Evaluation& ev, SolveState& st,
                int s) {
  if (statistical_test(s)) {
    int result = 0;
    sampling::gaptest(ctx, ev, st.lower, st.lower_variance, result);
    return result == 1;
  }
  const double tolben = ctx.params.tolben;
  const double d = std::fabs(st.lower) > tolben ? std::fabs(st.lower) : 1.0;
  st.relative_gap = (ev.best_total - st.lower) / d;
  return st.relative_gap < tolben;
}

// The limits and the convergence test; true when the loop ends.
bool loop_ends(const sampling::Context& ctx, const sampling::Evaluation& ev, SolveState& st,
               int s) {
  Units& u = ctx.units;
  if (st.iterations >= ctx.params.maxit) {
    write_free(u, ctx.log_unit, "warning: iterations limit reached.");
    write_free(u, kErrUnit, "warning: iterations limit reached.");
    ctx.solver_status = 2;
    return true;
  }
  if (ctx.clock.execution >= ctx.params.maxtime) {
    write_free(u, ctx.log_unit, "warning: time limit reached.");
    write_free(u, kErrUnit, "warning: time limit reached.");
    ctx.solver_status = 3;
    return true;
  }
  if (gap_closed(ctx, ev, st, s)) {
    ctx.solver_status = 1;
    return true;
  }
  return false;
}

// The cuts a multi-cut master takes from an evaluation: the cut of every group whose share of the
// estimate exceeds its THETA at the proposal (a group whose cuts already meet its cost adds
// nothing), or the evaluation's one cut on THETA itself when it is a feasibility cut or comes
// from the expected values.
int pool_cuts(const sampling::Context& ctx, const sampling::Evaluation& ev, SolveState& st, int s) {
  const int theta = ctx.model.n1 + 1;
  const bool optimality = ev.cut.gus[theta] == 1.0;
  if (s == 1 || !optimality) {
    st.new_cuts[0] = PoolCut{0, ev.cut.gus.data(), ev.cut.gus[theta], ev.cut.gls, ev.cut.variance};
    return 1;
  }
  const sampling::CutGroups& groups = ev.groups;
  const double tolerance = kGroupCutExcess * ctx.params.tolben;
  int count = 0;
  for (int g = 1; g <= groups.count; ++g) {
    const double excess = groups.objs[g] - ctx.master_primal[theta + g];
    if (!(excess > tolerance * std::max(1.0, std::fabs(groups.objs[g])))) continue;
    st.new_cuts[count++] =
        PoolCut{g, sampling::group_gus(ev, g), 0.0, groups.gls[g], groups.variance[g]};
  }
  return count;
}

int add_evaluation_cut(const sampling::Context& ctx, sampling::Evaluation& ev, SolveState& st,
                       int s) {
  lp::ProblemSlot& master = ctx.optimizer.slot[lp::kMasterSlot];
  CutResult result = CutResult::stored;
  if (st.rows.pool.groups > 0) {
    const int count = pool_cuts(ctx, ev, st, s);
    result = add_pool_cuts(master, st.rows, st.new_cuts.data(), count, st.iterations, ctx.units,
                           ctx.params, ctx.log_unit);
  } else {
    const Cut cut{ev.cut.gus.data(), ev.cut.gls, ev.cut.variance};
    result = add_cut(master, st.rows, cut, st.iterations, ctx.units, ctx.params, ctx.log_unit);
  }
  if (result == CutResult::missing_location) {
    write_free(ctx.units, kErrUnit, "error: missing location for cut coefficient");
    return sampling::kErrorExit;
  }
  return sampling::kOk;
}

// In-out stabilization: the cuts of an iteration are taken at stabil x best + (1 - stabil) x the
// master's solution, which keeps the proposals from jumping across the first stage while the
// cuts are still few. Every cut stays valid and every proposal first-stage feasible (both ends
// are), so the bounds keep their meaning; an iteration whose cuts did not raise the lower bound
// is followed by one at the master's own solution, as plain Benders would take.
bool stabilizing(const sampling::Context& ctx, int s, int ireg) {
  const bool fixed_points = !sampled(s) || presampled(s);
  return ctx.params.stabil > 0.0 && ireg == 0 && fixed_points;
}

// Moves the proposal toward the best one; the first-stage cost, linear, moves with it.
void move_toward_best(const sampling::Context& ctx, const sampling::Evaluation& ev,
                      SolveState& st) {
  const double weight = ctx.params.stabil;
  for (int j = 1; j <= ctx.model.n1; ++j) {
    double& x = ctx.master_primal[j];
    x = weight * ev.best_master_primal[j] + (1.0 - weight) * x;
  }
  st.first_stage_cost = weight * ev.best_first_stage_cost + (1.0 - weight) * st.first_stage_cost;
}

int iterate(const sampling::Context& ctx, sampling::Evaluation& ev, SolveState& st, int s,
            int ireg) {
  const bool stabilized = stabilizing(ctx, s, ireg);
  double last_lower = -sampling::kInfiniteCost;
  for (bool first = true;; first = false) {
    if (stabilized && !first && ev.best_total < sampling::kInfiniteCost) {
      if (st.lower > last_lower + kLowerBoundRise * std::fabs(st.lower)) {
        move_toward_best(ctx, ev, st);
      }
      last_lower = st.lower;
    }
    if (sampling::evaluate(ctx, ev, s) != sampling::kOk) return sampling::kErrorExit;
    if (first && expected_value_first(s)) {
      write_free(ctx.units, kSolutionUnit);
      write_record(ctx.units, kSolutionUnit, "(1x, a32, 1x, 1pe15.5)",
                   {SV("expected total cost:"), ev.current_total});
    }
    if (add_evaluation_cut(ctx, ev, st, s) != sampling::kOk) return sampling::kErrorExit;
    clock_interval(ctx.clock, nullptr);
    if (solve_next_master(ctx, ev, st, ireg) != sampling::kOk) return sampling::kErrorExit;
    write_table_row(ctx.units, st, ev);
    if (loop_ends(ctx, ev, st, s)) return sampling::kOk;
  }
}

// The cut rows of a multi-cut master as the lower-bound statistic counts cuts: one entry per
// iteration whose cuts are in the master, with the largest dual of its rows and their summed
// variance, so that a binding cut still stands for one evaluation.
sampling::CutRows cuts_by_iteration(SolveState& st) {
  CutPool& pool = st.rows.pool;
  int used = 0;
  for (int r = 1; r <= st.rows.nzrows; ++r) {
    if (pool.holder[r] >= 0) pool.taken[++used] = r;
  }
  const auto older = [&pool](int a, int b) {
    return pool.source[a] != pool.source[b] ? pool.source[a] < pool.source[b] : a < b;
  };
  std::sort(pool.taken.begin() + 1, pool.taken.begin() + used + 1, older);
  int count = 0;
  for (int i = 1; i <= used; ++i) {
    const int r = pool.taken[i];
    if (i == 1 || pool.source[r] != pool.source[pool.taken[i - 1]]) {
      ++count;
      st.iteration_duals[count] = st.cut_duals[r];
      st.iteration_variance[count] = 0.0;
    }
    st.iteration_duals[count] = std::max(st.iteration_duals[count], st.cut_duals[r]);
    st.iteration_variance[count] += st.rows.variance[r];
  }
  return sampling::CutRows{st.iteration_duals, st.iteration_variance, st.rows.first_stage_rows,
                           count};
}

// The lower end of the confidence interval once the loop has ended.
void settle_lower_end(const sampling::Context& ctx, const sampling::Evaluation& ev, SolveState& st,
                      int s) {
  st.lower_end = st.master_objective;
  if (s == 1 || s == 4 || s == 5) return;
  lower_bound_variance(ctx, st);
  const sampling::CutRows rows =
      st.rows.pool.groups > 0
          ? cuts_by_iteration(st)
          : sampling::CutRows{st.cut_duals, st.rows.variance, st.rows.first_stage_rows,
                              st.iterations};
  const double error = presampled(s) ? sampling::lbstats_presample(ctx, ev, rows)
                                     : sampling::lbstats(ctx, ev, rows);
  st.lower_end = st.master_objective - error;
}

void write_final_lines(const sampling::Context& ctx, const sampling::Evaluation& ev,
                       const SolveState& st, int s) {
  Units& u = ctx.units;
  const int log = ctx.log_unit;
  write_free(u, log, "upper bnd.:", ev.best_total, " var.:", ev.best_variance);
  write_free(u, log, " solution : ");
  write_free(u, log, " obj : ", st.master_objective);
  list_first_stage(ctx, " x (", ") : ");
  write_free(u, log, "theta:", st.theta, "zsub:", st.zsub);
  if (!sampled(s)) return;
  write_free(u, log, "95% confidence interval   :", st.lower_end, st.upper_end);
  if (st.master_objective != 0.0) {
    write_free(u, log, "95% confidence interval % :",
               100.0 * (st.lower_end - st.master_objective) / st.master_objective,
               100.0 * (st.upper_end - st.master_objective) / st.master_objective);
  }
}

int finish_run(const sampling::Context& ctx, sampling::Evaluation& ev, SolveState& st, int s) {
  settle_lower_end(ctx, ev, st, s);
  sampling::snapshot(ctx, ev, s == 1 || s == 5 ? 3 : 4);
  if (ctx.params.iresamp == 1 && sampling::reevaluate(ctx, ev, s) != sampling::kOk) {
    return sampling::kErrorExit;
  }
  st.master_objective = ev.best_total;
  if (sampled(s)) {
    st.upper_end = ev.best_total + kUpperConfidenceFactor * std::sqrt(ev.best_variance);
  } else {
    st.lower_end = st.upper_end = ev.best_total;
  }
  sampling::snapshot(ctx, ev, 4);
  st.theta = theta_of(ctx);
  st.zsub = ev.best_total - ev.best_first_stage_cost;
  write_final_lines(ctx, ev, st, s);
  return sampling::kOk;
}

}  // namespace

int benders_loop(const sampling::Context& ctx, sampling::Evaluation& ev, SolveState& st, int s,
                 int ireg) {
  ev.best_total = sampling::kInfiniteCost;
  ev.best_variance = 0.0;
  std::fill(ev.acc_primal.begin(), ev.acc_primal.end(), 0.0);
  std::fill(ev.acc_duals.begin(), ev.acc_duals.end(), 0.0);
  if (solve_relaxed_master(ctx, st) != sampling::kOk) return sampling::kErrorExit;
  if (presampled(s)) sampling::prepare_presample(ctx, ev);
  st.lower = st.master_objective;
  write_table_header(ctx.units);
  write_record(ctx.units, kConsole, "(1x,i6,3(1x,e20.4))",
               {static_cast<long long>(st.iterations), st.lower});
  if (ireg == 1) write_free(ctx.units, kConsole, "regularization on.");
  if (ctx.params.stabil > 0.0 && !stabilizing(ctx, s, ireg)) {
    write_free(ctx.units, ctx.log_unit,
               "stabil ignored: the strategy draws new outcomes or regularizes the master");
  }
  if (iterate(ctx, ev, st, s, ireg) != sampling::kOk) return sampling::kErrorExit;
  return finish_run(ctx, ev, st, s);
}

}  // namespace tarvo::benders
