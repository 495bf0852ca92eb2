// The optimizer's entries: initialization from SIMPLEX.SPC, the problem slots, the objective mode
// (the regularization callback is checked through the regularized solves of
// simplex_quadratic_test.cpp), and solve requests on one-column problems whose outcome is known:
// what reaches the caller (status, objective or sum of infeasibilities, duals and primal values)
// and the error lines.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common/free_format.h"
#include "lp/optimizer.h"
#include "run_in_dir.h"
#include "simplex_test_support.h"

namespace tarvo::lp {
namespace {

using Lines = std::vector<std::string>;

constexpr int kOut = 17;
constexpr int kErr = 48;

using tarvo::testing::kSampleOptions;

struct InitCase {
  const char* name;
  const char* text;  // SIMPLEX.SPC, nullptr: none
  int debug;
  int result;
  Lines errors;
  int rows, columns, elements;  // the printed sizes (0: none printed)
  int print_file;               // PRINT FILE afterwards
  Lines print_lines = {};       // each must appear in MODEL.MO
  bool allocated = true;        // false: refused before any slot is filled
};

const InitCase kInitCases[] = {
    {"sample, no debug", kSampleOptions, 0, 0, {}, 3000, 10000, 120000, 0,
     {"      BEGIN  options for the bundled test problems", "         ITERATIONS LIMIT     200000",
      "      END", "      SUMMARY FILE 0", "      PRINT   FILE 0"}},
    {"sample, debug", kSampleOptions, 1, 0, {}, 3000, 10000, 120000, kPrintUnit},
    {"missing file", nullptr, 0, kInitFailed,
     {" ERROR: SPECS file SIMPLEX.SPC not found"}, 0, 0, 0, 0},
    {"faulty file", "BEGIN\nROWS 40\nBOGUS\nEND\n", 0, kInitFailed,
     {" ERROR: while reading SPECS file"}, 40, 120, 600, kPrintUnit},
    {"no capacities given", "BEGIN\nEND\n", 0, 0, {}, 100, 300, 1500, 0},
    // Columns and elements follow from the rows; the slots would need half a terabyte.
    {"capacities beyond memory", "BEGIN\nROWS 99999999\nEND\n", 0, kInitFailed,
     {" ERROR: slots of 99999999 rows, 299999997 columns and 1073741823 elements need about "
      "489576 MB; the limit is 16384 MB"},
     99999999, 299999997, 1073741823, 0, {}, false},
};

Lines size_lines(int rows, int columns, int elements) {
  return {free_line("Simplex specs file:"), free_line("rows:    ", rows),
          free_line("columss: ", columns), free_line("elements:", elements), free_line()};
}

TEST(OptimizerInit, ReadsTheOptionsFileAndSizesEverySlot) {
  for (const InitCase& c : kInitCases) {
    SCOPED_TRACE(c.name);
    testing::WorkDir dir;
    if (c.text != nullptr) testing::write_file("SIMPLEX.SPC", c.text);
    Units units;
    open_unit(units, kOut, "MODEL.SCR", OpenStatus::unknown);
    open_unit(units, kErr, "MODEL.ERR", OpenStatus::unknown);
    Optimizer opt;
    EXPECT_EQ(optimizer_init(opt, units, kOut, kErr, c.debug), c.result);
    EXPECT_EQ(opt.active, kMasterSlot);
    EXPECT_EQ(unit_is_open(units, kPrintUnit), c.print_file == kPrintUnit);
    EXPECT_FALSE(unit_is_open(units, kSpecsUnit));
    close_all_units(units);
    EXPECT_EQ(testing::read_lines("MODEL.ERR"), c.errors);
    EXPECT_EQ(std::filesystem::exists("MODEL.MO"), c.text != nullptr);
    if (c.rows == 0) {
      EXPECT_EQ(testing::read_lines("MODEL.SCR"), Lines{});
      EXPECT_TRUE(opt.slot[kMasterSlot].a.empty());
      continue;
    }
    EXPECT_EQ(testing::read_lines("MODEL.SCR"), size_lines(c.rows, c.columns, c.elements));
    if (!c.allocated) {
      EXPECT_TRUE(opt.slot[kMasterSlot].a.empty());
      continue;
    }
    const Lines print = testing::read_lines("MODEL.MO");
    for (const std::string& line : c.print_lines) {
      EXPECT_TRUE(testing::has_line(print, line)) << line;
    }
    EXPECT_EQ(opt.options.ival[kPrintFile], c.print_file);
    EXPECT_EQ(opt.nwcore, 2 * c.elements);
    EXPECT_EQ(opt.nbmax, c.rows + c.columns);
    for (int k = kMasterSlot; k <= kCoreSlot; ++k) {
      EXPECT_EQ(opt.slot[k].mmax, c.rows);
      EXPECT_EQ(opt.slot[k].nmax, c.columns);
      EXPECT_EQ(opt.slot[k].a.size(), static_cast<std::size_t>(c.elements) + 1);
    }
  }
}

// An optimizer with slots of 4 rows, 3 columns and 10 elements, the screen log on kOut.
void init_small(Optimizer& opt, Units& units) {
  testing::write_file("SIMPLEX.SPC", "BEGIN\nROWS 4\nCOLUMNS 3\nELEMENTS 10\nEND\n");
  ASSERT_EQ(optimizer_init(opt, units, 0, 0, 0), 0);
  open_unit(units, kOut, "MODEL.SCR", OpenStatus::unknown);
}

TEST(OptimizerSlots, ObjectiveModeSetsCountsAndOptions) {
  testing::WorkDir dir;
  Units units;
  Optimizer opt;
  init_small(opt, units);
  select_problem(opt, kMasterSlot);
  ProblemSlot& s = active_slot(opt);
  s.n = 4;
  s.nncon = 3;
  s.nnjac = 2;
  set_objective_mode(opt, units, 1, kOut);
  EXPECT_EQ(s.nnobj, 4);
  EXPECT_EQ(s.nncon + s.nnjac, 0);
  EXPECT_EQ(opt.options.ival[kSuperbasicsLimit], 5);
  EXPECT_EQ(opt.options.ival[kHessianDimension], 5);
  EXPECT_EQ(opt.options.ival[kPartialPrice], 1);
  set_objective_mode(opt, units, 2, kOut);
  EXPECT_EQ(s.nnobj, 0);
  EXPECT_EQ(opt.options.ival[kSuperbasicsLimit], 1);
  EXPECT_EQ(opt.options.ival[kHessianDimension], 5);
  close_all_units(units);
  EXPECT_EQ(testing::read_lines("MODEL.SCR"),
            (Lines{"      SUPERBASICS LIMIT 5", "      HESSIAN DIMENSION 5",
                   "      PARTIAL PRICE 1", "      SUPERBASICS LIMIT 1"}));
}

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

const SolveCase kSolveCases[] = {
    {"optimal", 1.0, 1.0, 0.0, 10.0, 0, 0, 1.0, ""},
    {"infeasible", 1.0, 5.0, 0.0, 1.0, 0, 1, 0.0, free_line("ERROR: PROBLEM INFEASIBLE")},
    {"unbounded", -1.0, 1.0, 0.0, kInfiniteBound, 0, 2, 0.0,
     free_line("ERROR: PROBLEM UNBOUNDED")},
    {"workspace too small", 1.0, 1.0, 0.0, 10.0, 1, 42, 0.0,
     free_line("ERROR: ERROR CODE: ", 42)},
};

TEST(SolveProblem, HandsBackStatusObjectiveAndSolution) {
  for (const SolveCase& c : kSolveCases) {
    SCOPED_TRACE(c.name);
    testing::WorkDir dir;
    Units units;
    Optimizer opt;
    init_small(opt, units);
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
