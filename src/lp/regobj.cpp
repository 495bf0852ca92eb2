#include "lp/optimizer.h"

namespace tarvo::lp {

// f = 0.5 * sum_{j<n} (x_j - xhat_j)^2 / rho, g_j = (x_j - xhat_j) / rho, g_n = 0: the last
// master column (THETA, the recourse estimate) takes no part in the proximal term. A centre
// shorter than the problem counts as 0 in the missing places.
void regobj(const Regularization& reg, int /*mode*/, int n, const double* x, double& f,
            double* g, int /*nstate*/, int /*nprob*/) {
  double sum = 0.0;
  for (int j = 1; j < n; ++j) {
    const double centre = static_cast<std::size_t>(j) < reg.xhat.size() ? reg.xhat[j] : 0.0;
    const double d = x[j] - centre;
    sum += d * d;
    g[j] = d / reg.rho;
  }
  if (n >= 1) g[n] = 0.0;
  f = 0.5 * sum / reg.rho;
}

}  // namespace tarvo::lp
