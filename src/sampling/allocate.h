#pragma once
// Division of a sample among blocks in proportion to their absolute weights.
#include <vector>

namespace tarvo::sampling {

// counts[1..n] := a division of N points among n blocks, at least one each, by largest
// remainders: every block starts with one point and remainder |w_b| - m (m = sum |w| / N); each
// of N - n passes gives a point to the block with the largest remainder (ties: the last such
// block) and lowers its remainder by m. When no remainder is 0 or more, the previous pass's
// block is taken again (in the first pass: the block of largest remainder whatever its sign).
// `remainders` is scratch of at least n + 1 doubles.
void allocate(const std::vector<double>& weights, int N, int n, std::vector<int>& counts,
              std::vector<double>& remainders);

}  // namespace tarvo::sampling
