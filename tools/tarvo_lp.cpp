// tarvo-lp FILE.mps: reads a fixed-column MPS file into a problem slot, solves it cold with the
// simplex optimizer and prints the exit status, the objective (12 significant digits), the
// iterations and the solve time, after a line of the solve's counters.
#include <chrono>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "common/units.h"
#include "input/mps_reader.h"
#include "lp/options.h"
#include "lp/problem_slot.h"
#include "lp/simplex.h"

namespace {

using namespace tarvo;

// Rows, columns and matrix entries of the file, counted from its ROWS and COLUMNS sections so
// that the slot can be sized before the read.
struct FileSizes {
  int rows = 0;
  int columns = 0;
  int entries = 0;
};

FileSizes count_sizes(const std::string& path) {
  FileSizes sizes;
  std::ifstream in(path);
  std::string line, section, last_column;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '*') continue;
    if (line[0] != ' ') {
      std::istringstream(line) >> section;
      continue;
    }
    if (section == "ROWS") {
      ++sizes.rows;
    } else if (section == "COLUMNS") {
      const std::string column = line.size() > 4 ? line.substr(4, 8) : "";
      if (column != last_column) ++sizes.columns;
      last_column = column;
      sizes.entries += line.size() > 36 ? 2 : 1;
    }
  }
  return sizes;
}

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
  const FileSizes sizes = count_sizes(path);
  lp::Options options;
  Units units;
  lp::apply_defaults(options, units, 1);
  options.ival[lp::kRowLimit] = sizes.rows + 1;
  options.ival[lp::kColumnLimit] = sizes.columns + 1;
  options.ival[lp::kElementsLimit] = sizes.entries + 1;
  options.ival[lp::kIterationLimit] = 10 * (sizes.rows + sizes.columns) + 1000;
  options.ival[lp::kPrintFile] = 0;
  options.ival[lp::kSummaryFile] = kConsoleUnit;
  options.ival[lp::kSummaryFrequency] = 0;
  lp::ProblemSlot slot;
  lp::allocate_slot(slot, sizes.rows + 1, sizes.columns + 1, sizes.entries + 1);
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
  const lp::SimplexCounters& c = state.counters;
  std::printf("primal %d  dual %d  bound flips %d  factorizations %d  singular %d  cleanups %d\n",
              c.primal_iterations, c.dual_iterations, c.bound_flips, c.factorizations, c.singular_repairs,
              c.cleanup_rounds);
  std::printf("status %d (%s)  objective %.12g  iterations %d  time %.3f s\n", inform, status_text(inform),
              inform == 1 ? slot.sinf : slot.obj, state.counters.iterations, seconds);
  close_all_units(units);
  return 0;
}
