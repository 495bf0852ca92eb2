#include <algorithm>

#include "common/free_format.h"
#include "common/record_format.h"
#include "sampling/cut.h"
#include "sampling/importance.h"
#include "sampling/solve_pass.h"
#include "sampling/strategies.h"

namespace tarvo::sampling {

namespace {

constexpr int kAlwaysWarm = 1;

struct Moments {
  double gbar = 0.0;   // mean of the control G_k = Gamma(omega_k)
  double sigzs = 0.0;  // sample variance of the cost differences d_k = z_k - z0
  double sigg = 0.0;   // sample variance of G
  double covzg = 0.0;  // sample covariance of d and G
};

// First pass: d_k replaces z_k in costs[k + 1]; the means of d and G and the gradient sum.
void accumulate_means(const Context& ctx, Evaluation& ev, Moments& m) {
  const int n = ev.nsamples;
  for (int k = 1; k <= n; ++k) {
    const double d = ev.costs[k + 1] - ev.approx.z0;
    ev.costs[k + 1] = d;
    m.gbar += approximation_of_row(ctx, ev, k) / n;
    ev.cut.objs += d / n;
    const double* u = point_u(ev, k);
    for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] += u[j] / n;
  }
}

void accumulate_spreads(const Context& ctx, const Evaluation& ev, Moments& m) {
  const int n = ev.nsamples;
  for (int k = 1; k <= n; ++k) {
    const double dz = ev.costs[k + 1] - ev.cut.objs;
    const double dg = approximation_of_row(ctx, ev, k) - m.gbar;
    m.sigzs += dz * dz;
    m.sigg += dg * dg;
    m.covzg += dz * dg;
  }
  const double scale = 1.0 / (n - 1);
  m.sigzs *= scale;
  m.sigg *= scale;
  m.covzg *= scale;
}

double exact_control_variance(const Evaluation& ev) {
  double sum = 0.0;
  for (int b = 1; b <= ev.nblocks; ++b) sum += ev.approx_variance[b];
  return sum;
}

void write_moments(const Context& ctx, const Evaluation& ev, const Moments& m, double alpha) {
  write_free(ctx.units, ctx.log_unit, "sigzs=", m.sigzs);
  write_free(ctx.units, ctx.log_unit, "sigg =", exact_control_variance(ev));
  write_free(ctx.units, ctx.log_unit, "sigg1=", m.sigg);
  write_free(ctx.units, ctx.log_unit, "covzg=", m.covzg);
  write_free(ctx.units, ctx.log_unit, "alpha=", alpha);
}

void write_reduction_trace(const Context& ctx, double sigzs, double reduced) {
  write_free(ctx.units, ctx.log_unit, "sigzs=        ", sigzs);
  write_free(ctx.units, ctx.log_unit, "sigzs_reduced=", reduced);
}

}  // namespace

void estimate_control(const Context& ctx, Evaluation& ev) {
  clear_cut(ev);
  Moments m;
  accumulate_means(ctx, ev, m);
  accumulate_spreads(ctx, ev, m);
  // The coefficient divides by the variance of the sampled costs (not of the control). Costs
  // that do not vary leave nothing to correct: 0/0 is taken as no correction.
  const double alpha = m.sigzs != 0.0 ? m.covzg / m.sigzs : 0.0;
  if (ctx.params.ibug >= 5) write_moments(ctx, ev, m, alpha);
  ev.cut.objs = ev.approx.z0 + ev.cut.objs + alpha * (ev.expected_gamma - m.gbar);
  for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] = -ev.cut.gus[j];
  close_cut(ctx, ev);
  const double reduced = alpha * alpha * m.sigg + m.sigzs - 2.0 * alpha * m.covzg;
  if (ctx.params.ibug >= 5) write_reduction_trace(ctx, m.sigzs, reduced);
  write_record(ctx.units, ctx.log_unit, "(a20, 1x, f12.2)", {"variance reduction:", m.sigzs / reduced});
  // Costs that hardly vary can leave the formula a rounding error below zero; a variance is never
  // negative, and a negative one would stall the statistical test on the root of it.
  ev.cut.variance = std::max(reduced, 0.0) / ev.nsamples;
  if (ctx.params.ibug >= 5) write_cut_trace(ctx, ev);
}

int evalcv(const Context& ctx, Evaluation& ev) {
  clear_cut(ev);
  if (ev.collect == 1) clear_accumulators(ev);
  int startflag = kAlwaysWarm;
  const PassPlan plan{.rows = ev.nsamples, .cost_offset = 1, .mode = 2, .visit = Visit::sorted,
                      .collect = CollectRule::mean};
  if (solve_points(ctx, ev, plan, startflag) != kOk) return kErrorExit;
  if (ev.infeasible_point != 0) {
    end_on_infeasible(ctx, ev, plan);
    return kOk;
  }
  estimate_control(ctx, ev);
  return kOk;
}

}  // namespace tarvo::sampling
