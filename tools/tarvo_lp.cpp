// tarvo-lp FILE.mps: reads a fixed-column MPS file into a problem slot, solves it cold with the
// simplex optimizer and prints the exit status, the objective (12 significant digits), the
// iterations and the solve time.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "common/units.h"
#include "input/mps_reader.h"
#include "input/mps_sizes.h"
#include "lp/options.h"
#include "lp/problem_slot.h"
#include "lp/simplex.h"

namespace {

using namespace tarvo;

const char* status_text(int inform) {
  switch (inform) {
    case 0: return "optimal";
    case 1: return "infeasible";
    case 2: return "unbounded";
    case 3: return "iteration limit";
    default: return "error";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: tarvo-lp FILE.mps\n");
    return 2;
  }
  const std::string path = argv[1];
  const input::MpsSizes sizes = input::count_mps_sizes(path);
  const auto fit = [](long long count) { return static_cast<int>(std::min<long long>(count, 1 << 28)); };
  const int rows = fit(sizes.rows), columns = fit(sizes.columns), entries = fit(sizes.entries);
  lp::Options options;
  Units units;
  lp::apply_defaults(options, units, 1);
  options.ival[lp::kRowLimit] = rows + 1;
  options.ival[lp::kColumnLimit] = columns + 1;
  options.ival[lp::kElementsLimit] = entries + 1;
  options.ival[lp::kIterationLimit] = 10 * (rows + columns) + 1000;
  options.ival[lp::kPrintFile] = 0;
  options.ival[lp::kSummaryFile] = kConsoleUnit;
  options.ival[lp::kSummaryFrequency] = 0;
  lp::ProblemSlot slot;
  lp::allocate_slot(slot, rows + 1, columns + 1, entries + 1);
  const input::MpsReadResult read = input::read_mps_file(slot, options, units, path, 41, 0, 0);
  if (read.status != input::InputStatus::ok || read.errors > 0) {
    std::printf("could not read %s (%d errors)\n", path.c_str(), read.errors);
    return 1;
  }
  lp::SimplexState state;
  lp::allocate_simplex_state(state, slot.mmax, slot.nmax, slot.nemax);
  const std::array<lp::Name8, 5> names{read.names.problem, read.names.objective, read.names.rhs,
                                       read.names.ranges, read.names.bounds};
  lp::Regularization regularization;
  const auto start = std::chrono::steady_clock::now();
  const int inform = lp::optimizer_solve(state, options, units, slot, "cold", names, 2 * slot.nemax, regularization);
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::fflush(stdout);
  std::printf("status %d (%s)  objective %.12g  iterations %d  time %.3f s\n", inform, status_text(inform),
              inform == 1 ? slot.sinf : slot.obj, state.counters.iterations, seconds);
  close_all_units(units);
  return 0;
}
