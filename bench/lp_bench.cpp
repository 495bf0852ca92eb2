// Simplex benchmark: every LP of the test set and every example core, solved cold (time,
// iterations, refactorizations), then re-solved after one right-hand side change, warm and hot
// (time, pivots, whether the kept factors were reused).
// Usage: lp_bench [SOURCE_DIR] [REPEATS]
// Until the MPS reader of the input library is merged, the program only says so.
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "common/units.h"
#include "input/mps_reader.h"
#include "lp/options.h"
#include "lp/problem_slot.h"
#include "lp/simplex.h"

namespace {

using namespace tarvo;

struct Sizes {
  int rows = 0, columns = 0, entries = 0;
};

Sizes count_sizes(const std::string& path) {
  Sizes sizes;
  std::ifstream in(path);
  std::string line, section, last;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '*') continue;
    if (line[0] != ' ') {
      std::istringstream(line) >> section;
      continue;
    }
    if (section == "ROWS") ++sizes.rows;
    if (section == "COLUMNS") {
      const std::string column = line.size() > 4 ? line.substr(4, 8) : "";
      sizes.columns += column != last;
      last = column;
      sizes.entries += line.size() > 36 ? 2 : 1;
    }
  }
  return sizes;
}

struct Bench {
  lp::Options options;
  Units units;
  lp::ProblemSlot slot;
  lp::SimplexState state;
  std::array<lp::Name8, 5> names;
  lp::Regularization regularization;

  double solve(const char* start, int& inform) {
    const auto t0 = std::chrono::steady_clock::now();
    inform = lp::optimizer_solve(state, options, units, slot, start, names, 2 * slot.nemax, regularization);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
  }
};

bool load(Bench& b, const std::string& path) {
  const Sizes sizes = count_sizes(path);
  if (sizes.rows == 0) return false;
  lp::apply_defaults(b.options, b.units, 1);
  b.options.ival[lp::kRowLimit] = sizes.rows + 1;
  b.options.ival[lp::kColumnLimit] = sizes.columns + 1;
  b.options.ival[lp::kElementsLimit] = sizes.entries + 1;
  b.options.ival[lp::kIterationLimit] = 10 * (sizes.rows + sizes.columns) + 1000;
  b.options.ival[lp::kPrintFile] = 0;
  b.options.ival[lp::kSummaryFile] = 0;
  lp::allocate_slot(b.slot, sizes.rows + 1, sizes.columns + 1, sizes.entries + 1);
  const input::MpsReadResult read = input::read_mps_file(b.slot, b.options, b.units, path, 41, 0, 0);
  if (read.status != input::InputStatus::ok || read.errors > 0) return false;
  b.names = {read.names.problem, read.names.objective, read.names.rhs, read.names.ranges, read.names.bounds};
  lp::allocate_simplex_state(b.state, b.slot.mmax, b.slot.nmax, b.slot.nemax);
  return true;
}

// Moves the finite limits of a constraint row by 1% of their size (at least 0.01); rows are
// taken in a fixed stride so that every run changes the same rows.
void change_one_rhs(lp::ProblemSlot& slot, int round) {
  for (int t = 0; t < slot.m; ++t) {
    const int i = 2 + (round * 7919 + t) % std::max(1, slot.m - 1);
    double& lo = slot.bl[slot.n + i];
    double& up = slot.bu[slot.n + i];
    const bool has_lo = lo > -lp::kInfiniteBound, has_up = up < lp::kInfiniteBound;
    if (!has_lo && !has_up) continue;
    const double size = std::max(has_lo ? std::fabs(lo) : 0.0, has_up ? std::fabs(up) : 0.0);
    const double shift = std::max(0.01, 0.01 * size) * (round % 2 ? -1.0 : 1.0);
    if (has_lo) lo += shift;
    if (has_up) up += shift;
    return;
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string root = argc > 1 ? argv[1] : ".";
  const int repeats = argc > 2 ? std::max(1, std::atoi(argv[2])) : 3;
  std::vector<std::string> files;
  for (const char* name : {"chem-dep", "env-aggr-dep", "pltexpa2-6-dep", "fxm2-6-dep", "stormg2-8-dep"})
    files.push_back(root + "/tests/data/lp/" + name + ".mps");
  for (const char* name : {"lands3", "chem", "env-aggr", "pltexpa2-6", "fxm2-6", "stormg2-8"})
    files.push_back(root + "/examples/" + name + "/MODEL.COR");

  std::printf("%-34s %6s %6s %2s %18s %7s %5s %9s | %-5s %5s %9s %6s %7s\n", "problem", "rows", "cols", "st",
              "objective/sinf", "itns", "facts", "cold s", "start", "pivot", "time s", "reuse", "% cold");
  for (const std::string& path : files) {
    Bench b;
    if (!load(b, path)) {
      std::printf("%-34s could not be read\n", path.c_str());
      continue;
    }
    // Cold: best of `repeats` solves from the same loaded slot.
    double cold = 1e30;
    int inform = 0;
    lp::SimplexCounters counters;
    std::vector<int> hs0(b.slot.hs);
    for (int r = 0; r < repeats; ++r) {
      b.slot.hs = hs0;
      lp::SimplexState fresh;
      lp::allocate_simplex_state(fresh, b.slot.mmax, b.slot.nmax, b.slot.nemax);
      std::swap(fresh, b.state);
      cold = std::min(cold, b.solve("cold", inform));
      counters = b.state.counters;
    }
    const std::string label = path.substr(root.size() + 1);
    std::printf("%-34s %6d %6d %2d %18.10g %7d %5d %9.4f |\n", label.c_str(), b.slot.m, b.slot.n, inform,
                inform == 1 ? b.slot.sinf : b.slot.obj, counters.iterations, counters.factorizations, cold);
    if (inform != 0) continue;
    for (int round = 0; round < 4; ++round) {
      const char* start = round % 2 == 0 ? "warm" : "hot ";
      change_one_rhs(b.slot, round);
      const double t = b.solve(start, inform);
      std::printf("%-34s %6s %6s %2d %18.10g %7s %5d %9s | %-5s %5d %9.5f %6s %6.2f%%\n", "", "", "", inform,
                  inform == 1 ? b.slot.sinf : b.slot.obj, "", b.state.counters.factorizations, "", start,
                  b.state.counters.iterations, t, b.state.counters.reused_factors ? "yes" : "no", 100.0 * t / cold);
    }
  }
  return 0;
}
