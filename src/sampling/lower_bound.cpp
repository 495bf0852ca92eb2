#include <algorithm>
#include <cmath>

#include "common/free_format.h"
#include "sampling/statistics.h"

namespace tarvo::sampling {

namespace {

constexpr double kBinding = 9.999999717180685e-10;  // single-precision 1e-9
constexpr double kConfidence = 0.95;

int binding_cuts(const CutRows& rows, int n) {
  int count = 0;
  for (int i = 1; i <= n; ++i) {
    if (rows.duals[i] >= kBinding && rows.variances[i] >= kBinding) ++count;
  }
  return count;
}

double lower_bound_error(const Context& ctx, const CutRows& rows, double sigma2) {
  const int nzrows = ctx.params.nzrows;
  const int n = std::min(nzrows, rows.iterations);
  write_free(ctx.units, ctx.log_unit, "nzrows, irm, imax:", nzrows, rows.irm, n);
  const int c = binding_cuts(rows, n);
  write_free(ctx.units, ctx.log_unit, "number of binding cuts:", static_cast<double>(c));
  write_free(ctx.units, ctx.log_unit, "number of cuts:", n);
  write_free(ctx.units, ctx.log_unit, "sigma estimated:", sigma2);
  double lbworst = 0.0;
  if (c != 0) {
    const double kalpha = std::pow(kConfidence, 1.0 / c);
    write_free(ctx.units, ctx.log_unit, "kalpha:", kalpha);
    const double kt = normquant(kalpha);
    write_free(ctx.units, ctx.log_unit, "kt:", kt);
    lbworst = kt * std::sqrt(sigma2);
  }
  write_free(ctx.units, ctx.log_unit, "lbworst:", lbworst);
  return lbworst;
}

}  // namespace

double lbstats(const Context& ctx, const Evaluation& ev, const CutRows& rows) {
  return lower_bound_error(ctx, rows, ev.best_variance);
}

double lbstats_presample(const Context& ctx, const Evaluation& ev, const CutRows& rows) {
  return lower_bound_error(ctx, rows, ev.cut.variance);
}

}  // namespace tarvo::sampling
