// Multi-cut masters and parallel subproblem solves end to end: the optimum of the large universe
// and of presamples whatever the split of the cut (the small universes are run with the exact
// strategies); the same output from one thread as from two; the same results at every trace level.
#include <gtest/gtest.h>

#include "end_to_end_support.h"

namespace tarvo::testing {
namespace {

// The runs of stormg2-1000 and 20term below cost minutes under the sanitizers; the release stage
// of the test command runs them.
bool sanitized() {
#if defined(__SANITIZE_ADDRESS__)
  return true;
#else
  return false;
#endif
}

// Room for a master with a THETA per outcome of stormg2-1000 and its cut rows.
const char* const kLargeOptions =
    "BEGIN  options for a master with many cut groups\n"
    "   ROWS                   3000\n"
    "   COLUMNS                2000\n"
    "   ELEMENTS             400000\n"
    "   ITERATIONS LIMIT     200000\n"
    "END\n";

// The lines of a report file less those that hold times or echo the setting under comparison.
std::string results(const ExampleRun& run, const std::string& file, const std::string& setting) {
  std::string kept;
  for (const std::string& line : split_lines(run.file(file))) {
    if (contains(line, "(sec)") || contains(line, "resusd") || contains(line, setting)) continue;
    kept += line + "\n";
  }
  return kept;
}

TEST(CutGroups, LargeUniverseReachesTheKnownOptimum) {
  if (sanitized()) GTEST_SKIP() << "release stage only";
  for (const std::string ncuts : {"0 ncuts\n", "50 ncuts\n"}) {
    SCOPED_TRACE(ncuts);
    ExampleRun run("stormg2-1000", "4 istrat\n" + ncuts + "2500 nzrows\n1.0d-7 tolben\n", true);
    run.dir.write("SIMPLEX.SPC", kLargeOptions);
    run.run();
    EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
    EXPECT_LT(relative_error(run.sog.objective, 15802590.24), 1e-6) << run.sog.objective;
    EXPECT_EQ(run.sog.column_value.count("THG00001"), 1u);
    EXPECT_EQ(run.sog.column_value.count("THETA001"), 0u);
  }
}

// A presample's optimum is that of its sample problem, whether its cut is split by outcome,
// into a few groups or not at all.
void expect_same_presample_optimum(const char* example, const char* samples,
                                   const std::vector<const char*>& splits) {
  double first = 0.0;
  for (const char* split : splits) {
    SCOPED_TRACE(std::string(example) + " " + split);
    ExampleRun run(example, std::string("8 istrat\n") + samples + split +
                                "1500 nzrows\n1.0d-7 tolben\n0 iresamp\n", true);
    run.dir.write("SIMPLEX.SPC", kSampleOptions);
    run.run();
    EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
    EXPECT_EQ(run.sog.solsta, 1);
    if (split == splits.front()) first = run.sog.objective;
    EXPECT_LT(relative_error(run.sog.objective, first), 1e-6) << run.sog.objective;
  }
}

TEST(CutGroups, PresampleOptimumDoesNotDependOnTheSplit) {
  expect_same_presample_optimum("lands-1e6", "100 nsamples\n", {"1 ncuts\n", "0 ncuts\n", "10 ncuts\n"});
}

// 20term's single cut takes too long even on a presample of three: its two splits are compared.
TEST(CutGroups, TwentyTermPresampleOptimumDoesNotDependOnTheSplit) {
  if (sanitized()) GTEST_SKIP() << "release stage only";
  expect_same_presample_optimum("20term", "3 nsamples\n", {"0 ncuts\n", "2 ncuts\n"});
}

TEST(Threads, OneThreadAndTwoGiveTheSameOutput) {
  const struct { const char* example; const char* inp; } cases[] = {
      {"stormg2-1000", "4 istrat\n20 ncuts\n400 nzrows\n2 maxit\n"},
      {"lands-1e6", "6 istrat\n300 nsamples\n4 maxit\n"},
      {"fxm2-6", "6 istrat\n300 nsamples\n10 maxit\n"},  // chains that stop on infeasible points
      {"lands-1e6", "9 istrat\n300 nsamples\n10 ncuts\n3 maxit\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.example) + " " + c.inp);
    const ExampleRun one(c.example, std::string(c.inp) + "1 nthreads\n");
    const ExampleRun two(c.example, std::string(c.inp) + "2 nthreads\n");
    EXPECT_TRUE(contains(two.program.console, " Normal Exit\n"));
    EXPECT_EQ(one.program.console, two.program.console);
    EXPECT_EQ(one.file("fort.15"), two.file("fort.15"));
    for (const char* file : {"MODEL.SOL", "MODEL.SOG", "MODEL.SCR"}) {
      EXPECT_EQ(results(one, file, "nthreads"), results(two, file, "nthreads")) << file;
    }
  }
}

// Solves are ordered alike at every trace level, so the cuts and the results are the same.
TEST(SolveOrder, TracesDoNotChangeTheResults) {
  const struct { const char* example; const char* inp; } cases[] = {
      {"lands3", "6 istrat\n100 nsamples\n"},
      {"stormg2-8", "8 istrat\n100 nsamples\n10 maxit\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.example);
    const ExampleRun quiet(c.example, std::string(c.inp) + "0 ibug\n");
    const ExampleRun traced(c.example, std::string(c.inp) + "2 ibug\n");
    EXPECT_TRUE(contains(traced.file("MODEL.SCR"), "   sub  1 : obj "));
    EXPECT_EQ(quiet.file("fort.15"), traced.file("fort.15"));
    EXPECT_EQ(results(quiet, "MODEL.SOL", "ibug"), results(traced, "MODEL.SOL", "ibug"));
  }
}

TEST(CutGroups, StrategiesThatDrawAfreshIgnoreThemAndStabilization) {
  const ExampleRun run("lands3", "7 istrat\n0 ncuts\n0.5 stabil\n");
  const std::string log = run.file("MODEL.SCR");
  EXPECT_TRUE(contains(log, " ncuts ignored: the strategy draws new outcomes, one cut per iteration\n"));
  EXPECT_TRUE(contains(
      log, " stabil ignored: the strategy draws new outcomes or regularizes the master\n"));
  EXPECT_EQ(run.sog.column_value.count("THG00001"), 0u);
  EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
}

}  // namespace
}  // namespace tarvo::testing
