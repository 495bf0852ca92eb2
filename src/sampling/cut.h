#pragma once
// Cut coefficients from solved subproblems. For outcome weights w_k the cut is
//   objs = sum w_k z_k,  gus_j = -sum w_k u_kj (u = C' pi),  gls = objs + sum_j gus_j x-hat_j,
// with THETA's coefficient 1, so that THETA + sum gus_j x_j >= gls. Arrays of first-stage values
// are passed as pointers used 1-based: u[1..n1].
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// C' pi of sample point k as stored by the solve pass, 1-based.
inline double* point_u(Evaluation& ev, int k) { return ev.point_u.data() + (k - 1) * ev.n1; }
inline const double* point_u(const Evaluation& ev, int k) {
  return ev.point_u.data() + (k - 1) * ev.n1;
}

// objs, gls, the variance and every gus := 0.
void clear_cut(Evaluation& ev);

// With gus[1..n1] and objs in place: gls := objs + gus . x-hat, THETA's coefficient := 1.
void close_cut(const Context& ctx, Evaluation& ev);

// The feasibility cut of an infeasible outcome whose sum of infeasibilities is z and dual
// product u: gus = -u, gls = z + gus . x-hat, THETA's coefficient 0, objs = kInfiniteCost.
void feascut(const Context& ctx, Evaluation& ev, double z, const double* u);

// The " objs: ", " cut: ", " gls: " and "gus(j): " trace lines.
void write_cut_trace(const Context& ctx, const Evaluation& ev);

}  // namespace tarvo::sampling
