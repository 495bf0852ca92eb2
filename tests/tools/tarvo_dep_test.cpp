// tarvo-dep round trips beyond the bundled problems' universes (checked with the runs by path):
// tarvo-lp on the deterministic equivalent gives TARVO's optimum within a relative 1e-6 for
// dakota's scenarios, a first stage without rows, and seeded samples of the two problems whose
// universes are too large (the sample Monte Carlo presampling keeps with the same seed).
#include <gtest/gtest.h>

#include "driver/end_to_end_support.h"

namespace tarvo::testing {
namespace {

struct DepCase {
  const char* prefix;  // relative to the source directory
  const char* tarvo_options;
  const char* dep_options;
};

constexpr DepCase kCases[] = {
    {"examples/dakota/dakota", "--strategy 4", ""},
    {"tests/data/newsvendor/newsvendor", "--strategy 4", ""},
    {"examples/lands-1e6/MODEL", "--strategy 8 --samples 50 --seed 7", "--sample 50 --seed 7"},
    {"examples/stormg2-1000/MODEL", "--strategy 8 --samples 10 --seed 3", "--sample 10 --seed 3"},
};

TEST(TarvoDep, EquivalentGivesTarvosOptimum) {
  for (const DepCase& c : kCases) {
    SCOPED_TRACE(c.prefix);
    ScratchDir dir("dep");
    dir.write("run.inp", "0 iresamp\n");
    const std::string prefix = std::string(TARVO_SOURCE_DIR) + "/" + c.prefix;
    const ProgramRun tarvo = run_program(TARVO_BINARY, dir.path, "", std::string(c.tarvo_options) + " --inp run.inp " + prefix);
    ASSERT_EQ(tarvo.status, 0) << tarvo.console;
    EXPECT_LT(relative_error(equivalent_optimum(dir.path, std::string(c.dep_options) + " " + prefix),
                             final_objective(dir.path)), 1e-6);
  }
}

TEST(TarvoDep, RefusalsHaveTheirLine) {
  const std::pair<std::string, const char*> cases[] = {
      {std::string(TARVO_SOURCE_DIR) + "/examples/lands-1e6/MODEL out.mps",
       "the universe of 1000000 outcome combinations is too large to write; take a sample with --sample N"},
      {"--strategy 4 a b", "unknown option '--strategy'"},
      {"a", "give a file prefix, or the core, time and stochastic files, then the output file"},
      {"--sample 0 a b", "--sample takes a whole number from 1 to 2147483647, not '0'"},
  };
  for (const auto& [args, message] : cases) {
    ScratchDir dir("dep-refused");
    const ProgramRun run = run_program(TARVO_DEP_BINARY, dir.path, "", args);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(contains(run.console, "tarvo-dep: " + std::string(message))) << run.console;
    EXPECT_FALSE(fs::exists(dir.path / "out.mps"));
  }
}

}  // namespace
}  // namespace tarvo::testing
