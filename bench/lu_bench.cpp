// Costs of the basis factorization on synthetic staircase bases: factorize, ftran and btran
// (sparse and dense right-hand sides) and Forrest-Tomlin updates, for the simplex to plan by.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "lp/lu_factor.h"

namespace {

using tarvo::lp::LuFactors;
using tarvo::lp::LuReport;
using tarvo::lp::LuSettings;
using tarvo::lp::LuStatus;
using tarvo::lp::SparseVector;

struct Matrix {
  int m = 0;
  int n = 0;
  std::vector<int> col_start{0};
  std::vector<int> row_index;
  std::vector<double> value;
};

// Stages of `block` rows, as in a multi-period model: a column of stage t has entries near its
// home row within its own block and, half the time, one in the same row of the next stage (the
// coupling that gives the staircase). Column j < m has its home and a dominant entry in row j, so
// the first m columns form a nonsingular basis; later columns have random homes.
Matrix staircase(int m, int n, int block, std::mt19937& rng) {
  Matrix a;
  a.m = m;
  a.n = n;
  std::uniform_real_distribution<double> size(0.5, 2.0);
  std::uniform_int_distribution<int> own_count(1, 3);
  std::uniform_int_distribution<int> offset(-4, 4);
  std::uniform_int_distribution<int> any_row(0, m - 1);
  std::vector<int> rows;
  for (int j = 0; j < n; ++j) {
    const int home = j < m ? j : any_row(rng);
    const int stage_start = home / block * block;
    const int stage_end = std::min(m, stage_start + block);
    rows.assign(1, home);
    for (int t = own_count(rng); t > 0; --t) {
      const int i = home + offset(rng);
      if (i >= stage_start && i < stage_end) rows.push_back(i);
    }
    if (home + block < m && rng() % 2 == 0) rows.push_back(home + block);
    std::sort(rows.begin() + 1, rows.end());
    rows.erase(std::unique(rows.begin() + 1, rows.end()), rows.end());
    for (std::size_t k = 0; k < rows.size(); ++k) {
      if (k > 0 && rows[k] == home) continue;
      a.row_index.push_back(rows[k]);
      a.value.push_back(k == 0 ? 2.0 + size(rng) : (rng() % 2 ? size(rng) : -size(rng)));
    }
    a.col_start.push_back(static_cast<int>(a.row_index.size()));
  }
  return a;
}

double seconds_since(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void load_column(const Matrix& a, int k, SparseVector& x) {
  tarvo::lp::sparse_clear(x);
  if (k >= a.n) {
    tarvo::lp::sparse_set(x, k - a.n, 1.0);
    return;
  }
  for (int e = a.col_start[k]; e < a.col_start[k + 1]; ++e) {
    x.value[a.row_index[e]] = a.value[e];
    x.index[x.count++] = a.row_index[e];
  }
}

void run(int m, double logical_fraction, unsigned seed) {
  std::mt19937 rng(seed);
  const Matrix a = staircase(m, 3 * m, std::max(10, m / 20), rng);
  std::vector<int> head(m);
  for (int p = 0; p < m; ++p) head[p] = p;
  std::bernoulli_distribution logical(logical_fraction);
  for (int p = 0; p < m; ++p) {
    if (logical(rng)) head[p] = a.n + p;
  }
  const std::vector<int> start_head = head;
  LuSettings settings;
  LuFactors lu;
  LuReport report;

  const int factor_reps = m <= 1000 ? 200 : 20;
  auto t0 = std::chrono::steady_clock::now();
  for (int r = 0; r < factor_reps; ++r) {
    head = start_head;
    tarvo::lp::lu_factorize(lu, a.m, a.n, a.col_start.data(), a.row_index.data(), a.value.data(),
                            head.data(), settings, report);
  }
  const double factor_time = seconds_since(t0) / factor_reps;
  int basis_elements = 0;
  for (int p = 0; p < m; ++p) {
    basis_elements += head[p] < a.n ? a.col_start[head[p] + 1] - a.col_start[head[p]] : 1;
  }

  SparseVector x;
  tarvo::lp::sparse_resize(x, m);
  const int solve_reps = 2000;
  std::uniform_int_distribution<int> column(m, a.n - 1);
  t0 = std::chrono::steady_clock::now();
  long long ftran_nonzeros = 0;
  for (int r = 0; r < solve_reps; ++r) {
    load_column(a, column(rng), x);
    tarvo::lp::lu_ftran(lu, x, false);
    ftran_nonzeros += x.count;
  }
  const double ftran_time = seconds_since(t0) / solve_reps;

  std::uniform_int_distribution<int> position(0, m - 1);
  t0 = std::chrono::steady_clock::now();
  long long btran_nonzeros = 0;
  for (int r = 0; r < solve_reps; ++r) {
    tarvo::lp::sparse_clear(x);
    tarvo::lp::sparse_set(x, position(rng), 1.0);
    tarvo::lp::lu_btran(lu, x);
    btran_nonzeros += x.count;
  }
  const double btran_time = seconds_since(t0) / solve_reps;

  const int dense_reps = 200;
  std::uniform_real_distribution<double> any(-1.0, 1.0);
  double dense_time[2] = {0.0, 0.0};
  for (const bool transpose : {false, true}) {
    for (int r = 0; r < dense_reps; ++r) {
      tarvo::lp::sparse_clear(x);
      for (int i = 0; i < m; ++i) {
        x.value[i] = any(rng);
        x.index[x.count++] = i;
      }
      t0 = std::chrono::steady_clock::now();
      transpose ? tarvo::lp::lu_btran(lu, x) : tarvo::lp::lu_ftran(lu, x, false);
      dense_time[transpose] += seconds_since(t0) / dense_reps;
    }
  }
  const double dense_ftran = dense_time[0];
  const double dense_btran = dense_time[1];

  // Simplex-like basis changes: ftran of the entering column with the spike kept, the leaving
  // position among the large weights, the update; a refusal is followed by a fresh factorization.
  const int changes = 2000;
  int accepted = 0;
  int refused = 0;
  int refusals[8] = {0, 0, 0, 0, 0, 0, 0, 0};
  double update_time = 0.0;
  double spike_ftran_time = 0.0;
  double refactor_time = 0.0;
  long long length_sum = 0;
  for (int step = 0; step < changes; ++step) {
    const int entering = std::uniform_int_distribution<int>(0, a.n + m - 1)(rng);
    if (std::find(head.begin(), head.end(), entering) != head.end()) continue;
    load_column(a, entering, x);
    t0 = std::chrono::steady_clock::now();
    tarvo::lp::lu_ftran(lu, x, true);
    spike_ftran_time += seconds_since(t0);
    double big = 0.0;
    for (int k = 0; k < x.count; ++k) big = std::max(big, std::fabs(x.value[x.index[k]]));
    if (big == 0.0) continue;
    int p = -1;
    for (int k = 0; k < x.count && p < 0; ++k) {
      if (std::fabs(x.value[x.index[k]]) >= 0.5 * big) p = x.index[k];
    }
    t0 = std::chrono::steady_clock::now();
    const LuStatus status = tarvo::lp::lu_update(lu, p, settings);
    update_time += seconds_since(t0);
    head[p] = entering;
    if (status == LuStatus::ok) {
      ++accepted;
      length_sum += tarvo::lp::lu_length_l(lu) + tarvo::lp::lu_length_u(lu);
      continue;
    }
    ++refused;
    ++refusals[static_cast<int>(tarvo::lp::lu_last_refusal(lu))];
    t0 = std::chrono::steady_clock::now();
    tarvo::lp::lu_factorize(lu, a.m, a.n, a.col_start.data(), a.row_index.data(), a.value.data(),
                            head.data(), settings, report);
    refactor_time += seconds_since(t0);
  }
  const int attempts = accepted + refused;
  std::printf("m=%d  basis elements %d, L %d, U %d (diagonal included)\n", m, basis_elements,
              report.length_l, report.length_u);
  std::printf("  factorize            %10.1f us\n", factor_time * 1e6);
  std::printf("  ftran  column of A   %10.2f us   (%.1f nonzeros out)\n", ftran_time * 1e6,
              static_cast<double>(ftran_nonzeros) / solve_reps);
  std::printf("  btran  unit vector   %10.2f us   (%.1f nonzeros out)\n", btran_time * 1e6,
              static_cast<double>(btran_nonzeros) / solve_reps);
  std::printf("  ftran  dense         %10.2f us\n", dense_ftran * 1e6);
  std::printf("  btran  dense         %10.2f us\n", dense_btran * 1e6);
  std::printf("  ftran  keeping spike %10.2f us   (during the update run)\n",
              spike_ftran_time / attempts * 1e6);
  std::printf("  update               %10.2f us   (%d accepted, %d refused, mean L+U %.0f)\n",
              update_time / attempts * 1e6, accepted, refused,
              accepted > 0 ? static_cast<double>(length_sum) / accepted : 0.0);
  std::printf("  refactorize          %10.1f us   (after a refusal)\n",
              refused > 0 ? refactor_time / refused * 1e6 : 0.0);
  std::printf("  refusals: %d too many updates, %d singular, %d unstable, %d fill, %d storage\n",
              refusals[static_cast<int>(tarvo::lp::LuRefusal::too_many_updates)],
              refusals[static_cast<int>(tarvo::lp::LuRefusal::singular)],
              refusals[static_cast<int>(tarvo::lp::LuRefusal::unstable)],
              refusals[static_cast<int>(tarvo::lp::LuRefusal::fill)],
              refusals[static_cast<int>(tarvo::lp::LuRefusal::storage)]);
}

}  // namespace

int main() {
  run(500, 0.03, 1);
  run(5000, 0.03, 2);
  return 0;
}
