// Reading an options file: the statuses, the messages on the print and summary units, and
// records of any shape.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "lp/options.h"
#include "work_dir.h"

namespace tarvo::lp {
namespace {

using Lines = std::vector<std::string>;
using namespace std::string_literals;

constexpr int kSpecs = 4;
constexpr int kPrint = 23;
constexpr int kSummary = 24;

struct FileCase {
  const char* name;
  std::string text;
  int status;
  Lines print_lines;    // each must appear on the print unit
  Lines summary_lines;  // each must appear on the summary unit
  std::vector<std::pair<int, int>> int_options;  // option, value after the read
};

const std::string kPad66(66, ' ');

const FileCase kCases[] = {
    {"plain set", "* comment first\n\nBEGIN run\n ROWS 5000\nEND\n", 0,
     {"      BEGIN run", "       ROWS 5000", "      END"}, {" BEGIN run"}, {{kRowLimit, 5000}}},
    {"unknown keyword", "BEGIN\nFOO 5\nEND\n", 1,
     {" XXX  Keyword not recognized:         FOO"},
     {" FOO 5", " XXX  Keyword not recognized:         FOO"}, {}},
    {"unknown second keyword", "BEGIN\nLU BOGUS TOL 1\nPRINT\nEND\n", 2,
     {" XXX  Second keyword not recognized:  BOGUS", " XXX  Second keyword not recognized:  "},
     {" LU BOGUS TOL 1", " PRINT"}, {}},
    {"unknown fourth keyword", "BEGIN\nSTART ASSIGNED NONLINEARS FOO\nEND\n", 1,
     {" XXX  Fourth keyword not recognized:  FOO"}, {}, {{kStartColumnClass, 2}}},
    {"parm subscript", "BEGIN\nIPARM 31 5\nRPARM X 1.0\nIPARM 30 7\nEND\n", 2,
     {" XXX  The parm subscript is out of range:        31",
      " XXX  The parm subscript is out of range:         0"},
     {}, {{kSummaryLevel, 7}}},
    {"no BEGIN", "ROWS 5000\nCOLUMNS 7\n", 3,
     {"", " XXX  Error while looking for a SPECS file on unit      4",
      " XXX  The file should start with Begin, Skip or Endrun",
      " XXX  but the first record found was the following:", " ---->ROWS 5000",
      " XXX  Continuing to look for SPECS file...",
      " XXX  End-of-file encountered while looking for a SPECS file on unit     4"},
     {" ---->ROWS 5000"}, {}},
    {"ENDRUN first", "*\nENDRUN now  \nBEGIN\nEND\n", 4, {"      ENDRUN now"}, {" ENDRUN now"}, {}},
    {"skipped set", "SKIP\nROWS 1\nEND\nBegin\nROWS 2\nEND\n", 0, {}, {}, {{kRowLimit, 2}}},
    {"end of file inside the set", "BEGIN\nROWS 5\n", 2,
     {" XXX  End-of-file encountered while processing a SPECS file on unit     4"}, {},
     {{kRowLimit, 5}}},
    {"record cut at column 72", "BEGIN\nROWS" + kPad66 + "12345\nEND\n", 0, {}, {},
     {{kRowLimit, 12}}},
    {"tabs and lower case", "begin\n\trows\t77\n  iterations limit 500 * not 600\nend\n", 0, {},
     {}, {{kRowLimit, 77}, {kIterationLimit, 500}}},
    {"binary bytes", "BEGIN\n\x01\xff\x00ROWS 5\n\x7f\nEND\n"s, 2, {}, {}, {}},
    {"missing and oversized values", "BEGIN\nROWS\nCOLUMNS 123456789\nELEMENTS 1e999\nEND\n", 0,
     {}, {}, {{kRowLimit, 0}, {kColumnLimit, 0}, {kElementsLimit, 0}}},
    {"DEFAULTS mid-set", "BEGIN\nROWS 5000\nDEFAULTS\nCOLUMNS 7\nEND\n", 0, {}, {},
     {{kRowLimit, kUnsetInt}, {kColumnLimit, 7}, {kPrintFile, kPrint}}},
};

bool contains(const Lines& lines, const std::string& wanted) {
  return testing::has_line(lines, wanted);
}

TEST(OptionsFile, StatusMessagesAndOptions) {
  testing::WorkDir dir;
  for (const FileCase& c : kCases) {
    SCOPED_TRACE(c.name);
    testing::write_file("OPTIONS", c.text);
    Units units;
    Options o;
    ASSERT_TRUE(open_unit(units, kSpecs, "OPTIONS", OpenStatus::old_file));
    open_unit(units, kPrint, "PRINT", OpenStatus::unknown);
    open_unit(units, kSummary, "SUMMARY", OpenStatus::unknown);
    EXPECT_EQ(read_specs(o, units, kSpecs, kPrint, kSummary, 0), c.status);
    close_all_units(units);
    const Lines print = testing::read_lines("PRINT");
    const Lines summary = testing::read_lines("SUMMARY");
    for (const std::string& line : c.print_lines) EXPECT_TRUE(contains(print, line)) << line;
    for (const std::string& line : c.summary_lines) EXPECT_TRUE(contains(summary, line)) << line;
    for (auto [option, value] : c.int_options) EXPECT_EQ(o.ival[option], value) << option;
  }
}

TEST(OptionsFile, LookForBeginBlockIsWrittenOnce) {
  testing::WorkDir dir;
  testing::write_file("OPTIONS", "ROWS 1\nROWS 2\nBEGIN\nEND\n");
  Units units;
  Options o;
  open_unit(units, kSpecs, "OPTIONS", OpenStatus::old_file);
  open_unit(units, kPrint, "PRINT", OpenStatus::unknown);
  EXPECT_EQ(read_specs(o, units, kSpecs, kPrint, 0, 0), 0);
  close_all_units(units);
  const Lines print = testing::read_lines("PRINT");
  EXPECT_TRUE(contains(print, " ---->ROWS 1"));
  EXPECT_FALSE(contains(print, " ---->ROWS 2"));
}

TEST(OptionsFile, UnitsOutsideTheRangeAndUnitZero) {
  Units units;
  Options o;
  EXPECT_EQ(read_specs(o, units, 100, 0, 0, 0), kOptionsBadUnit);
  EXPECT_EQ(read_specs(o, units, -1, 0, 0, 0), kOptionsBadUnit);
  o.ival[kRowLimit] = 5;
  EXPECT_EQ(read_specs(o, units, 0, 7, 8, 900), kOptionsRead);
  EXPECT_EQ(o.ival[kRowLimit], kUnsetInt);
  EXPECT_EQ(o.ival[kPrintFile], 7);
  EXPECT_EQ(o.ival[kSummaryFile], 8);
  EXPECT_EQ(o.ival[kWorkspaceTotal], 900);
  EXPECT_EQ(read_specs(o, units, 9, 0, 0, 0), kOptionsEndOfFileBeforeBegin);  // never opened
}

}  // namespace
}  // namespace tarvo::lp
