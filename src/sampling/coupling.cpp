#include "sampling/coupling.h"

namespace tarvo::sampling {

void couple_proposal(const Context& ctx, Evaluation& ev, const std::vector<double>& x) {
  const input::Decomposition& d = ctx.model;
  for (int i = 1; i <= ev.m2; ++i) ev.coupled[i] = 0.0;
  for (int j = 1; j <= ev.n1; ++j) {
    if (x[j] == 0.0) continue;
    for (int p = d.kb[j]; p < d.kb[j + 1]; ++p) ev.coupled[d.hb[p]] += ev.b_work[p] * x[j];
  }
}

void dual_product(const Context& ctx, const Evaluation& ev, const std::vector<double>& duals,
                  std::vector<double>& u) {
  const input::Decomposition& d = ctx.model;
  for (int j = 1; j <= ev.n1; ++j) {
    double sum = 0.0;
    for (int p = d.kb[j]; p < d.kb[j + 1]; ++p) sum += ev.b_work[p] * duals[d.hb[p]];
    u[j] = sum;
  }
}

double first_stage_dot(const std::vector<double>& a, const std::vector<double>& x, int n1) {
  double sum = 0.0;
  for (int j = 1; j <= n1; ++j) sum += a[j] * x[j];
  return sum;
}

}  // namespace tarvo::sampling
