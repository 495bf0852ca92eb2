#include "sampling/statistics.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

#include "common/free_format.h"

namespace tarvo::sampling {

namespace {

constexpr double kTwoPi = 6.2831854;
constexpr double kCoarseStep = 0.009999999776482582;  // single-precision 0.01
constexpr double kFineStep = 0.004999999888241291;    // single-precision 0.005
constexpr double kLowerLimit = -5.0;
constexpr double kUpperLimit = 5.0;
constexpr int kFewestDegrees = 10;

// Two-sided 95% t values for 10..30 degrees of freedom.
constexpr std::array<double, 21> kTTable = {2.228, 2.201, 2.179, 2.160, 2.145, 2.131, 2.120,
                                            2.110, 2.101, 2.093, 2.086, 2.080, 2.074, 2.069,
                                            2.064, 2.060, 2.056, 2.052, 2.048, 2.045, 2.042};

struct Anchor {
  int f;
  double t;
};
constexpr std::array<Anchor, 5> kAnchors = {{{30, 2.042}, {40, 2.021}, {60, 2.000}, {120, 1.980},
                                             {1000, 1.960}}};

double phi(double x, double step) { return x >= kUpperLimit ? 1.0 : normcdf(kLowerLimit, x, step); }

int degrees_of_freedom(double a, double b, int nU, int nL) {
  const double s = a + b;
  const double f = s * s / (b * b / (nL + 1.0) + a * a / (nU + 1.0));
  if (std::isnan(f)) return 0;
  if (f >= static_cast<double>(INT_MAX)) return INT_MAX;
  return static_cast<int>(f);
}

}  // namespace

double normcdf(double a, double b, double h) {
  if (a >= b) return 0.0;
  double sum = 0.0;
  for (double t = a + h / 2.0; t < b; t += h) sum += h * std::exp(-t * t / 2.0) / std::sqrt(kTwoPi);
  return sum;
}

double normquant(double p) {
  double lo = 0.0;
  double hi = 0.0;
  while (phi(hi, kCoarseStep) < p) {
    lo = hi;
    hi += 0.5;
  }
  do {
    const double mid = (hi + lo) / 2.0;
    if (phi(mid, kFineStep) < p) {
      lo = mid;
    } else {
      hi = mid;
    }
  } while (std::fabs(hi - lo) > kFineStep);
  return (hi + lo) / 2.0;
}

double tstar(int f, double beyond) {
  if (f <= 30) return kTTable[std::max(f, kFewestDegrees) - kFewestDegrees];
  for (std::size_t i = 1; i < kAnchors.size(); ++i) {
    const Anchor& a = kAnchors[i - 1];
    const Anchor& b = kAnchors[i];
    if (f <= b.f) return a.t + (b.t - a.t) * (f - a.f) / (b.f - a.f);
  }
  return beyond;
}

void ttest(const Context& ctx, double U, double L, double VU, double VL, int nU, int nL, double tol,
           int& result) {
  const double a = VU / nU;
  const double b = VL / nL;
  const int f = degrees_of_freedom(a, b, nU, nL);
  const double t = (U - L - tol) / std::sqrt(a + b);
  if (f < kFewestDegrees) {
    write_free(ctx.units, ctx.log_unit, "insufficient sample size");
    return;
  }
  const double critical = tstar(f, b);
  if (ctx.params.ibug > 6) write_free(ctx.units, ctx.log_unit, U, L, VU, VL, nU, nL);
  if (ctx.params.ibug > 1) write_free(ctx.units, ctx.log_unit, "ifr", f, "t, tstar", t, critical);
  result = t <= critical ? 1 : 0;
}

void gaptest(const Context& ctx, const Evaluation& ev, double L, double VL, int& result) {
  const double U = ev.best_total;
  const double VU = ev.best_variance;
  if (ctx.params.ibug > 5) {
    write_free(ctx.units, ctx.log_unit, "lower bnd.:", L, "var.:", VL);
    write_free(ctx.units, ctx.log_unit, "upper bnd.:", U, "var.:", VU);
  }
  if (VU == 0.0 && VL == 0.0) {
    result = U - L - ctx.params.tolben <= 0.0 ? 1 : 0;
    return;
  }
  ttest(ctx, U, L, VU, VL, ev.nsamples, ev.nsamples, ctx.params.tolben, result);
}

}  // namespace tarvo::sampling
