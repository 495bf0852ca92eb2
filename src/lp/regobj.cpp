#include <algorithm>

#include "lp/optimizer.h"

namespace tarvo::lp {

// f = 0.5 * sum_{j<=t} (x_j - xhat_j)^2 / rho, g_j = (x_j - xhat_j) / rho, with t = n less the
// free columns at the end: the master's recourse estimates (THETA, normally the last column
// alone) take no part in the proximal term and get g_j = 0. A centre shorter than the problem
// counts as 0 in the missing places.
void regobj(const Regularization& reg, int /*mode*/, int n, const double* x, double& f,
            double* g, int /*nstate*/, int /*nprob*/) {
  const int terms = n - reg.free_columns;
  double sum = 0.0;
  for (int j = 1; j <= terms; ++j) {
    const double centre = static_cast<std::size_t>(j) < reg.xhat.size() ? reg.xhat[j] : 0.0;
    const double d = x[j] - centre;
    sum += d * d;
    g[j] = d / reg.rho;
  }
  for (int j = std::max(terms + 1, 1); j <= n; ++j) g[j] = 0.0;
  f = 0.5 * sum / reg.rho;
}

}  // namespace tarvo::lp
