// Time to read each bundled example: prescan, time file, core, decomposition and stochastic file,
// as the run driver does them. Prints one line per example; best of several repetitions.
// Usage: input_bench [examples directory], default ./examples (run it from the repository root).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "input/decompose.h"
#include "input/core_file.h"
#include "input/stoch_file.h"
#include "input/time_file.h"

namespace {

using namespace tarvo;
using namespace tarvo::input;

struct Sizes {
  int rows = 0, columns = 0, elements = 0, parameters = 0;
  double universe = 0.0;
  bool ok = false;
};

lp::Options reader_options() {
  lp::Options options;
  options.ival.fill(lp::kUnsetInt);
  options.rval.fill(lp::kUnsetReal);
  return options;
}

Sizes read_example(const std::string& dir, lp::ProblemSlot slots[3]) {
  Units units;
  OutcomeStore store;
  Decomposition dec;
  StageNames stages;
  Sizes sizes;
  if (!open_unit(units, 8, dir + "/MODEL.STO", OpenStatus::old_file)) return sizes;
  const InputStatus prescan = prescan_stoch_file(units, 8, 0, {}, store);
  close_unit(units, 8);
  if (failed(prescan)) return sizes;
  allocate_outcome_store(store);
  if (failed(read_time_file(units, dir + "/MODEL.TIM", 32, 0, {}, stages))) return sizes;
  lp::ProblemSlot& core = slots[2];
  const MpsReadResult read = read_mps_file(core, reader_options(), units, dir + "/MODEL.COR", 24, 0, 0);
  if (failed(check_core_problem(core, lp::kCoreSlot, read, dir + "/MODEL.COR", units, {}))) return sizes;
  allocate_decomposition(dec, core);
  if (failed(decompose(core, stages, 100, slots[0], slots[1], dec, units, {}))) return sizes;
  const StochContext context{slots[0], slots[1], dec, read.names.rhs};
  if (failed(read_stoch_file(units, dir + "/MODEL.STO", 8, 0, {}, context, store))) return sizes;
  compute_expected_values(store);
  return {core.m, core.n, core.ne, store.count, store.universe, true};
}

}  // namespace

int main(int argc, char** argv) {
  const std::string root = argc > 1 ? argv[1] : "examples";
  const char* problems[] = {"chem", "env-aggr", "fxm2-6", "lands-1e6", "lands3", "lands3-blocks",
                            "pltexpa2-6", "stormg2-1000", "stormg2-8"};
  lp::ProblemSlot slots[3];
  for (auto& slot : slots) lp::allocate_slot(slot, 3000, 10000, 120000);
  std::printf("%-14s %6s %6s %8s %6s %12s %10s\n", "example", "rows", "cols", "nonzeros", "rvs",
              "universe", "read ms");
  for (const char* problem : problems) {
    const std::string dir = root + "/" + problem;
    double best = 1e300;
    Sizes sizes;
    for (int rep = 0; rep < 20; ++rep) {
      const auto start = std::chrono::steady_clock::now();
      sizes = read_example(dir, slots);
      const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
      best = std::min(best, took.count());
    }
    if (!sizes.ok) {
      std::printf("%-14s read failed\n", problem);
      continue;
    }
    std::printf("%-14s %6d %6d %8d %6d %12.0f %10.3f\n", problem, sizes.rows, sizes.columns,
                sizes.elements, sizes.parameters, sizes.universe, best);
  }
  return 0;
}
