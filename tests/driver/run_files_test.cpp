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
