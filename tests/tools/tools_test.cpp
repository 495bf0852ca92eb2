// tarvo-lp on every LP of the test set and every example core: the objective printed must match
// the optimum listed for the test set within a relative 1e-9 (netlib LPs, whose optima are listed
// to 10 digits, within 1e-6); env-aggr's core is infeasible. The netlib LPs are the degenerate
// ones (degen3, scsd8, modszk1) and badly scaled ones (fffff800, maros).
//
// tarvo-dep round trips beyond the bundled problems' universes (checked with the runs by path):
// tarvo-lp on the deterministic equivalent gives TARVO's optimum within a relative 1e-6 for
// dakota's scenarios, a first stage without rows, and seeded samples of the two problems whose
// universes are too large (the sample Monte Carlo presampling keeps with the same seed).
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>

#include "driver/end_to_end_support.h"

namespace tarvo::testing {
namespace {

struct LpCase {
  const char* name;
  const char* file;     // relative to the source directory
  int status;           // 0 optimal, 1 infeasible
  double optimum;       // as listed with the test set (ignored when infeasible)
  double tolerance = 1e-9;  // relative
};

// Runs the tool and returns its last line that is not empty.
std::string run_tool(const std::string& file) {
  const ScratchDir dir("lp");
  const auto run = run_program(TARVO_LP_BINARY, dir.path, "", std::string(TARVO_SOURCE_DIR) + "/" + file);
  std::string last;
  for (const std::string& line : split_lines(run.console)) last = line.empty() ? last : line;
  return last;
}

class TarvoLp : public ::testing::TestWithParam<LpCase> {};

TEST_P(TarvoLp, SolvesToTheListedOptimum) {
  const LpCase& c = GetParam();
  const std::string out = run_tool(c.file);
  int status = -1;
  double objective = 0.0;
  ASSERT_EQ(std::sscanf(out.c_str(), "status %d %*s objective %lf", &status, &objective), 2) << out;
  ASSERT_EQ(status, c.status) << out;
  if (c.status == 0) {
    EXPECT_LE(std::fabs(objective - c.optimum), c.tolerance * std::fabs(c.optimum)) << out;
  }
}

INSTANTIATE_TEST_SUITE_P(
    TestSet, TarvoLp,
    ::testing::Values(LpCase{"chem_dep", "tests/data/lp/chem-dep.mps", 0, -13009.1666667},
                      LpCase{"env_aggr_dep", "tests/data/lp/env-aggr-dep.mps", 0, 20478.6989940},
                      LpCase{"pltexpa2_6_dep", "tests/data/lp/pltexpa2-6-dep.mps", 0, -9.47935440464},
                      LpCase{"fxm2_6_dep", "tests/data/lp/fxm2-6-dep.mps", 0, 18417.0655725},
                      LpCase{"stormg2_8_dep", "tests/data/lp/stormg2-8-dep.mps", 0, 15535235.7301},
                      LpCase{"lands3_core", "examples/lands3/MODEL.COR", 0, 209.0},
                      LpCase{"lands3_blocks_core", "examples/lands3-blocks/MODEL.COR", 0, 209.0},
                      LpCase{"lands_1e6_core", "examples/lands-1e6/MODEL.COR", 0, 167.0},
                      LpCase{"chem_core", "examples/chem/MODEL.COR", 0, -89.1666666667},
                      LpCase{"pltexpa2_6_core", "examples/pltexpa2-6/MODEL.COR", 0, -9.63},
                      LpCase{"fxm2_6_core", "examples/fxm2-6/MODEL.COR", 0, 18416.7590283},
                      LpCase{"stormg2_8_core", "examples/stormg2-8/MODEL.COR", 0, 11609991.6017},
                      LpCase{"stormg2_1000_core", "examples/stormg2-1000/MODEL.COR", 0, 11609991.6017},
                      LpCase{"env_aggr_core", "examples/env-aggr/MODEL.COR", 1, 0.0},
                      LpCase{"degen3", "tests/data/lp/degen3.mps", 0, -987.294, 1e-6},
                      LpCase{"scsd8", "tests/data/lp/scsd8.mps", 0, 904.9999999, 1e-6},
                      LpCase{"modszk1", "tests/data/lp/modszk1.mps", 0, 320.6197291, 1e-6},
                      LpCase{"fffff800", "tests/data/lp/fffff800.mps", 0, 555679.5648, 1e-6},
                      LpCase{"maros", "tests/data/lp/maros.mps", 0, -58063.7437, 1e-6}),
    [](const auto& info) { return std::string(info.param.name); });

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
