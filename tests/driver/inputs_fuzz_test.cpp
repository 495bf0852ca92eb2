// Seeded random mutations of the run parameters and of a first-stage solution (fuzz_support.h):
// whatever the bytes, reading MODEL.INP and MODEL.STA never crashes or hangs, and what they
// leave is whole.
#include <gtest/gtest.h>

#include <set>

#include "driver/run_params_reader.h"
#include "driver/solution_reader.h"
#include "fuzz_support.h"

namespace tarvo::testing {
namespace {

constexpr int kLog = 17, kErr = 48, kSolutionInput = 35;
constexpr int kFirstStageColumns = 4;

const char* const kInpSeeds[] = {
    "5 istrat\n100 nzrows\n1000 maxit\n1.0d-7 tolben\n",
    "3 ISTRAT\n500, 'nsamples'\n2*7 maxit\n.5 \"rho\" trailing\n11\n iseed\n-2.9 ibug / x\n",
};
const char* const kStaSeeds[] = {
    "* first-stage solution of lands3\nX1 2.5\nX2 4.0\nX3 1.5d1\nX4 -0.0\n",
    "'X1', 3\nX2 1e2 trailing words\nbogus 1\n,,\nX3\n*X4 9\nX4 2*5\n",
};

// A master whose first four columns are the first stage of lands3.
lp::ProblemSlot lands3_master() {
  lp::ProblemSlot master;
  lp::allocate_slot(master, 20, 10, 50);
  master.n = kFirstStageColumns + 1;
  for (int j = 1; j <= kFirstStageColumns; ++j) master.names[j] = lp::make_name("X" + std::to_string(j));
  master.names[master.n] = lp::make_name("THETA001");
  return master;
}

// Reads MODEL.INP and MODEL.STA of the working directory as a run does; true when quick.
bool run_case() {
  const auto start = std::chrono::steady_clock::now();
  Units units;
  open_unit(units, kLog, "log", OpenStatus::unknown);
  open_unit(units, kErr, "err", OpenStatus::unknown);
  RunParams params;
  if (driver::read_run_params(units, params)) {
    EXPECT_GE(params.rho, 1.0e-6);
    driver::run_params_usable(units, kLog, kErr, params);
    driver::echo_run_params(units, kLog, params);
  }
  std::vector<double> values;
  if (fs::exists("MODEL.STA")) {
    open_unit(units, kSolutionInput, "MODEL.STA", OpenStatus::old_file);
    driver::read_solution(units, kSolutionInput, kLog, lands3_master(), kFirstStageColumns, values);
    EXPECT_EQ(values.size(), kFirstStageColumns + 1u);
  }
  close_all_units(units);
  return std::chrono::steady_clock::now() - start < kFuzzCaseLimit;
}

// The case directory is the working directory while the fuzz runs, as the readers use fixed names.
struct InCaseDirectory {
  fs::path dir = fuzz_case_directory();
  fs::path previous = fs::current_path();
  InCaseDirectory() {
    fs::create_directories(dir);
    fs::current_path(dir);
  }
  ~InCaseDirectory() { fs::current_path(previous); }
};

TEST(InputsFuzz, MutatedParametersAndSolutionsNeverCrash) {
  std::mt19937 rng(20261125);
  {
    const InCaseDirectory in;
    for (int round = 0; round < 1500; ++round) {
      std::string inp = kInpSeeds[round % std::size(kInpSeeds)];
      std::string sta = kStaSeeds[round % std::size(kStaSeeds)];
      for (int k = 1 + static_cast<int>(rng() % 3); k > 0; --k) {
        std::string& target = rng() % 2 == 0 ? inp : sta;
        target = mutate(target, rng);
      }
      write_file("MODEL.INP", inp);
      write_file("MODEL.STA", sta);
      if (!run_case() || ::testing::Test::HasFailure()) {
        return keep_failed_case(in.dir, "inputs-" + std::to_string(round));
      }
    }
  }
  fs::remove_all(fuzz_case_directory());
}

TEST(InputsFuzz, RegressionsReplay) {
  std::set<fs::path> kept;
  for (const char* file : {"MODEL.INP", "MODEL.STA"}) {
    for (const fs::path& source : fuzz_regressions(file)) kept.insert(source);
  }
  for (const fs::path& source : kept) {
    SCOPED_TRACE(source.string());
    const WorkDir dir("replay");
    for (const char* file : {"MODEL.INP", "MODEL.STA"}) {
      if (fs::exists(source / file)) fs::copy(source / file, file);
    }
    EXPECT_TRUE(run_case());
  }
}

}  // namespace
}  // namespace tarvo::testing
