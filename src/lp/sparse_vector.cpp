#include "lp/sparse_vector.h"

#include <algorithm>
#include <cmath>

namespace tarvo::lp {

void sparse_resize(SparseVector& v, int size) {
  v.size = size;
  v.count = 0;
  v.index.resize(size);
  v.value.assign(size, 0.0);
}

void sparse_clear(SparseVector& v) {
  for (int k = 0; k < v.count; ++k) v.value[v.index[k]] = 0.0;
  v.count = 0;
}

void sparse_set(SparseVector& v, int i, double x) {
  // A nonzero value is always listed; a zero one may or may not be, so only then is a scan needed.
  if (v.value[i] == 0.0 && x != 0.0 &&
      std::find(v.index.begin(), v.index.begin() + v.count, i) == v.index.begin() + v.count) {
    v.index[v.count++] = i;
  }
  v.value[i] = x;
}

void sparse_rebuild_pattern(SparseVector& v, double drop) {
  v.count = 0;
  for (int i = 0; i < v.size; ++i) {
    if (std::fabs(v.value[i]) <= drop) {
      v.value[i] = 0.0;
    } else {
      v.index[v.count++] = i;
    }
  }
}

}  // namespace tarvo::lp
