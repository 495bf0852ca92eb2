// Laid-out records: every report's columns depend on these fields.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "common/record_format.h"

namespace tarvo {
namespace {

using sv = std::string_view;
constexpr double kInf = std::numeric_limits<double>::infinity();

struct RecordCase {
  const char* list;
  std::vector<RecordItem> items;
  std::vector<std::string> lines;
};

void expect_records(const std::vector<RecordCase>& cases) {
  for (const RecordCase& c : cases) {
    EXPECT_EQ(format_record(c.list, c.items), c.lines) << c.list;
  }
}

TEST(RecordOutput, TextFields) {
  expect_records({
      {"(a)", {sv("hello")}, {"hello"}}, {"(a3)", {sv("hello")}, {"hel"}}, {"(a8)", {sv("ab")}, {"ab      "}},
      {"(a, 10x, a)", {sv("NAME"), sv("PROB")}, {"NAME" "          " "PROB"}},
      {"(1x, a1, 2x, 2a4)", {sv("E"), sv("COST"), sv("ROW ")}, {" E  COSTROW "}},
      {"(1x,a32,1x,f15.2)", {sv("execution time (sec):"), 12.345},
       {" execution time (sec):           " " " "          12.35"}},  // 12.34500000000000064 rounds up
      {"(a4,  a8, 2x, 2a4, f8.0     )", {sv(" UP "), sv("BND     "), sv("X1  "), sv("    "), 1.0},
       {" UP " "BND     " "  " "X1  " "    " "      1."}},
  });
}

TEST(RecordOutput, IntegerFields) {
  expect_records({
      {"(i5)", {42LL}, {"   42"}}, {"(i5)", {-42LL}, {"  -42"}}, {"(i3)", {-99LL}, {"-99"}},
      {"(i2)", {123LL}, {"**"}}, {"(i2)", {-10LL}, {"**"}}, {"(i1)", {0LL}, {"0"}},
      {"(i5.3)", {7LL}, {"  007"}}, {"(i5.3)", {-7LL}, {" -007"}}, {"(i4.3)", {-7LL}, {"-007"}},
      {"(i3.3)", {-7LL}, {"***"}}, {"(i4.0)", {0LL}, {"    "}},
      {"(i20)", {LLONG_MIN}, {"-9223372036854775808"}}, {"(i19)", {LLONG_MIN}, {"*******************"}},
      {"(2(1x,i1))", {3LL, 0LL}, {" 3 0"}}, {"(i7,4x,a)", {12LL, sv("line text")}, {"     12    line text"}},
      {"(a1,i7)", {sv("x"), 7LL}, {"x      7"}},
  });
}

TEST(RecordOutput, FixedFields) {
  expect_records({
      {"(f8.0)", {1.0}, {"      1."}}, {"(f8.0)", {0.0}, {"      0."}}, {"(f8.0)", {-1.0}, {"     -1."}},
      {"(f8.0)", {-0.0}, {"      0."}}, {"(f5.2)", {0.5}, {" 0.50"}}, {"(f4.2)", {0.5}, {"0.50"}},
      {"(f3.2)", {0.5}, {".50"}},      // no room for the 0
      {"(f2.2)", {0.5}, {"**"}}, {"(f4.2)", {-0.5}, {"-.50"}}, {"(f3.2)", {-0.5}, {"***"}},
      {"(f2.0)", {0.4}, {"0."}},
      {"(f1.0)", {0.4}, {"*"}},        // "." alone holds no digit
      {"(f6.2)", {-0.001}, {"  0.00"}}, // rounds to zero: no minus
      {"(f6.2)", {-0.005}, {" -0.01"}}, // the binary value lies just beyond the tie
      {"(f6.2)", {0.125}, {"  0.12"}},  // exact ties go to even
      {"(f6.2)", {0.375}, {"  0.38"}}, {"(f4.0)", {0.5}, {"  0."}}, {"(f4.0)", {1.5}, {"  2."}},
      {"(f4.0)", {2.5}, {"  2."}}, {"(f4.0)", {-3.5}, {" -4."}},
      {"(f5.1)", {99.95}, {"100.0"}},   // 99.9500000000000028... carries
      {"(f4.1)", {99.95}, {"****"}},
      {"(f4.1)", {9.95}, {" 9.9"}},     // 9.9499999999999992...
      {"(f15.2)", {1.0e300}, {"***************"}}, {"(f12.2)", {1.0e20f}, {"************"}},
      {"(f25.2)", {1.0e20f}, {" 100000002004087734272.00"}}, {"(f10.3)", {1.0e-300}, {"     0.000"}},
      {"(f10.3)", {-std::numeric_limits<double>::denorm_min()}, {"     0.000"}},
      {"(f57.55)", {0.1}, {"0.1000000000000000055511151231257827021181583404541015625"}},  // exact
      {"(f6.3)", {0.0006}, {" 0.001"}},  // rounds up into the place above the first digit
      {"(f4.0)", {0.51}, {"  1."}}, {"(f6.2)", {0.0009}, {"  0.00"}},  // two places above it
      {"(f10.3)", {2LL}, {"     2.000"}},  // an integer item goes into f as a real
      {"(0p,f10.3,f10.2)", {1.25, 2.0}, {"     1.250" "      2.00"}},
  });
}

TEST(RecordOutput, ScaleFactorWithFixed) {
  expect_records({
      {"(1p,f8.2)", {1.2345}, {"   12.34"}},      // 1.23449999... shifted exactly, not multiplied
      {"(-1p,f8.3)", {123.456}, {"  12.346"}},
      {"(2p,f8.1)", {0.0123}, {"     1.2"}},
      {"(1pe10.2,f8.2)", {1.0, 1.0}, {"  1.00E+00" "   10.00"}},  // the factor stays in force
      {"(1pe10.2,0p,f8.2)", {1.0, 1.0}, {"  1.00E+00" "    1.00"}},
  });
}

TEST(RecordOutput, ExponentFields) {
  expect_records({
      {"(e12.4)", {12345.678}, {"  0.1235E+05"}}, {"(e10.4)", {12345.678}, {"0.1235E+05"}},
      {"(e9.4)", {12345.678}, {".1235E+05"}}, {"(e8.4)", {12345.678}, {"********"}},
      {"(e12.4)", {-12345.678}, {" -0.1235E+05"}}, {"(e10.4)", {-12345.678}, {"-.1235E+05"}},
      {"(e12.4)", {0.0}, {"  0.0000E+00"}}, {"(e12.4)", {-0.0}, {"  0.0000E+00"}},
      {"(e9.1)", {0.96}, {"  0.1E+01"}}, {"(e12.3)", {1.0e100}, {"   0.100+101"}},
      {"(e12.3)", {1.0e-300}, {"   0.100-299"}},
      {"(e12.4)", {std::numeric_limits<double>::max()}, {"  0.1798+309"}},
      {"(e12.3e3)", {1.0e100}, {"  0.100E+101"}}, {"(e12.3e1)", {5.0}, {"    0.500E+1"}},
      {"(e12.3e1)", {1.0e100}, {"************"}}, {"(1pe12.4)", {12345.678}, {"  1.2346E+04"}},
      {"(1pe12.4)", {3LL}, {"  3.0000E+00"}}, {"(1pe15.5)", {-0.000123}, {"   -1.23000E-04"}},
      {"(1pe15.5)", {0.0}, {"    0.00000E+00"}}, {"(1pe15.5)", {1.0e20f}, {"    1.00000E+20"}},
      {"(1pe20.12)", {1.0e20f}, {"  1.000000020041E+20"}}, {"(1pe9.1)", {0.96}, {"  9.6E-01"}},
      {"(1pe9.1)", {0.996}, {"  1.0E+00"}},  // the carry moves the exponent
      {"(1pe8.1)", {-0.996}, {"-1.0E+00"}}, {"(1pe7.1)", {-0.996}, {"*******"}},
      {"(1pe12.3)", {1.0e-100}, {"   1.000-100"}},
      {"(1pe14.5)", {std::numeric_limits<double>::denorm_min()}, {"   4.94066-324"}},
      {"(2pe12.4)", {12345.678}, {"  12.346E+03"}}, {"(-1pe12.4)", {12345.678}, {"  0.0123E+06"}},
      {"(-4pe12.4)", {12345.678}, {"************"}},  // |k| must stay below d
      {"(6pe12.4)", {12345.678}, {"************"}},   // k must stay below d + 2
  });
}

TEST(RecordOutput, SpecialValuesAndMismatchedItems) {
  expect_records({
      {"(f10.2)", {kInf}, {"  Infinity"}}, {"(f6.2)", {-kInf}, {"  -Inf"}}, {"(f3.2)", {kInf}, {"Inf"}},
      {"(f2.2)", {kInf}, {"**"}}, {"(e10.2)", {std::nan("")}, {"       NaN"}},
      {"(1pe15.5)", {-kInf}, {"      -Infinity"}}, {"(4l1)", {1LL, 0LL, 5LL, 0LL}, {"TFTF"}},
      {"(l3)", {0LL}, {"  F"}}, {"(i5)", {2.5}, {"*****"}}, {"(a4)", {7LL}, {"****"}}, {"(a)", {1.0}, {"*"}},
      {"(f6.1)", {sv("x")}, {"******"}}, {"(l2)", {sv("T")}, {"**"}},
  });
}

TEST(RecordOutput, LinesGroupsAndRunningOutOfItems) {
  expect_records({
      {"(/,1x,a7,1x,a8,2(1x,a15),/)",
       {sv("      #"), sv("  COLUMN"), sv("          VALUE"), sv("   REDUCED COST")},
       {"", " " "      #" " " "  COLUMN" " " "          VALUE" " " "   REDUCED COST", ""}},
      {"(1x, a16, 1x, 1pe15.5, /)", {sv("zsub:           "), 2.5},
       {" zsub:           " " " "    2.50000E+00", ""}},
      {"(1x,i7,1x,a8,2(1x,1pe20.12),2(1x,i1))", {12LL, sv("X1      "), 1.0, 0.0, 3LL, 0LL},
       {" " "     12" " " "X1      " " " "  1.000000000000E+00" " " "  0.000000000000E+00" " 3 0"}},
      {"(/\" Problem name\",17x,2a4/\" No. of iterations\",i20,2x,\" Objective value\",1p,e22.10)",
       {sv("PROB"), sv("LEM1"), 42LL, 1234.5},
       {"",
        " Problem name" "                 " "PROBLEM1",
        " No. of iterations" "                  42" "  " " Objective value" "      1.2345000000E+03"}},
      {"(i6,2x,a4,a8,2x,a8,2x,1pe12.5,3x,a8,2x,1pe12.5)",
       {12LL, sv("RHS "), sv("NAME    "), sv("ROW1    "), 1.5, sv("        "), 0.0},
       {"    12" "  " "RHS " "NAME    " "  " "ROW1    " "  " " 1.50000E+00" "   " "        " "  "
        " 0.00000E+00"}},
      {"(1p,i7,e9.1,i6,e10.3,e16.8,i7)", {100LL, 1.5e-3, 2LL, 0.125, -12.5, 45LL},
       {"    100" "  1.5E-03" "     2" " 1.250E-01" " -1.25000000E+01" "     45"}},
      {"(4x, 2a4, 2x, 2a4, 1p, e14.5)", {sv("COL1"), sv("    "), sv("ROW2"), sv("    "), -2.5},
       {"    " "COL1    " "  " "ROW2    " "  -2.50000E+00"}},
      // Items run out: output stops at the first data descriptor without one.
      {"(1x,a32,1x,f15.2)", {}, {" "}},
      {"(1x,i6,3(1x,e20.4))", {1LL, 5.0}, {" " "     1" " " "          0.5000E+01" " "}},
      {"(3(i2,','))", {1LL, 2LL}, {" 1, 2,"}}, {"(i2,' end')", {1LL}, {" 1 end"}},
      {"(i2,:,' end')", {1LL}, {" 1"}}, {"(i1,2/i1)", {1LL, 2LL}, {"1", "", "2"}}, {"(a)", {}, {""}},
      // Items left at the end of the list: a new line from the last top-level group.
      {"(1x,2i3)", {1LL, 2LL, 3LL, 4LL, 5LL}, {"   1  2", "   3  4", "   5"}},
      {"(a,2(i2))", {sv("x"), 1LL, 2LL, 3LL, 4LL, 5LL}, {"x 1 2", " 3 4", " 5"}},
      {"('only text')", {1LL}, {"only text"}},
      {"(1pe9.1,2(i2))", {1.0, 1LL, 2LL, 3.0}, {"  1.0E+00 1 2", "**"}},
      // Blanks and letter case inside the list do not matter.
      {"( 1X, A4, F8 . 0     )", {sv("ab"), 2.0}, {" ab        2."}}, {"((a))", {sv("nested")}, {"nested"}},
      {"('it''s',a)", {sv("!")}, {"it's!"}},
  });
}

TEST(RecordOutput, BadListsShowInTheOutput) {
  for (const char* list : {"1x,a4", "(q5)", "(i)", "(f8)", "(e12)", "(e9.1e0)", "(a0)", "('abc)",
                           "(i5", "(i5))", "(0x)", "(p)", "(-2x)", "(2bn)", "(b)", "(3('x')",
                           "(100001x)", "(2'x')", "((((((((((((((((((((((((((((((((((i1))))))"
                           "))))))))))))))))))))))))))))"}) {
    const std::vector<std::string> lines = format_record(list, {});
    ASSERT_EQ(lines.size(), 1u) << list;
    EXPECT_EQ(lines[0].rfind("*** bad edit list", 0), 0u) << list;
  }
}

}  // namespace
}  // namespace tarvo
