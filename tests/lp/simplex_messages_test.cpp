// What a solve writes and returns at each exit: the message on the print and summary units, the
// summary, the iteration log, the start word's complaint, and the workspace check.
#include <gtest/gtest.h>

#include "lp/simplex_work.h"
#include "run_in_dir.h"
#include "simplex_test_support.h"

namespace tarvo::lp::test {
namespace {

// min -x1 - 2 x2 with x1 + x2 <= 4 (row 1), x1 - x2 >= -2 (row 2), x >= 0.
DenseLp small_lp() {
  return DenseLp{2, 2, {-1.0, -2.0}, {{1.0, 1.0}, {1.0, -1.0}}, {-kFree, -2.0}, {4.0, kFree}, {0.0, 0.0}, {kFree, kFree}};
}

// A solve in a directory of its own, printing to PRINT (unit 31) and, when asked, SUMMARY (32).
struct Printed : Harness {
  tarvo::testing::WorkDir dir{"simplex"};
  explicit Printed(const DenseLp& lp = small_lp(), bool summary = false) {
    load_slot(lp, slot);
    EXPECT_TRUE(open_unit(units, 31, "PRINT", OpenStatus::unknown));
    options.ival[kPrintFile] = 31;
    if (summary && open_unit(units, 32, "SUMMARY", OpenStatus::unknown)) options.ival[kSummaryFile] = 32;
  }
  std::string text(const char* file = "PRINT") {
    close_all_units(units);
    return tarvo::testing::read_file(file);
  }
};

// Each exit from small_lp changed by `setup`: its code, a line the print and summary files must
// hold, and one more the print file must hold (the factorization's events).
struct ExitCase {
  const char* name;
  int inform;
  const char* message;
  void (*setup)(DenseLp& lp, Options& o);
  const char* print_only = "";
};

class SimplexExit : public ::testing::TestWithParam<ExitCase> {};

TEST_P(SimplexExit, WritesItsMessageToPrintAndSummaryUnits) {
  const ExitCase& ec = GetParam();
  DenseLp lp = small_lp();
  Printed h(lp, true);
  ec.setup(lp, h.options);
  load_slot(lp, h.slot);
  EXPECT_EQ(h.solve("cold"), ec.inform);
  for (const char* file : {"PRINT", "SUMMARY"}) {
    const std::string text = h.text(file);
    EXPECT_NE(text.find(std::string(ec.message) + "\n"), std::string::npos) << file << ":\n" << text;
    if (file[0] == 'P') {
      EXPECT_NE(text.find(std::string(ec.print_only) + "\n"), std::string::npos) << text;
    }
    EXPECT_NE(text.find("\n\n Problem name                 TEST    \n No. of iterations"), std::string::npos) << text;
    EXPECT_NE(text.find(" No. of infeasibilities"), std::string::npos);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Exits, SimplexExit,
    ::testing::Values(
        ExitCase{"optimal", 0, " EXIT -- optimal solution found", [](DenseLp&, Options&) {}},
        // x1 - x2 >= 5 cannot meet x1 + x2 <= 4, x >= 0.
        ExitCase{"infeasible", 1, " EXIT -- the problem is infeasible", [](DenseLp& lp, Options&) { lp.row_lo[1] = 5.0; }},
        ExitCase{"unbounded", 2, " EXIT -- the problem is unbounded  (or badly scaled).",
                 [](DenseLp& lp, Options&) { lp.row_up[0] = kFree; }},
        // From the slack basis x2 first moves by 2; the optimum is -7.
        ExitCase{"unbounded_step", 2, " EXIT -- the problem is unbounded  (or badly scaled).",
                 [](DenseLp&, Options& o) {
                   o.rval[kUnboundedStep] = 1.5;
                   o.ival[kCrashOption] = 0;
                 }},
        ExitCase{"unbounded_objective", 2, " EXIT -- the problem is unbounded  (or badly scaled).",
                 [](DenseLp&, Options& o) { o.rval[kUnboundedObjective] = 6.5; }},
        ExitCase{"iterations", 3, " EXIT -- too many iterations", [](DenseLp&, Options& o) { o.ival[kIterationLimit] = 0; }},
        // No entry reaches the pivot tolerance, so the infeasible start cannot be left.
        ExitCase{"numerical", 10, " EXIT -- numerical error.  General constraints cannot be satisfied accurately",
                 [](DenseLp& lp, Options& o) {
                   lp.row_lo[1] = 1.0;
                   o.rval[kPivotTolerance] = 1.5;
                   o.ival[kScaleOption] = 0;
                   o.ival[kCrashOption] = 0;
                 }},
        // Every update leaves a pivot below the singularity tolerance.
        ExitCase{"refactor_twice", 12, " EXIT -- basis factorization requested twice in a row",
                 [](DenseLp&, Options& o) {
                   o.rval[kLuSingularityTolerance] = 1.5;
                   o.ival[kCrashOption] = 0;
                 },
                 " LU replace  warning.  Singularity after replacing column. jrep =       1"},
        // Reduced costs of -1 and -2 are within an optimality tolerance of 1e4.
        ExitCase{"near_optimal", 13, " XXX WARNING: reduced gradient is large -- solution is not really optimal",
                 [](DenseLp&, Options& o) { o.rval[kOptimalityTolerance] = 1e4; }}),
    [](const auto& info) { return std::string(info.param.name); });

// The stall exit writes its count; the expanding tolerances leave no small LP that stalls.
TEST(SimplexEntry, StallExitWritesTheIterationsWithoutProgress) {
  Printed h;
  SimplexSettings settings;
  settings.print_unit = 31;
  write_exit_message(4, 12345, 1, settings, h.units);
  EXPECT_EQ(h.text(), " EXIT -- the objective has not changed for the last   12345 iterations\n");
}

TEST(SimplexEntry, TooLittleWorkspaceReturns42WithoutMessageOrSolve) {
  Printed h;
  h.slot.obj = 123.0;
  h.nwcore = simplex_workspace_needed(h.slot.m, h.slot.n, h.slot.ne) - 1;
  EXPECT_EQ(h.solve("cold"), 42);
  EXPECT_EQ(h.slot.mincor, h.nwcore + 1);
  EXPECT_EQ(h.slot.obj, 123.0);
  EXPECT_EQ(h.text().find("EXIT"), std::string::npos);
  // A slot filled to its capacities solves in the workspace of twice its ELEMENTS.
  Harness full(3, 2, 6);
  load_slot(small_lp(), full.slot);
  ASSERT_EQ(full.slot.ne, full.slot.nemax);
  full.nwcore = 2 * full.slot.nemax;
  EXPECT_EQ(full.solve("cold"), 0);
}

TEST(SimplexEntry, UnknownStartWordIsReportedAndSolvedCold) {
  Printed h;
  EXPECT_EQ(h.solve("zap"), 0);
  EXPECT_NEAR(h.slot.obj, -7.0, 1e-12);
  EXPECT_NE(h.text().find(" XXX Start parameter not recognized:  zap\n"), std::string::npos);
}

TEST(SimplexEntry, IterationLogHasHeaderAndOneRecordPerFrequency) {
  Printed h;
  h.options.ival[kLogFrequency] = 1;
  h.options.ival[kCrashOption] = 0;
  ASSERT_EQ(h.solve("cold"), 0);
  const std::string text = h.text();
  const std::string header = "    Itn       dj  ninf      sinf       objective     LU\n";
  ASSERT_NE(text.find(header), std::string::npos) << text;
  int records = 0;
  for (std::size_t at = text.find(header) + header.size(); at < text.size() && text[at] != '\n';
       at = text.find('\n', at) + 1) {
    const std::string line = text.substr(at, text.find('\n', at) - at);
    if (line.rfind(" EXIT", 0) == 0) break;
    EXPECT_EQ(line.size(), 55u) << line;  // i7,e9.1,i6,e10.3,e16.8,i7
    ++records;
  }
  EXPECT_GT(records, 0);
  EXPECT_EQ(records, h.state.counters.iterations);
}

// A column that names one row twice means the sum of the two values.
TEST(SimplexEntry, RepeatedEntriesOfAColumnAddUp) {
  Harness whole, split;
  load_slot(small_lp(), whole.slot);
  ASSERT_EQ(whole.solve("cold"), 0);
  DenseLp lp = small_lp();
  lp.a[0][1] = 0.25;  // column 2 in row 1 holds 0.25 + 0.75
  load_slot(lp, split.slot);
  ProblemSlot& s = split.slot;
  const int at = s.ka[3];
  for (int k = s.ne; k >= at; --k) {
    s.a[k + 1] = s.a[k];
    s.ha[k + 1] = s.ha[k];
  }
  s.ha[at] = 2;
  s.a[at] = 0.75;
  ++s.ka[3];
  ++s.ne;
  ASSERT_EQ(split.solve("cold"), 0);
  EXPECT_NEAR(split.slot.obj, whole.slot.obj, 1e-12);
}

}  // namespace
}  // namespace tarvo::lp::test
