#pragma once
// A vector held densely with the list of its possibly nonzero positions, so that solves with
// few nonzeros cost time in proportion to those nonzeros (hypersparsity). 0-based.
#include <vector>

namespace tarvo::lp {

struct SparseVector {
  int size = 0;
  int count = 0;               // number of valid entries in index
  std::vector<int> index;      // positions that may be nonzero (no duplicates), first `count`
  std::vector<double> value;   // dense values, length size; zero outside index[0..count)
};

// Sets every value to zero; allocates only when size exceeds every size the vector had before.
void sparse_resize(SparseVector& v, int size);
void sparse_clear(SparseVector& v);             // zeroes the listed positions, count = 0
// Appends i to the pattern if not listed. O(1), except when position i holds a zero: then the
// pattern is scanned, so fill an empty vector by writing index and value directly.
void sparse_set(SparseVector& v, int i, double x);
// Rebuilds the pattern from the dense values (drops entries below `drop` in magnitude).
void sparse_rebuild_pattern(SparseVector& v, double drop);

}  // namespace tarvo::lp
