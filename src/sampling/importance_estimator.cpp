#include "common/free_format.h"
#include "sampling/coupling.h"
#include "sampling/cut.h"
#include "sampling/importance.h"
#include "sampling/solve_pass.h"
#include "sampling/strategies.h"

namespace tarvo::sampling {

namespace {

constexpr int kAlwaysWarm = 1;

// The points of block b are s = share_end[b-1] + 1 .. share_end[b]; point s's cost is at
// costs[s + 1]. A point with Gamma(omega) = 0 keeps its raw cost there.
void add_block_ratios(const Context& ctx, Evaluation& ev, int b, int first) {
  const double w = ev.approx.deltabar[b] / ev.counts[b];
  const double z0 = ev.approx.z0;
  for (int s = first; s < first + ev.counts[b]; ++s) {
    const double g = approximation_of_row(ctx, ev, s);
    if (g == 0.0) continue;
    const double r = (ev.costs[s + 1] - z0) / g;
    ev.costs[s + 1] = r;
    ev.cut.objs += w * r;
    ev.block_mean[b] += r / ev.counts[b];
    const double* u = point_u(ev, s);
    for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] += w * (u[j] - ev.u0[j]) / g;
  }
}

double block_sample_variance(const Evaluation& ev, int b, int first) {
  const int n = ev.counts[b];
  if (n == 1) return 0.0;
  double sum = 0.0;
  for (int s = first; s < first + n; ++s) {
    const double d = ev.costs[s + 1] - ev.block_mean[b];
    sum += d * d / (n - 1);
  }
  return sum;
}

void check_cut_constant(const Context& ctx, const Evaluation& ev) {
  const double recomputed = ev.cut.gls - first_stage_dot(ev.cut.gus, ctx.master_primal, ev.n1);
  if (recomputed != ev.cut.objs) write_free(ctx.units, ctx.log_unit, "error in cut: ", recomputed, ev.cut.objs);
}

void write_block_table(const Context& ctx, const Evaluation& ev) {
  write_free(ctx.units, ctx.log_unit, "jsamples    deltabar    zsmean    sigzj");
  for (int b = 1; b <= ev.nblocks; ++b) {
    write_free(ctx.units, ctx.log_unit, ev.counts[b], ev.approx.deltabar[b], ev.block_mean[b],
               ev.block_variance[b]);
  }
}

}  // namespace

void estimate_importance(const Context& ctx, Evaluation& ev) {
  clear_cut(ev);
  for (int b = 1; b <= ev.nblocks; ++b) ev.block_mean[b] = 0.0;
  int first = 1;
  for (int b = 1; b <= ev.nblocks; ++b) {
    add_block_ratios(ctx, ev, b, first);
    first += ev.counts[b];
  }
  for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] = -(ev.u0[j] + ev.cut.gus[j]);
  ev.cut.objs += ev.approx.z0;
  close_cut(ctx, ev);
  if (ctx.params.ibug >= 5) check_cut_constant(ctx, ev);
  first = 1;
  for (int b = 1; b <= ev.nblocks; ++b) {
    ev.block_variance[b] = block_sample_variance(ev, b, first);
    first += ev.counts[b];
  }
  if (ctx.params.ibug >= 3) write_block_table(ctx, ev);
  double variance = 0.0;
  for (int b = 1; b <= ev.nblocks; ++b) {
    variance += ev.approx.deltabar[b] * ev.approx.deltabar[b] * ev.block_variance[b] / ev.counts[b];
  }
  ev.cut.variance = variance;
  if (ctx.params.ibug >= 5) write_cut_trace(ctx, ev);
}

int evalis(const Context& ctx, Evaluation& ev) {
  clear_cut(ev);
  for (int b = 1; b <= ev.nblocks; ++b) ev.block_variance[b] = 0.0;
  int startflag = kAlwaysWarm;
  const PassPlan plan{.rows = ev.share_end[ev.nblocks], .cost_offset = 1, .mode = 2,
                      .visit = Visit::sorted, .collect = CollectRule::importance};
  if (solve_points(ctx, ev, plan, startflag) != kOk) return kErrorExit;
  if (ev.infeasible_point != 0) {
    end_on_infeasible(ctx, ev, plan);
    return kOk;
  }
  estimate_importance(ctx, ev);
  return kOk;
}

}  // namespace tarvo::sampling
