// Scale factors of the working matrix: alternating geometric-mean passes over columns and rows
// until the spread of the entries stops shrinking by more than the scale tolerance, then an
// equilibration that brings every column's largest entry to 1. Factors are powers of 2 so that
// scaling and unscaling are exact. Entries negligible against the largest of both their row and
// their column take no part in the geometric means.
#include <algorithm>
#include <cmath>

#include "lp/simplex_tolerances.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

double power_of_two(double v) {
  v = std::clamp(v, kScaleMin, kScaleMax);
  return std::ldexp(1.0, static_cast<int>(std::lround(std::log2(v))));
}

// The floors below which an entry is negligible for its row and for its column.
void set_negligible_floors(SimplexState& s) {
  std::fill(s.row_floor_work.begin(), s.row_floor_work.begin() + s.m, 0.0);
  for (int j = 0; j < s.n; ++j) {
    double hi = 0.0;
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      const double a = std::fabs(s.value[k]);
      hi = std::max(hi, a);
      s.row_floor_work[s.row_index[k]] = std::max(s.row_floor_work[s.row_index[k]], a);
    }
    s.col_floor_work[j] = kScaleNegligible * hi;
  }
  for (int i = 0; i < s.m; ++i) s.row_floor_work[i] *= kScaleNegligible;
}

bool steers_scaling(const SimplexState& s, int j, int k) {
  const double a = std::fabs(s.value[k]);
  return a >= s.col_floor_work[j] || a >= s.row_floor_work[s.row_index[k]];
}

// Largest ratio max|a|/min|a| over the columns of R A C (C only for columns that may be scaled).
double column_spread(const SimplexState& s, const std::vector<double>& row, const std::vector<double>& col) {
  double worst = 1.0;
  for (int j = 0; j < s.n; ++j) {
    double lo = HUGE_VAL, hi = 0.0;
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      if (!steers_scaling(s, j, k)) continue;
      const double a = std::fabs(s.value[k]) * row[s.row_index[k]] * col[j];
      lo = std::min(lo, a);
      hi = std::max(hi, a);
    }
    if (hi > 0.0) worst = std::max(worst, hi / lo);
  }
  return worst;
}

void geometric_column_pass(const SimplexState& s, const std::vector<double>& row, std::vector<double>& col,
                           int first_scaled) {
  for (int j = first_scaled; j < s.n; ++j) {
    double lo = HUGE_VAL, hi = 0.0;
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      if (!steers_scaling(s, j, k)) continue;
      const double a = std::fabs(s.value[k]) * row[s.row_index[k]];
      lo = std::min(lo, a);
      hi = std::max(hi, a);
    }
    col[j] = hi > 0.0 ? 1.0 / std::sqrt(lo * hi) : 1.0;
  }
}

void geometric_row_pass(SimplexState& s, std::vector<double>& row, const std::vector<double>& col) {
  std::vector<double>& lo = s.row_min_work;
  for (int i = 0; i < s.m; ++i) {
    lo[i] = HUGE_VAL;
    row[i] = 0.0;  // the largest entry, for now
  }
  for (int j = 0; j < s.n; ++j) {
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      if (!steers_scaling(s, j, k)) continue;
      const int i = s.row_index[k];
      const double a = std::fabs(s.value[k]) * col[j];
      lo[i] = std::min(lo[i], a);
      row[i] = std::max(row[i], a);
    }
  }
  for (int i = 0; i < s.m; ++i) row[i] = row[i] > 0.0 ? 1.0 / std::sqrt(lo[i] * row[i]) : 1.0;
}

}  // namespace

void compute_scales(SimplexState& s, const SimplexSettings& settings) {
  std::vector<double>& col = s.col_scale_work;
  std::vector<double>& row = s.row_scale_work;
  std::fill(col.begin(), col.begin() + s.n, 1.0);
  std::fill(row.begin(), row.begin() + s.m, 1.0);
  if (settings.scale_option > 0 && s.m > 0) {
    // Option 1 scales the linear part only: columns of the nonlinear objective keep their units.
    const int first_scaled = settings.scale_option == 1 ? std::min(s.nnobj, s.n) : 0;
    set_negligible_floors(s);
    double spread = column_spread(s, row, col);
    for (int pass = 0; pass < kScalePasses; ++pass) {
      geometric_column_pass(s, row, col, first_scaled);
      geometric_row_pass(s, row, col);
      const double now = column_spread(s, row, col);
      if (now >= settings.scale_tol * spread) break;
      spread = now;
    }
    for (int j = first_scaled; j < s.n; ++j) {
      double hi = 0.0;
      for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k)
        hi = std::max(hi, std::fabs(s.value[k]) * row[s.row_index[k]] * col[j]);
      if (hi > 0.0) col[j] /= hi;
    }
  }
  for (int j = 0; j < s.n; ++j) s.scale[j] = power_of_two(col[j]);
  for (int i = 0; i < s.m; ++i) s.scale[s.n + i] = 1.0 / power_of_two(row[i]);
  for (int j = 0; j < s.n + s.m; ++j) s.inverse_scale[j] = 1.0 / s.scale[j];
}

void scale_changed_rows(SimplexState& s) {
  // The largest entry of each changed row in the columns' scaled units, then the smallest and
  // largest of those not negligible against it: their geometric mean sets the row's scale.
  std::vector<double>& largest = s.row_floor_work;
  std::vector<double>& lo = s.row_min_work;
  std::vector<double>& hi = s.row_scale_work;
  for (int i = 0; i < s.m; ++i) {
    if (!s.row_changed[i]) continue;
    largest[i] = hi[i] = 0.0;
    lo[i] = HUGE_VAL;
  }
  for (int j = 0; j < s.n; ++j) {
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      const int i = s.row_index[k];
      if (s.row_changed[i]) largest[i] = std::max(largest[i], std::fabs(s.value[k]) * s.scale[j]);
    }
  }
  for (int j = 0; j < s.n; ++j) {
    for (int k = s.col_start[j]; k < s.col_start[j + 1]; ++k) {
      const int i = s.row_index[k];
      if (!s.row_changed[i]) continue;
      const double a = std::fabs(s.value[k]) * s.scale[j];
      if (a < kScaleNegligible * largest[i]) continue;
      lo[i] = std::min(lo[i], a);
      hi[i] = std::max(hi[i], a);
    }
  }
  for (int i = 0; i < s.m; ++i) {
    if (!s.row_changed[i]) continue;
    const double row = hi[i] > 0.0 ? 1.0 / std::sqrt(lo[i] * hi[i]) : 1.0;
    s.scale[s.n + i] = 1.0 / power_of_two(row);
    s.inverse_scale[s.n + i] = 1.0 / s.scale[s.n + i];
  }
}

}  // namespace tarvo::lp
