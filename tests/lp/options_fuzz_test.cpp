// Seeded random mutations of options files (fuzz_support.h): whatever the bytes, reading never
// crashes or hangs, and the options it leaves size every problem slot.
#include <gtest/gtest.h>

#include "fuzz_support.h"
#include "lp/options.h"

namespace tarvo::lp {
namespace {

namespace fs = std::filesystem;

constexpr int kSpecs = 4, kPrint = 23, kSummary = 24;

const char* const kSeeds[] = {
    "BEGIN  options for the bundled test problems\n   ROWS                   3000\n"
    "   COLUMNS               10000\n   ELEMENTS             120000\n"
    "   ITERATIONS LIMIT     200000\n   PRINT LEVEL               0\nEND\n",
    "* every kind of record\nSKIP\n ROWS 5\nENDRUN\nBEGIN run\n ROWS 3000 * rows\n SCALE 0.5\n"
    " LU FACTOR TOL 20.5\n IPARM 2 123\n RPARM 8 1e-5\n START ASSIGNED NONLINEARS BASIC\n"
    " OBJECTIVE cost\n DEFAULTS\n COLUMNS 700\n FEASIBILITY TOLERANCE 1e-8\n VERIFY 2\nEND\n",
};

// Reads the options file in `dir` as the optimizer does, completes and reports the options; true
// when that was quick.
bool run_case(const fs::path& dir) {
  const auto start = std::chrono::steady_clock::now();
  Units units;
  Options o;
  EXPECT_TRUE(open_unit(units, kSpecs, (dir / "SIMPLEX.SPC").string(), OpenStatus::old_file));
  open_unit(units, kPrint, (dir / "PRINT").string(), OpenStatus::unknown);
  open_unit(units, kSummary, (dir / "SUMMARY").string(), OpenStatus::unknown);
  EXPECT_GE(read_specs(o, units, kSpecs, kPrint, kSummary, 0), 0);
  complete_capacities(o);
  EXPECT_GE(o.ival[kRowLimit], 1);
  EXPECT_GE(o.ival[kColumnLimit], 1);
  EXPECT_GE(o.ival[kElementsLimit], 1);
  o.ival[kPrintFile] = kPrint;
  o.ival[kPrintLevel] = 1;
  apply_defaults(o, units, 2);
  apply_defaults(o, units, 3);
  EXPECT_GE(o.ival[kSuperbasicsLimit], 1);
  close_all_units(units);
  return std::chrono::steady_clock::now() - start < testing::kFuzzCaseLimit;
}

TEST(OptionsFuzz, MutatedOptionsFilesNeverCrash) {
  const fs::path dir = testing::fuzz_case_directory();
  fs::create_directories(dir);
  std::mt19937 rng(20261124);
  for (int round = 0; round < 1500; ++round) {
    std::string text = kSeeds[round % std::size(kSeeds)];
    for (int k = 1 + static_cast<int>(rng() % 3); k > 0; --k) text = testing::mutate(text, rng);
    testing::write_file(dir / "SIMPLEX.SPC", text);
    if (!run_case(dir) || ::testing::Test::HasFailure()) {
      return testing::keep_failed_case(dir, "options-" + std::to_string(round));
    }
  }
  fs::remove_all(dir);
}

TEST(OptionsFuzz, RegressionsReplay) {
  for (const fs::path& kept : testing::fuzz_regressions("SIMPLEX.SPC")) {
    SCOPED_TRACE(kept.string());
    testing::ScratchDir dir("replay");
    fs::copy(kept / "SIMPLEX.SPC", dir.path / "SIMPLEX.SPC");
    EXPECT_TRUE(run_case(dir.path));
  }
}

}  // namespace
}  // namespace tarvo::lp
