#pragma once
// Random sparse matrices and bases for the LU tests, with an independent dense solve to check
// the factors against.
#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

#include "lp/lu_factor.h"
#include "lp/sparse_vector.h"

namespace tarvo::lp::test {

struct Matrix {
  int m = 0;
  int n = 0;
  std::vector<int> col_start{0};
  std::vector<int> row_index;
  std::vector<double> value;
};

inline void add_column(Matrix& a, const std::vector<std::pair<int, double>>& entries) {
  for (const auto& [i, v] : entries) {
    a.row_index.push_back(i);
    a.value.push_back(v);
  }
  a.col_start.push_back(static_cast<int>(a.row_index.size()));
  ++a.n;
}

// n columns of m rows; column j has an entry of size >= 1 in row j % m so that the first m columns
// form a nonsingular-looking diagonal, and about density*m more entries.
inline Matrix random_matrix(int m, int n, double density, std::mt19937& rng) {
  Matrix a;
  a.m = m;
  std::uniform_real_distribution<double> size(0.2, 2.0);
  std::bernoulli_distribution sign(0.5);
  std::uniform_int_distribution<int> row(0, m - 1);
  const int extra = std::max(0, static_cast<int>(density * m));
  for (int j = 0; j < n; ++j) {
    std::vector<std::pair<int, double>> entries{{j % m, 1.0 + size(rng)}};
    for (int t = 0; t < extra; ++t) {
      const int i = row(rng);
      const bool present = std::any_of(entries.begin(), entries.end(),
                                       [i](const auto& e) { return e.first == i; });
      if (!present) entries.push_back({i, sign(rng) ? size(rng) : -size(rng)});
    }
    add_column(a, entries);
  }
  return a;
}

// Positions 0..m-1 hold the first m columns, except a `logicals` fraction swapped for the
// logical of the same row; positions are then shuffled.
inline std::vector<int> random_head(const Matrix& a, double logicals, std::mt19937& rng) {
  std::vector<int> head(a.m);
  std::bernoulli_distribution take_logical(logicals);
  for (int p = 0; p < a.m; ++p) head[p] = take_logical(rng) ? a.n + p : p;
  std::shuffle(head.begin(), head.end(), rng);
  return head;
}

// The basis as a dense row-major m x m matrix.
inline std::vector<double> dense_basis(const Matrix& a, const std::vector<int>& head) {
  const int m = a.m;
  std::vector<double> b(static_cast<std::size_t>(m) * m, 0.0);
  for (int p = 0; p < m; ++p) {
    if (head[p] >= a.n) {
      b[static_cast<std::size_t>(head[p] - a.n) * m + p] = 1.0;
      continue;
    }
    for (int e = a.col_start[head[p]]; e < a.col_start[head[p] + 1]; ++e) {
      b[static_cast<std::size_t>(a.row_index[e]) * m + p] = a.value[e];
    }
  }
  return b;
}

// Solves B x = rhs (or B^T x = rhs) by Gaussian elimination with partial pivoting; empty when a
// pivot falls below `tiny`.
inline std::vector<double> dense_solve(std::vector<double> b, int m, std::vector<double> rhs,
                                       bool transpose, double tiny = 1e-12) {
  auto at = [&](int i, int j) -> double& {
    return transpose ? b[static_cast<std::size_t>(j) * m + i] : b[static_cast<std::size_t>(i) * m + j];
  };
  for (int k = 0; k < m; ++k) {
    int best = k;
    for (int i = k + 1; i < m; ++i) {
      if (std::fabs(at(i, k)) > std::fabs(at(best, k))) best = i;
    }
    if (std::fabs(at(best, k)) < tiny) return {};
    for (int j = 0; j < m; ++j) std::swap(at(k, j), at(best, j));
    std::swap(rhs[k], rhs[best]);
    for (int i = k + 1; i < m; ++i) {
      const double l = at(i, k) / at(k, k);
      if (l == 0.0) continue;
      for (int j = k; j < m; ++j) at(i, j) -= l * at(k, j);
      rhs[i] -= l * rhs[k];
    }
  }
  std::vector<double> x(m);
  for (int k = m - 1; k >= 0; --k) {
    double s = rhs[k];
    for (int j = k + 1; j < m; ++j) s -= at(k, j) * x[j];
    x[k] = s / at(k, k);
  }
  return x;
}

inline SparseVector to_sparse(const std::vector<double>& dense) {
  SparseVector v;
  sparse_resize(v, static_cast<int>(dense.size()));
  for (int i = 0; i < v.size; ++i) sparse_set(v, i, dense[i]);
  return v;
}

// A vector of m entries with `nonzeros` random ones (all entries when nonzeros >= m).
inline std::vector<double> random_rhs(int m, int nonzeros, std::mt19937& rng) {
  std::vector<double> r(m, 0.0);
  std::uniform_real_distribution<double> value(-3.0, 3.0);
  std::uniform_int_distribution<int> row(0, m - 1);
  for (int t = 0; t < nonzeros; ++t) r[nonzeros >= m ? t % m : row(rng)] = value(rng);
  return r;
}

inline double max_difference(const std::vector<double>& x, const std::vector<double>& y) {
  double d = 0.0;
  for (std::size_t i = 0; i < x.size(); ++i) d = std::max(d, std::fabs(x[i] - y[i]) / (1.0 + std::fabs(y[i])));
  return d;
}

// True when the pattern has no repeats and lists every nonzero.
inline bool pattern_is_sound(const SparseVector& v) {
  std::vector<char> listed(v.size, 0);
  for (int k = 0; k < v.count; ++k) {
    if (v.index[k] < 0 || v.index[k] >= v.size || listed[v.index[k]]) return false;
    listed[v.index[k]] = 1;
  }
  for (int i = 0; i < v.size; ++i) {
    if (v.value[i] != 0.0 && !listed[i]) return false;
  }
  return true;
}

// The column of variable k (k >= a.n: the logical of row k - a.n).
inline SparseVector column_of(const Matrix& a, int k) {
  std::vector<double> dense(a.m, 0.0);
  if (k >= a.n) {
    dense[k - a.n] = 1.0;
  } else {
    for (int e = a.col_start[k]; e < a.col_start[k + 1]; ++e) dense[a.row_index[e]] = a.value[e];
  }
  return to_sparse(dense);
}

// How far the factors' solve of B x = rhs (B^T x = rhs) lies from the dense one. The right-hand
// side goes in twice: with its nonzeros listed (a sparse solve searches the reach) and with every
// index listed (too full a pattern for that: the solve sweeps). Infinite when the basis is singular,
// a result's pattern is unsound or the two ways differ in any bit.
inline double solve_error(LuFactors& lu, const Matrix& a, const std::vector<int>& head,
                          const std::vector<double>& rhs, bool transpose) {
  const std::vector<double> expected = dense_solve(dense_basis(a, head), a.m, rhs, transpose);
  SparseVector sparse = to_sparse(rhs), swept = to_sparse(rhs);
  swept.count = swept.size;
  std::iota(swept.index.begin(), swept.index.end(), 0);
  for (SparseVector* v : {&sparse, &swept}) transpose ? lu_btran(lu, *v) : lu_ftran(lu, *v, false);
  const bool same = sparse.value == swept.value && sparse.count == swept.count;
  if (expected.empty() || !same || !pattern_is_sound(sparse) || !pattern_is_sound(swept)) {
    return std::numeric_limits<double>::infinity();
  }
  return max_difference(sparse.value, expected);
}

inline LuStatus factorize(LuFactors& lu, const Matrix& a, std::vector<int>& head,
                          const LuSettings& settings, LuReport& report) {
  return lu_factorize(lu, a.m, a.n, a.col_start.data(), a.row_index.data(), a.value.data(),
                      head.data(), settings, report);
}

}  // namespace tarvo::lp::test
