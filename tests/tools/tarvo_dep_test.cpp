// tarvo-dep round trips: tarvo-lp on the deterministic equivalent gives TARVO's optimum within a
// relative 1e-6: of the universe on every bundled problem but the two large ones, and of a seeded
// sample (the one Monte Carlo presampling keeps with the same seed) on those two, whose universes
// are a million outcomes and a 1.26-million-column equivalent.
#include <gtest/gtest.h>

#include <cstdio>

#include "driver/end_to_end_support.h"

namespace tarvo::testing {
namespace {

struct DepCase {
  const char* prefix;  // relative to the source directory
  const char* tarvo_options;
  const char* dep_options;
};

constexpr DepCase kCases[] = {
    {"examples/lands3/MODEL", "--strategy 4", ""},
    {"examples/lands3-blocks/MODEL", "--strategy 4", ""},
    {"examples/chem/MODEL", "--strategy 4", ""},
    {"examples/env-aggr/MODEL", "--strategy 4", ""},
    {"examples/pltexpa2-6/MODEL", "--strategy 4", ""},
    {"examples/fxm2-6/MODEL", "--strategy 4", ""},
    {"examples/stormg2-8/MODEL", "--strategy 4", ""},
    {"examples/dakota/dakota", "--strategy 4", ""},
    {"tests/data/newsvendor/newsvendor", "--strategy 4", ""},
    {"examples/lands-1e6/MODEL", "--strategy 8 --samples 50 --seed 7", "--sample 50 --seed 7"},
    {"examples/stormg2-1000/MODEL", "--strategy 8 --samples 10 --seed 3", "--sample 10 --seed 3"},
};

TEST(TarvoDep, EquivalentGivesTarvosOptimum) {
  for (const DepCase& c : kCases) {
    SCOPED_TRACE(c.prefix);
    ScratchDir dir("dep");
    dir.write("run.inp", "1 igms\n0 iresamp\n");
    const std::string prefix = std::string(TARVO_SOURCE_DIR) + "/" + c.prefix;
    const ProgramRun tarvo = run_program(TARVO_BINARY, dir.path, "", std::string(c.tarvo_options) + " --inp run.inp " + prefix);
    ASSERT_EQ(tarvo.status, 0) << tarvo.console;
    const ProgramRun dep = run_program(TARVO_DEP_BINARY, dir.path, "", std::string(c.dep_options) + " " + prefix + " dep.mps");
    ASSERT_EQ(dep.status, 0) << dep.console;
    const ProgramRun lp = run_program(TARVO_LP_BINARY, dir.path, "", "dep.mps");
    double objective = 0.0;
    ASSERT_EQ(std::sscanf(lp.console.c_str() + lp.console.find("status 0 (optimal)"), "status 0 (optimal) objective %lf",
                          &objective), 1) << lp.console;
    EXPECT_LT(relative_error(objective, read_status_file(dir.path).objective), 1e-6);
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
