// Initialization from SIMPLEX.SPC, the problem slots and the objective mode (the regularization
// callback is checked through the regularized solves of simplex_quadratic_test.cpp).
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common/free_format.h"
#include "lp/optimizer.h"
#include "run_in_dir.h"

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

const InitCase kCases[] = {
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
  for (const InitCase& c : kCases) {
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

TEST(OptimizerSlots, ObjectiveModeSetsCountsAndOptions) {
  testing::WorkDir dir;
  testing::write_file("SIMPLEX.SPC", "BEGIN\nROWS 4\nCOLUMNS 3\nELEMENTS 10\nEND\n");
  Units units;
  Optimizer opt;
  open_unit(units, kOut, "MODEL.SCR", OpenStatus::unknown);
  optimizer_init(opt, units, 0, 0, 0);
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

}  // namespace
}  // namespace tarvo::lp
