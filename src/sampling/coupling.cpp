#include "sampling/coupling.h"

namespace tarvo::sampling {

void couple_proposal(const Context& ctx, const Evaluation& ev, SolveWork& work,
                     const std::vector<double>& x) {
  const input::Decomposition& d = ctx.model;
  for (int i = 1; i <= ev.m2; ++i) work.coupled[i] = 0.0;
  for (int j = 1; j <= ev.n1; ++j) {
    if (x[j] == 0.0) continue;
    for (int p = d.kb[j]; p < d.kb[j + 1]; ++p) work.coupled[d.hb[p]] += work.b_work[p] * x[j];
  }
}

void dual_product(const Context& ctx, const Evaluation& ev, SolveWork& work) {
  const input::Decomposition& d = ctx.model;
  for (int j = 1; j <= ev.n1; ++j) {
    double sum = 0.0;
    for (int p = d.kb[j]; p < d.kb[j + 1]; ++p) sum += work.b_work[p] * work.duals[d.hb[p]];
    work.u[j] = sum;
  }
}

double first_stage_dot(const std::vector<double>& a, const std::vector<double>& x, int n1) {
  double sum = 0.0;
  for (int j = 1; j <= n1; ++j) sum += a[j] * x[j];
  return sum;
}

}  // namespace tarvo::sampling
