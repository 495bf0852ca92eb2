#include "sampling/cut.h"
#include "sampling/cut_groups.h"
#include "sampling/solve_pass.h"
#include "sampling/strategies.h"

namespace tarvo::sampling {

namespace {

double variance_of_mean(const Evaluation& ev, int n) {
  double sum = 0.0;
  for (int k = 1; k <= n; ++k) {
    const double d = ev.costs[k] - ev.cut.objs;
    sum += d * d;
  }
  return sum / n / (n - 1);
}

// Each group's cut, and its share of the variance of the mean: the squared deviations of its
// points, divided as variance_of_mean divides their sum.
void estimate_group_means(const Context& ctx, Evaluation& ev, int n) {
  clear_groups(ev);
  for (int k = 1; k <= n; ++k) {
    add_to_group(ev, k, 1.0 / n, ev.costs[k], point_u(ev, k));
    const double d = ev.costs[k] - ev.cut.objs;
    add_group_variance(ev, k, d * d / n / (n - 1));
  }
  close_groups(ctx, ev);
}

}  // namespace

void estimate_mean(const Context& ctx, Evaluation& ev) {
  clear_cut(ev);
  const int n = ev.nsamples;
  for (int k = 1; k <= n; ++k) {
    ev.cut.objs += ev.costs[k] / n;
    const double* u = point_u(ev, k);
    for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] -= u[j] / n;
  }
  close_cut(ctx, ev);
  ev.cut.variance = variance_of_mean(ev, n);
  if (grouped(ev, n)) estimate_group_means(ctx, ev, n);
  if (ctx.params.ibug >= 5) write_cut_trace(ctx, ev);
}

int evalcmc(const Context& ctx, Evaluation& ev, int& startflag) {
  clear_cut(ev);
  if (ev.collect == 1) clear_accumulators(ev);
  const PassPlan plan{.rows = ev.nsamples, .cost_offset = 0, .mode = 3, .visit = Visit::sorted,
                      .collect = CollectRule::mean};
  if (solve_points(ctx, ev, plan, startflag) != kOk) return kErrorExit;
  if (ev.infeasible_point != 0) {
    end_on_infeasible(ctx, ev, plan);
    return kOk;
  }
  estimate_mean(ctx, ev);
  return kOk;
}

}  // namespace tarvo::sampling
