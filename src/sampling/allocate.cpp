#include "sampling/allocate.h"

#include <cmath>

namespace tarvo::sampling {

namespace {

// Block of the largest remainder among those at 0.0 or more (the last one on ties), or 0.
int largest_nonnegative(const std::vector<double>& r, int n) {
  int chosen = 0;
  double top = 0.0;
  for (int b = 1; b <= n; ++b) {
    if (r[b] >= top) {
      top = r[b];
      chosen = b;
    }
  }
  return chosen;
}

int largest_any(const std::vector<double>& r, int n) {
  int chosen = 1;
  for (int b = 2; b <= n; ++b) {
    if (r[b] >= r[chosen]) chosen = b;
  }
  return chosen;
}

}  // namespace

void allocate(const std::vector<double>& weights, int N, int n, std::vector<int>& counts,
              std::vector<double>& remainders) {
  double total = 0.0;
  for (int b = 1; b <= n; ++b) {
    counts[b] = 1;
    total += std::fabs(weights[b]);
  }
  const double share = total / N;
  for (int b = 1; b <= n; ++b) remainders[b] = std::fabs(weights[b]) - share;
  int previous = 0;
  for (int pass = 1; pass <= N - n; ++pass) {
    int chosen = largest_nonnegative(remainders, n);
    if (chosen == 0) chosen = previous != 0 ? previous : largest_any(remainders, n);
    counts[chosen] += 1;
    remainders[chosen] -= share;
    previous = chosen;
  }
}

}  // namespace tarvo::sampling
