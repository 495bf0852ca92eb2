// Solve requests on one-column problems whose outcome is known: what reaches the caller
// (status, objective or sum of infeasibilities, duals and primal values) and the error lines.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/free_format.h"
#include "lp/optimizer.h"
#include "run_in_dir.h"
#include "simplex_test_support.h"

namespace tarvo::lp {
namespace {

constexpr int kOut = 17;

struct SolveCase {
  const char* name;
  double cost;       // objective coefficient of the column
  double row_lower;  // row 2: x >= row_lower
  double column_lower, column_upper;
  int nwcore;  // 0: as sized at initialization
  int inform;
  double objective;    // expected when inform = 0
  std::string line;    // expected error line ("" none)
};

const SolveCase kCases[] = {
    {"optimal", 1.0, 1.0, 0.0, 10.0, 0, 0, 1.0, ""},
    {"infeasible", 1.0, 5.0, 0.0, 1.0, 0, 1, 0.0, free_line("ERROR: PROBLEM INFEASIBLE")},
    {"unbounded", -1.0, 1.0, 0.0, kInfiniteBound, 0, 2, 0.0,
     free_line("ERROR: PROBLEM UNBOUNDED")},
    {"workspace too small", 1.0, 1.0, 0.0, 10.0, 1, 42, 0.0,
     free_line("ERROR: ERROR CODE: ", 42)},
};

TEST(SolveProblem, HandsBackStatusObjectiveAndSolution) {
  for (const SolveCase& c : kCases) {
    SCOPED_TRACE(c.name);
    testing::WorkDir dir;
    testing::write_file("SIMPLEX.SPC", "BEGIN\nROWS 4\nCOLUMNS 3\nELEMENTS 10\nEND\n");
    Units units;
    Optimizer opt;
    ASSERT_EQ(optimizer_init(opt, units, 0, 0, 0), 0);
    open_unit(units, kOut, "MODEL.SCR", OpenStatus::unknown);
    select_problem(opt, kSubproblemSlot);
    ProblemSlot& s = active_slot(opt);
    // min cost*x subject to x >= row_lower, column_lower <= x <= column_upper.
    test::load_slot({1, 1, {c.cost}, {{1.0}}, {c.row_lower}, {test::kFree}, {c.column_lower}, {c.column_upper}}, s);
    set_objective_mode(opt, units, 0, 0);
    set_option(opt.options, units, "MPS FILE 5", 0, 0);
    if (c.nwcore != 0) opt.nwcore = c.nwcore;

    int inform = -1;
    double objective = -99.0;
    double spare = 0.0;
    std::vector<double> duals(8, -99.0);
    std::vector<double> primal(8, -99.0);
    EXPECT_EQ(solve_problem(opt, units, kOut, inform, 0, objective, spare, duals, spare, primal), 0);
    close_all_units(units);

    EXPECT_EQ(inform, c.inform);
    EXPECT_EQ(opt.options.ival[kMpsFile], 0);
    EXPECT_EQ(testing::read_lines("MODEL.SCR"),
              c.line.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.line});
    if (c.inform == 0) {
      EXPECT_NEAR(objective, c.objective, 1e-9);
    }
    if (c.inform == 1) {
      EXPECT_GT(s.sinf, 0.0);
      EXPECT_EQ(objective, s.sinf);
    }
    for (int j = 1; j <= s.nb; ++j) EXPECT_EQ(primal[j], s.xn[j]) << j;
    for (int i = 1; i <= s.m; ++i) EXPECT_EQ(duals[i], s.pi[i]) << i;
    EXPECT_EQ(duals[s.m + 1], s.rc[1]);
  }
}

}  // namespace
}  // namespace tarvo::lp
