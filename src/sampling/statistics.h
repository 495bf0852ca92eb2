#pragma once
// Statistics of the bounds: the normal distribution by numerical integration, the two-sided 95%
// t quantiles, the test whether the gap between the bounds is significant, and the error term of
// the lower bound from the binding cuts.
#include <vector>

#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Integral of the standard normal density from a to b by the midpoint rule with step h
// (0 when a >= b).
double normcdf(double a, double b, double h);

// x with Phi(x) = p, for p in [0.5, 1): a search in steps of 0.5, then bisection to a bracket of
// 0.005; Phi is integrated from -5 (and taken as 1 from 5 on).
double normquant(double p);

// Two-sided 95% t value for f >= 10 degrees of freedom: the table up to 30, linear interpolation
// between the anchors 30, 40, 60, 120 and 1000 above; beyond 1000 `beyond` is returned (the test
// then compares with the value its variable already held).
double tstar(int f, double beyond);

// Welch's two-sample test of U - L - tol against 0, with n + 1 in the denominators of the
// degrees of freedom. With fewer than 10 degrees of freedom writes "insufficient sample size" and
// leaves `result` alone; otherwise result := 1 when the difference is not significant, else 0.
void ttest(const Context& ctx, double U, double L, double VU, double VL, int nU, int nL, double tol,
           int& result);

// Are the lower bound L (variance VL) and the best total cost (ev.best_total, ev.best_variance)
// indistinguishable within tolben? Both sample sizes are the working sample size. With both
// variances exactly 0 the test is U - L <= tolben.
void gaptest(const Context& ctx, const Evaluation& ev, double L, double VL, int& result);

// The master's reserved cut rows as the lower-bound statistic reads them.
struct CutRows {
  const std::vector<double>& duals;      // [1..nzrows] dual value of each cut row
  const std::vector<double>& variances;  // [1..nzrows] variance stored with each cut
  int irm = 0;                           // master rows before the cut rows
  int iterations = 0;                    // cuts added so far (the Benders iteration count)
};

// lbworst, the lower bound's error term: with c binding cuts (dual and variance both at least
// 1e-9 in single precision), kt = normquant(0.95^(1/c)) times the square root of the best
// evaluation's variance; 0 with no binding cut. Writes its working to the screen log.
double lbstats(const Context& ctx, const Evaluation& ev, const CutRows& rows);

// The same for Monte Carlo presampling, whose cuts all come from the one kept sample: the spread
// is that of the last evaluation on that sample.
double lbstats_presample(const Context& ctx, const Evaluation& ev, const CutRows& rows);

}  // namespace tarvo::sampling
