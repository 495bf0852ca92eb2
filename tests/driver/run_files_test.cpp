// What a run leaves in its working directory and on the console.
#include <gtest/gtest.h>

#include <string>

#include "end_to_end_support.h"

namespace tarvo::testing {
namespace {

TEST(RunFiles, BannerReportsSizesAndExitLine) {
  const BareRun run(nullptr);
  EXPECT_EQ(run.program.status, 0);
  EXPECT_EQ(run.program.console.rfind("  T H E   T  A  R  V  O   S Y S T E M\n", 0), 0u) << run.program.console;
  EXPECT_EQ(run.file("MODEL.SOL").rfind("  T  A  R  V  O ", 0), 0u) << run.file("MODEL.SOL");
  for (const char* name : {"MODEL.ERR", "MODEL.SCR", "MODEL.MO"}) EXPECT_TRUE(run.has(name)) << name;
  for (const char* name : {"MODEL.SPR", "MODEL.SOG"}) EXPECT_FALSE(run.has(name)) << name;
  EXPECT_TRUE(contains(run.file("MODEL.SCR"),
                       " Simplex specs file:\n rows:     3000\n columss:  10000\n"
                       " elements: 120000\n \n"));
}

TEST(RunFiles, ScreenLogOnTheConsoleWhenIscratchIsSix) {
  const BareRun run("6 iscratch\n");
  EXPECT_EQ(count_of(run.program.console, "T H E   T  A  R  V  O   S Y S T E M"), 2) << run.program.console;
  EXPECT_TRUE(contains(run.program.console, " iscratch  =  6\n"));
  EXPECT_FALSE(run.has("MODEL.SCR"));
}

// Any other value, even one that names no file, standard input or another file's unit, writes
// the whole screen log to MODEL.SCR and leaves the other files as they are.
TEST(RunFiles, ScreenLogInModelScrForEveryOtherIscratch) {
  for (const std::string value : {"0", "5", "-3", "16", "48", "15"}) {
    SCOPED_TRACE(value);
    const ExampleRun run("lands3", value + " iscratch\n");
    const std::string log = run.file("MODEL.SCR");
    EXPECT_TRUE(contains(log, " iscratch  =  " + value + "\n") && contains(log, "\n run statistics:\n"));
    EXPECT_TRUE(contains(run.file("MODEL.SOL"), " execution time (sec):"));
    EXPECT_EQ(run.file("MODEL.ERR"), "");
    EXPECT_EQ(run.file("fort.15").size(), 71u);  // the run summary line
  }
}

// MODEL.ERR holds faults only: the reader's notes reach the optimizer's print and summary files
// when they are open and are dropped otherwise; faulty lines that stop the run are echoed there.
TEST(RunFiles, ErrorFileHoldsOnlyFaults) {
  const struct {
    const char* core_end;  // replaces the ENDATA card of the lands3 core
    const char* err;
  } cases[] = {
      {"    RIGHT     OBJ       5.0\nENDATA\n", ""},  // a note: the objective gets a constant
      {"BOUNDS\n UP INITIAL   X1        5.0\nENDATA\n", ""},
      {"BOUNDS\n UP BND       Z9        5.0\nENDATA\n",
       " XXXX  Non-existent column specified -- Z9       -- entry ignored in line     53\n"
       " XXXX  Total no. of errors in MPS file       1\n EXIT -- fatal errors in the MPS file\n"
       " ERROR: reading MPS file MODEL.COR\n"},
  };
  for (const auto& c : cases) {
    ExampleRun run("lands3", "", true);
    std::string core = run.file("MODEL.COR");
    run.dir.write("MODEL.COR", core.replace(core.find("ENDATA"), std::string::npos, c.core_end));
    run.run();
    EXPECT_EQ(run.file("MODEL.ERR"), c.err) << c.core_end;
    EXPECT_TRUE(contains(run.program.console, *c.err == '\0' ? " Normal Exit\n" : " ERROR Exit\n"));
  }
}

// A missing MODEL.STA is created empty and evaluates the all-zero first stage (which leaves chem
// its second stage infeasible: the evaluation reports the infinite cost).
TEST(RunFiles, EvaluationWithoutSolutionFileCreatesIt) {
  ExampleRun run("chem", "4 istrat\n", true);
  run.run("eval\n");
  EXPECT_TRUE(contains(run.program.console, " Normal Exit\n")) << run.program.console;
  ASSERT_TRUE(fs::exists(run.dir.path / "MODEL.STA"));
  EXPECT_EQ(fs::file_size(run.dir.path / "MODEL.STA"), 0u);
  ASSERT_FALSE(run.sog.column_value.empty());
  for (const auto& [name, value] : run.sog.column_value) EXPECT_EQ(value, 0.0) << name;
  EXPECT_EQ(run.sog.objective, 1.00000002e20);
}

TEST(RunFiles, MissingOptionsFileStopsBeforeTheModel) {
  const BareRun run(nullptr, false);
  EXPECT_EQ(run.program.status, 0);
  EXPECT_EQ(run.file("MODEL.ERR"),
            " ERROR: SPECS file SIMPLEX.SPC not found\n ERROR: could not initialize optimizer\n");
  EXPECT_TRUE(contains(run.program.console, " ERROR exit\n")) << run.program.console;
  EXPECT_FALSE(contains(run.program.console, "ERROR Exit"));
  EXPECT_TRUE(contains(run.file("MODEL.SCR"), " parameters: "));
}

}  // namespace
}  // namespace tarvo::testing
