// Starting bases for cold starts: the all-logical basis, and a triangular crash that replaces
// logicals by structural columns while the basis stays lower triangular (so it is nonsingular
// and cheap to factorize). Crash option 1 replaces logicals of equality rows only, 2 and above
// those of every row that is not free.
#include <algorithm>
#include <cmath>

#include "lp/simplex_work.h"

namespace tarvo::lp {

void slack_basis(SimplexState& s) {
  for (int j = 0; j < s.n; ++j) {
    s.position[j] = -1;
    if (s.state[j] != kNonbasicUpper) s.state[j] = kNonbasicLower;
    place_nonbasic(s, j);
  }
  for (int i = 0; i < s.m; ++i) {
    s.head[i] = s.n + i;
    s.position[s.n + i] = i;
    s.state[s.n + i] = kBasicVar;
  }
}

namespace {

// 0 free, 1 one finite bound, 2 boxed, 3 fixed (never crashed): free columns are the best to
// have basic, fixed ones the worst.
int column_class(const SimplexState& s, int j) {
  const bool lo = std::isfinite(s.lower[j]);
  const bool up = std::isfinite(s.upper[j]);
  if (lo && up) return s.lower[j] == s.upper[j] ? 3 : 2;
  return lo || up ? 1 : 0;
}

bool logical_replaceable(const SimplexState& s, int i, int option) {
  const int j = s.n + i;
  if (!std::isfinite(s.lower[j]) && !std::isfinite(s.upper[j])) return false;
  return option >= 2 || s.lower[j] == s.upper[j];
}

}  // namespace

void crash_basis(SimplexState& s, int option, double tolerance) {
  slack_basis(s);
  if (option <= 0 || s.m == 0) return;
  // taken[i]: row i is the pivot row of a crashed column (kept in the pivot marks, free here).
  std::vector<char>& taken = s.pivot_mark;
  std::fill(taken.begin(), taken.begin() + s.m, 0);
  // Columns in order of class, then length (the candidate list is free before any solve).
  int* order = s.candidate.data();
  for (int j = 0; j < s.n; ++j) order[j] = j;
  auto key = [&s](int j) { return column_class(s, j) * (s.m + 1) + (s.col_start[j + 1] - s.col_start[j]); };
  std::sort(order, order + s.n, [&key](int a, int b) { return key(a) < key(b); });
  for (int t = 0; t < s.n; ++t) {
    const int j = order[t];
    if (column_class(s, j) == 3 || s.col_start[j + 1] == s.col_start[j]) continue;
    double biggest = 0.0;
    bool clear = true;
    for (int k = s.col_start[j]; k < s.col_start[j + 1] && clear; ++k) {
      clear = !taken[s.row_index[k]];
      biggest = std::max(biggest, std::fabs(s.value[k]));
    }
    if (!clear) continue;
    int row = -1;
    double best = tolerance * biggest;
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      const int i = s.row_index[k];
      if (std::fabs(s.value[k]) >= best && best > 0.0 && logical_replaceable(s, i, option) &&
          s.head[i] == s.n + i) {
        best = std::fabs(s.value[k]);
        row = i;
      }
    }
    if (row < 0) continue;
    taken[row] = 1;
    const int logical = s.n + row;
    s.head[row] = j;
    s.position[j] = row;
    s.state[j] = kBasicVar;
    s.position[logical] = -1;
    s.state[logical] = kNonbasicLower;
    place_nonbasic(s, logical);
  }
  std::fill(taken.begin(), taken.begin() + s.m, 0);
}

}  // namespace tarvo::lp
