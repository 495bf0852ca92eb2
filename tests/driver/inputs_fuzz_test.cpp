// Seeded random mutations (fuzz_support.h) of the options file, the run parameters and a
// first-stage solution: whatever the bytes, reading SIMPLEX.SPC, MODEL.INP and MODEL.STA never
// crashes or hangs, and what they leave is whole.
#include <gtest/gtest.h>

#include "driver/run_params_reader.h"
#include "driver/solution_reader.h"
#include "fuzz_support.h"
#include "lp/options.h"

namespace tarvo::testing {
namespace {

constexpr int kLog = 17, kErr = 48, kSpecs = 4, kPrint = 23, kSolutionInput = 35;
constexpr int kFirstStageColumns = 4;
const char* const kFiles[] = {"SIMPLEX.SPC", "MODEL.INP", "MODEL.STA"};

// Two seeds per file: the bundled one, and one with every kind of record.
const char* const kSeeds[][3] = {
    {kSampleOptions, "5 istrat\n100 nzrows\n1000 maxit\n1.0d-7 tolben\n",
     "* first-stage solution of lands3\nX1 2.5\nX2 4.0\nX3 1.5d1\nX4 -0.0\n"},
    {"* all kinds\nSKIP\n ROWS 5\nENDRUN\nBEGIN run\n ROWS 3000 * rows\n SCALE 0.5\n IPARM 2 123\n"
     " RPARM 8 1e-5\n START ASSIGNED NONLINEARS BASIC\n OBJECTIVE cost\n DEFAULTS\n VERIFY 2\nEND\n",
     "3 ISTRAT\n500, 'nsamples'\n2*7 maxit\n.5 \"rho\" trailing\n11\n iseed\n-2.9 ibug / x\n",
     "'X1', 3\nX2 1e2 trailing words\nbogus 1\n,,\nX3\n*X4 9\nX4 2*5\n"},
};

// Reads the three files of the working directory as a run does; true when that was quick.
bool run_case() {
  const auto start = std::chrono::steady_clock::now();
  Units units;
  open_unit(units, kLog, "log", OpenStatus::unknown);
  open_unit(units, kErr, "err", OpenStatus::unknown);
  open_unit(units, kPrint, "print", OpenStatus::unknown);
  lp::Options options;
  if (open_unit(units, kSpecs, "SIMPLEX.SPC", OpenStatus::old_file)) {
    EXPECT_GE(lp::read_specs(options, units, kSpecs, kPrint, kLog, 0), 0);
    lp::complete_capacities(options);  // what the optimizer sizes its slots from
    EXPECT_GE(std::min({options.ival[lp::kRowLimit], options.ival[lp::kColumnLimit],
                        options.ival[lp::kElementsLimit]}), 1);
    options.ival[lp::kPrintLevel] = 1;
    lp::apply_defaults(options, units, 2);
    lp::apply_defaults(options, units, 3);
  }
  RunParams params;
  if (driver::read_run_params(units, params)) {
    EXPECT_GE(params.rho, 1.0e-6);
    driver::run_params_usable(units, kLog, kErr, params);
    driver::echo_run_params(units, kLog, params);
  }
  lp::ProblemSlot master;  // its first four columns are the first stage of lands3
  lp::allocate_slot(master, 20, 10, 50);
  for (int j = 1; j <= kFirstStageColumns; ++j) master.names[j] = lp::make_name("X" + std::to_string(j));
  std::vector<double> values;
  if (open_unit(units, kSolutionInput, "MODEL.STA", OpenStatus::old_file)) {
    driver::read_solution(units, kSolutionInput, kLog, master, kFirstStageColumns, values);
    EXPECT_EQ(values.size(), kFirstStageColumns + 1u);
  }
  close_all_units(units);
  return std::chrono::steady_clock::now() - start < kFuzzCaseLimit;
}

TEST(InputsFuzz, MutatedOptionsParametersAndSolutionsNeverCrash) {
  const fs::path dir = fuzz_case_directory(), previous = fs::current_path();
  fs::create_directories(dir);
  std::mt19937 rng(20261124);
  for (int round = 0; round < 1000; ++round) {
    std::string text[3];
    for (int f = 0; f < 3; ++f) text[f] = kSeeds[round % 2][f];
    for (int k = 1 + static_cast<int>(rng() % 3); k > 0; --k) {
      std::string& target = text[rng() % 3];
      target = mutate(target, rng);
    }
    fs::current_path(dir);  // the readers use fixed names
    for (int f = 0; f < 3; ++f) write_file(kFiles[f], text[f]);
    const bool quick = run_case();
    fs::current_path(previous);
    if (!quick || ::testing::Test::HasFailure()) return keep_failed_case(dir, "inputs-" + std::to_string(round));
  }
  fs::remove_all(dir);
}

TEST(InputsFuzz, RegressionsReplay) {
  replay_regressions({std::begin(kFiles), std::end(kFiles)}, [](const std::string&) { return run_case(); });
}

}  // namespace
}  // namespace tarvo::testing
