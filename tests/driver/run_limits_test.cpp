// How a run ends when it cannot converge: iteration and time limits, cut rows running out, an
// undefined strategy, a model without random data, and missing model files.
#include <gtest/gtest.h>

#include "end_to_end_support.h"

namespace tarvo::testing {
namespace {

TEST(RunLimits, LimitsEndTheRunNormallyWithTheirWarning) {
  const struct {
    const char* name;
    const char* inp;
    const char* warning;     // in MODEL.ERR and the screen log
    const char* last_solve;  // the screen log's last master solve, just before the warning
    const char* summary;     // how the run summary in fort.15 starts
  } cases[] = {
      {"iteration limit", "4 istrat\n1 maxit\n", "warning: iterations limit reached.",
       " solve master, iteration:  1\n", "   1"},
      {"time limit", "4 istrat\n0 maxtime\n", "warning: time limit reached.",
       " solve master, iteration:  1\n", "   1"},
      // The iteration count no longer fits its field.
      {"cut rows run out", "4 istrat\n1 nzrows\n", "warning: iterations limit reached.",
       " not enough nzrows, program terminated\n solve master, iteration:  999999\n", "****"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const ExampleRun run("stormg2-8", c.inp);
    EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
    EXPECT_TRUE(contains(run.file("MODEL.ERR"), c.warning));
    const std::string log = run.file("MODEL.SCR");
    const std::size_t last_solve = log.find(c.last_solve);
    ASSERT_NE(last_solve, std::string::npos) << log;
    EXPECT_NE(log.find(c.warning, last_solve), std::string::npos) << log;
    EXPECT_FALSE(contains(log, " solve master, iteration:  2\n"));
    EXPECT_EQ(run.sog.status, 1);
    EXPECT_EQ(run.sog.solsta, 1);  // the normal exit reports solver status 1 whatever stopped it
    EXPECT_TRUE(contains(run.file("MODEL.SOL"), "-UNIVERSE- SOLUTION:"));
    EXPECT_EQ(run.file("fort.15").substr(0, 4), c.summary);
    if (c.summary[0] == '*') {
      EXPECT_TRUE(contains(run.program.console, " 999999"));
    }
  }
}

TEST(RunLimits, UndefinedStrategySolvesNothing) {
  const ExampleRun run("lands3", "12 istrat\n");
  EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
  EXPECT_FALSE(contains(run.file("MODEL.SOL"), "SOLUTION:"));
  EXPECT_EQ(run.file("fort.15").substr(0, 4), "   0");
}

TEST(RunLimits, ModelWithoutRandomDataIsSolvedAsItStands) {
  ExampleRun run("lands3", "5 istrat\n", true);
  run.dir.write("MODEL.STO", "STOCH         LandS\nENDATA\n");
  run.run();
  EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
  // With the core's demands (the second-stage right-hand sides of the file) the two-stage
  // problem is the core LP itself, whose optimum is 209.
  EXPECT_LT(relative_error(run.sog.objective, 209.0), 1e-9);
}

TEST(RunLimits, MissingModelFilesEndWithTheirMessage) {
  const struct {
    const char* missing;
    const char* message;
  } cases[] = {
      {"MODEL.STO", " ERROR in file MODEL.STO\n"}, {"MODEL.TIM", "ERROR: No file MODEL.TIM"},
      {"MODEL.COR", "ERROR: No file MODEL.COR"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.missing);
    ExampleRun run("lands3", "5 istrat\n", true);
    fs::remove(run.dir.path / c.missing);
    run.run();
    EXPECT_TRUE(contains(run.program.console, " ERROR Exit\n"));
    EXPECT_TRUE(contains(run.file("MODEL.ERR"), c.message)) << run.file("MODEL.ERR");
    EXPECT_EQ(run.sog.status, 12);
  }
}

}  // namespace
}  // namespace tarvo::testing
