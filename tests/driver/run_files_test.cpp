// What a run leaves in its working directory and on the console.
#include <gtest/gtest.h>

#include <string>

#include "run_in_dir.h"

namespace tarvo::testing {
namespace {

int count_of(const std::string& text, const std::string& part) {
  int n = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++n;
  return n;
}

TEST(RunFiles, BannerReportsSizesAndExitLine) {
  const ScratchDir scratch("files");
  const fs::path& dir = scratch.path;
  write_file(dir / "SIMPLEX.SPC", kSampleOptions);
  const ProgramRun run = run_program(TARVO_BINARY, dir, "");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.console.rfind("  T H E   T  A  R  V  O   S Y S T E M\n", 0), 0u) << run.console;
  const std::string sol = read_file(dir / "MODEL.SOL");
  EXPECT_EQ(sol.rfind("  T  A  R  V  O ", 0), 0u) << sol;
  EXPECT_TRUE(fs::exists(dir / "MODEL.ERR"));
  EXPECT_TRUE(fs::exists(dir / "MODEL.SCR"));
  EXPECT_FALSE(fs::exists(dir / "MODEL.SPR"));
  EXPECT_FALSE(fs::exists(dir / "MODEL.SOG"));
  EXPECT_TRUE(fs::exists(dir / "MODEL.MO"));
  EXPECT_TRUE(contains(read_file(dir / "MODEL.SCR"),
                       " Simplex specs file:\n rows:     3000\n columss:  10000\n"
                       " elements: 120000\n \n"));
}

TEST(RunFiles, ScreenLogOnTheConsoleWhenIscratchIsSix) {
  const ScratchDir scratch("console");
  const fs::path& dir = scratch.path;
  write_file(dir / "MODEL.INP", "6 iscratch\n");
  write_file(dir / "SIMPLEX.SPC", kSampleOptions);
  const ProgramRun run = run_program(TARVO_BINARY, dir, "");
  EXPECT_EQ(count_of(run.console, "T H E   T  A  R  V  O   S Y S T E M"), 2) << run.console;
  EXPECT_TRUE(contains(run.console, " iscratch  =  6\n"));
  EXPECT_FALSE(fs::exists(dir / "MODEL.SCR"));
}

TEST(RunFiles, MissingOptionsFileStopsBeforeTheModel) {
  const ScratchDir scratch("nospecs");
  const fs::path& dir = scratch.path;
  const ProgramRun run = run_program(TARVO_BINARY, dir, "");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(read_file(dir / "MODEL.ERR"),
            " ERROR: SPECS file SIMPLEX.SPC not found\n ERROR: could not initialize optimizer\n");
  EXPECT_TRUE(contains(run.console, " ERROR exit\n")) << run.console;
  EXPECT_FALSE(contains(run.console, "ERROR Exit"));
  EXPECT_TRUE(contains(read_file(dir / "MODEL.SCR"), " parameters: "));
}

}  // namespace
}  // namespace tarvo::testing
