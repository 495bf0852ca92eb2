// The options: every phrase of the table, the defaults that unset or out-of-range options take,
// and the options file with its statuses and messages.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "lp/options.h"
#include "run_in_dir.h"

namespace tarvo::lp {
namespace {

using Lines = std::vector<std::string>;

// Every phrase of the option table: the option it sets, that it sets nothing else, and the
// label and value under which the Parameters report shows it.
enum Kind { I, R };

struct PhraseCase {
  const char* phrase;
  Kind kind;
  int option;
  double value;
  const char* label = "";  // "" when the report does not show the option
  int twin = 0;       // a second option of the same kind the phrase sets alike
};

const PhraseCase kPhrases[] = {
    {"CHECK FREQUENCY 45", I, kCheckFrequency, 45, "Check row error"}, {"C 46", I, kCheckFrequency, 46},
    {"CRASH OPTION 2", I, kCrashOption, 2, "Crash option"},
    {"CRASH TOLERANCE 0.2", R, kCrashTolerance, 0.2, "Crash tolerance"},
    {"DEBUG LEVEL 1", I, kDebugLevel, 1, "Debug level"},
    {"EXPAND FREQUENCY 500", I, kExpandFrequency, 500, "Expand frequency"},
    {"FACTORIZATION FREQUENCY 77", I, kFactorizationFrequency, 77, "Factorize basis"},
    {"FEASIBILITY TOLERANCE 1e-7", R, kFeasibilityTolerance, 1e-7, "Feasibility tolerance"},
    {"Feasibility tolerance 1e-8 * tighter 5", R, kFeasibilityTolerance, 1e-8},
    {"feas tol 2.5D-8", R, kFeasibilityTolerance, 2.5e-8},
    {"HESSIAN DIMENSION 12", I, kHessianDimension, 12, "Hessian dimension"}, {"IPARM 1 4", I, kCrashOption, 4},
    {"IPARM 2 123", I, kLinesearchDebug, 123, "Linesearch debug after"}, {"IPARM 3 0", I, kParametersReport, 0},
    {"ITERATIONS LIMIT 500", I, kIterationLimit, 500, "Iteration limit"},
    {"iterations limit 501", I, kIterationLimit, 501}, {"ITERS 600", I, kIterationLimit, 600},
    {"ITNS 700", I, kIterationLimit, 700}, {"Iter 800.9", I, kIterationLimit, 800},
    {"ITN -12.7", I, kIterationLimit, -12},
    {"LINESEARCH TOLERANCE 0.25", R, kLinesearchTolerance, 0.25, "Linesearch tolerance"},
    {"LINESEARCH DEBUG 5", I, kLinesearchDebug, 5}, {"LOG FREQUENCY 7", I, kLogFrequency, 7, "Log frequency"},
    {"LU FACTORIZATION TOLERANCE 20.5", R, kLuFactorTolerance, 20.5, "LU factor tolerance"},
    {"LU FACTOR TOL 21.5", R, kLuFactorTolerance, 21.5},
    {"LU UPDATE TOLERANCE 4.5", R, kLuUpdateTolerance, 4.5, "LU update tolerance"},
    {"LU DENSITY TOLERANCE 0.7", R, kLuDensityTolerance, 0.7},
    {"LU SINGULARITY TOLERANCE 1e-12", R, kLuSingularityTolerance, 1e-12, "LU singularity tol", kLuSingularityTolerance2},
    {"LU SWAP TOLERANCE 1e-3", R, kLuSwapTolerance, 1e-3, "LU swap tolerance"},
    {"MAJOR DAMPING PARAMETER 3.5", R, kMajorDamping, 3.5, "Major damping parameter"},
    {"MAJOR ITERATIONS 60", I, kMajorIterations, 60, "Major iterations limit"},
    {"MINOR DAMPING PARAMETER 1.5", R, kMinorDamping, 1.5, "Minor damping parameter"},
    {"MINOR ITNS 30", I, kMinorIterations, 30, "Minor iterations limit"},
    {"MULTIPLE PRICE 4", I, kMultiplePrice, 4, "Multiple price"},
    {"OPTIMALITY TOLERANCE 1e-5", R, kOptimalityTolerance, 1e-5, "Optimality tolerance"},
    {"PARTIAL PRICE 5", I, kPartialPrice, 5, "Partial  price"},
    {"PENALTY PARAMETER 0.5", R, kPenaltyParameter, 0.5, "Penalty parameter"},
    {"PIVOT TOLERANCE 1e-9", R, kPivotTolerance, 1e-9, "Pivot tolerance"},
    {"PRINT FILE 9", I, kPrintFile, 9, "(Printer)"}, {"PRINT FREQUENCY 8", I, kLogFrequency, 8},
    {"PRI LEV 2", I, kPrintLevel, 2, "Print level..(JFLXB)"},
    {"RADIUS OF CONVERGENCE 0.02", R, kRadiusOfConvergence, 0.02, "Radius of convergence"},
    {"ROWS 5000", I, kRowLimit, 5000, "Row limit"}, {"ROWS TOLERANCE 1e-7", R, kRowTolerance, 1e-7, "Row tolerance"},
    {"RPARM 1 5e19", R, kUnboundedObjective, 5e19}, {"RPARM 3 1e-10", R, kFunctionPrecision, 1e-10},
    {"RPARM 8 1e-5", R, kLuSwapTolerance, 1e-5}, {"SCALE OPTION 1", I, kScaleOption, 1, "Scale option"},
    {"SCALE TOLERANCE 0.8", R, kScaleTolerance, 0.8, "Scale tolerance"},
    {"SOLUTION FILE 12", I, kSolutionFile, 12, "Solution file"},
    {"START OBJECTIVE CHECK AT COLUMN 3", I, kObjectiveCheckStart, 3},
    {"START CONSTRAINT CHECK AT COLUMN 4", I, kConstraintCheckStart, 4},
    {"STOP OBJECTIVE CHECK AT COLUMN 8", I, kObjectiveCheckStop, 8},
    {"STOP CONSTRAINT CHECK AT COLUMN 9", I, kConstraintCheckStop, 9},
    {"SUBSPACE TOLERANCE 0.3", R, kSubspaceTolerance, 0.3, "Subspace tolerance"},
    {"SUPERBASICS LIMIT 40", I, kSuperbasicsLimit, 40, "Superbasics limit"}, {"SUMMARY FILE 14", I, kSummaryFile, 14},
    {"SUMMARY FREQUENCY 25", I, kSummaryFrequency, 25, "Summary frequency"}, {"SUMMARY LEVEL 1", I, kSummaryLevel, 1},
    {"TIMING LEVEL 1", I, kTimingLevel, 1, "Timing level"},
    {"UNBOUNDED OBJECTIVE VALUE 1e15", R, kUnboundedObjective, 1e15, "Unbounded objective val"},
    {"UNBOUNDED STEP SIZE 1e8", R, kUnboundedStep, 1e8, "Unbounded step size"},
    {"VERIFY LEVEL 2", I, kVerifyLevel, 2, "Verify level"},
    {"WEIGHT ON OBJECTIVE 0.5", R, kWeightOnObjective, 0.5, "Weight on objective"},
    {"AIJ TOLERANCE 1e-9", R, kAijTolerance, 1e-9, "Aij tolerance"},
    {"BACKUP BASIS FILE 11", I, kBackupBasisFile, 11, "Backup basis file"},
    {"CENTRAL DIFFERENCE INTERVAL 1e-4", R, kCentralDifferenceInterval, 1e-4, "Central difference int."},
    {"COEFFICIENTS 9000", I, kElementsLimit, 9000}, {"ELEMENTS 8000", I, kElementsLimit, 8000, "Elements limit"},
    {"COLUMNS 7000", I, kColumnLimit, 7000, "Column limit"}, {"COL 7001", I, kColumnLimit, 7001},
    {"CYCLE LIMIT 5", I, kCycleLimit, 5}, {"CYCLE PRINT 2", I, kCyclePrint, 2},
    {"CYCLE TOLERANCE 0.5", R, kCycleTolerance, 0.5},
    {"DERIVATIVE LEVEL 2", I, kDerivativeLevel, 2, "Derivative level"},
    {"DIFFERENCE INTERVAL 1e-6", R, kDifferenceInterval, 1e-6, "Difference interval"},
    {"DUMP FILE 13", I, kDumpFile, 13, "Dump file"},
    {"ERROR MESSAGE LIMIT 20", I, kErrorMessageLimit, 20, "Error message limit"},
    {"FUNCTION PRECISION 1e-12", R, kFunctionPrecision, 1e-12, "Function precision"},
    {"INSERT FILE 15", I, kInsertFile, 15, "Insert file"}, {"LIST LIMIT 3", I, kListLimit, 3, "List limit"},
    {"LOAD FILE 16", I, kLoadFile, 16, "Load file"},
    {"LOWER BOUND -5", R, kLowerBoundDefault, -5, "Lower bound default"},
    {"MPS FILE 17", I, kMpsFile, 17, "MPS file"}, {"NEW BASIS FILE 18", I, kNewBasisFile, 18, "New basis file"},
    {"NONLINEAR CONSTRAINTS 2", I, kNonlinearConstraints, 2, "Nonlinear constraints"},
    {"NONLINEAR OBJECTIVE VARIABLES 3", I, kNonlinearObjectiveVars, 3, "Nonlinear objectiv vars"},
    {"NONLINEAR JACOBIAN VARIABLES 4", I, kNonlinearJacobianVars, 4, "Nonlinear Jacobian vars"},
    {"NONLINEAR VARIABLES 5", I, kNonlinearObjectiveVars, 5, "", kNonlinearJacobianVars},
    {"OLD BASIS FILE 19", I, kOldBasisFile, 19, "Old basis file"}, {"PHANTOM COLUMNS 6", I, kPhantomColumns, 6},
    {"PHANTOM ELEMENTS 7", I, kPhantomElements, 7, "Phantom elements"},
    {"PROBLEM NUMBER 21", I, kProblemNumber, 21, "Problem number"},
    {"PUNCH FILE 22", I, kPunchFile, 22, "Punch file"}, {"REPORT FILE 24", I, kReportFile, 24},
    {"SAVE FREQUENCY 33", I, kSaveFrequency, 33, "Save new basis map"},
    {"UPPER BOUND 1e6", R, kUpperBoundDefault, 1e6, "Upper bound default"},
    {"WORKSPACE (USER) 100", I, kWorkspaceUser, 100, "Workspace (user)"},
    {"workspace (total) 2000", I, kWorkspaceTotal, 2000, "Workspace (total)"},
    // Phrases without a number set one integer option to a fixed value.
    {"COMPLETION PARTIAL", I, kCompletionFull, 0}, {"COMPLETION FULL", I, kCompletionFull, 1},
    {"LAGRANGIAN NO", I, kLagrangian, 0}, {"LAGRANGIAN YES", I, kLagrangian, 1}, {"SCALE NO", I, kScaleOption, 0},
    {"SCALE YES", I, kScaleOption, -1}, {"SCALE LINEAR", I, kScaleOption, 1}, {"SCALE NONLINEAR", I, kScaleOption, 2},
    {"SCALE ALL", I, kScaleOption, 2}, {"SCALE", I, kScaleOption, -1}, {"SCALE PRINT", I, kScalePrint, 1},
    {"SOLUTION NO", I, kSolutionPrint, 0}, {"SOLUTION YES", I, kSolutionPrint, 2},
    {"START ASSIGNED NONLINEARS ELIGIBLE FOR CRASH", I, kStartColumnClass, 1},
    {"START ASSIGNED NONLINEARS SUPERBASIC", I, kStartColumnClass, 2},
    {"START ASSIGNED NONLINEARS BASIC", I, kStartColumnClass, 3},
    {"START ASSIGNED NONLINEARS NONBASIC", I, kStartColumnClass, 4},
    {"VERIFY OBJECTIVE GRADIENTS", I, kVerifyLevel, 1}, {"VERIFY CONSTRAINT GRADIENTS", I, kVerifyLevel, 2},
    {"VERIFY GRADIENTS", I, kVerifyLevel, 3}, {"VERIFY YES", I, kVerifyLevel, 3}, {"VERIFY NO", I, kVerifyLevel, 0},
    {"VERIFY", I, kVerifyLevel, 3}, {"JACOBIAN SPARSE", I, kJacobianDense, 0},
    {"JACOBIAN DENSE", I, kJacobianDense, 1}, {"MAXIMIZE", I, kObjectiveSense, -1},
    {"MINIMIZE", I, kObjectiveSense, 1},
};

constexpr int kReportUnit = 30;

std::string dotted(const std::string& label) {
  std::string text = " " + label;
  text.resize(24, '.');
  return text;
}

// The value the report shows after the label; NaN when the label is missing.
double reported_value(const std::vector<std::string>& lines, const std::string& label) {
  for (const std::string& line : lines) {
    const std::size_t at = line.find(dotted(label));
    if (at != std::string::npos) return std::stod(line.substr(at + 24, 10));
  }
  return std::nan("");
}

void assign(Options& o, Kind kind, int option, double value) {
  if (kind == I) {
    o.ival[option] = static_cast<int>(value);
  } else {
    o.rval[option] = value;
  }
}

// The options (as "I12", "R5") whose values differ between the two sets.
std::vector<std::string> changed(const Options& a, const Options& b) {
  std::vector<std::string> diff;
  for (int k = 1; k < kIntOptionCount; ++k) {
    if (a.ival[k] != b.ival[k]) diff.push_back("I" + std::to_string(k));
  }
  for (int k = 1; k < kRealOptionCount; ++k) {
    if (a.rval[k] != b.rval[k]) diff.push_back("R" + std::to_string(k));
  }
  return diff;
}

TEST(OptionPhrases, EachPhraseSetsOnlyItsOptionAndIsReportedUnderItsLabel) {
  testing::WorkDir dir;
  for (const PhraseCase& c : kPhrases) {
    SCOPED_TRACE(c.phrase);
    Units units;
    Options o;
    apply_defaults(o, units, 1);
    const Options before = o;
    ASSERT_EQ(set_option(o, units, c.phrase, 0, 0), 0);
    EXPECT_EQ(c.kind == I ? o.ival[c.option] : o.rval[c.option], c.value);

    Options expected = before;
    assign(expected, c.kind, c.option, c.value);
    if (c.twin != 0) assign(expected, c.kind, c.twin, c.value);
    EXPECT_EQ(changed(expected, o), std::vector<std::string>{});

    if (*c.label == '\0') continue;
    if (o.ival[kPrintFile] <= 0) o.ival[kPrintFile] = kReportUnit;
    if (o.ival[kPrintLevel] <= 0) o.ival[kPrintLevel] = 1;
    open_unit(units, o.ival[kPrintFile], "report.txt", OpenStatus::unknown);
    apply_defaults(o, units, 2);
    apply_defaults(o, units, 3);
    close_all_units(units);
    EXPECT_NEAR(reported_value(testing::read_lines("report.txt"), c.label), c.value,
                0.005 * std::fabs(c.value));
  }
}

TEST(OptionPhrases, SetNamesComeFromTheSecondWord) {
  Units units;
  Options o;
  apply_defaults(o, units, 1);
  for (const char* phrase : {"OBJECTIVE cost", "RHS RHS1", "RANGES rng", "BOUNDS BOUNDSETLONG"}) {
    EXPECT_EQ(set_option(o, units, phrase, 0, 0), 0);
  }
  EXPECT_EQ(name_view(o.objective_name), "COST    ");
  EXPECT_EQ(name_view(o.rhs_name), "RHS1    ");
  EXPECT_EQ(name_view(o.ranges_name), "RNG     ");
  EXPECT_EQ(name_view(o.bounds_name), "BOUNDSET");
  set_option(o, units, "DEFAULTS", 0, 0);
  EXPECT_EQ(o.rhs_name, Name8{});
}

// A positive number on a SCALE phrase other than SCALE OPTION is the scale tolerance; a number
// where a second keyword may stand is the phrase's value (SCALE 0.5 is SCALE alone).
TEST(OptionPhrases, ScaleTakesAPositiveNumberAsItsTolerance) {
  Units units;
  Options o;
  apply_defaults(o, units, 1);
  ASSERT_EQ(set_option(o, units, "SCALE YES 0.7", 0, 0), 0);
  EXPECT_EQ(o.ival[kScaleOption], -1);
  EXPECT_EQ(o.rval[kScaleTolerance], 0.7);
  ASSERT_EQ(set_option(o, units, "SCALE OPTION 2", 0, 0), 0);
  EXPECT_EQ(o.rval[kScaleTolerance], 0.7);
  ASSERT_EQ(set_option(o, units, "SCALE 0.5", 0, 0), 0);
  EXPECT_EQ(o.ival[kScaleOption], -1);
  EXPECT_EQ(o.rval[kScaleTolerance], 0.5);
  ASSERT_EQ(set_option(o, units, "SCALE -3", 0, 0), 0);
  EXPECT_EQ(o.rval[kScaleTolerance], 0.5);
  ASSERT_EQ(set_option(o, units, "VERIFY NO", 0, 0), 0);
  ASSERT_EQ(set_option(o, units, "VERIFY 2", 0, 0), 0);
  EXPECT_EQ(o.ival[kVerifyLevel], 3);
  EXPECT_EQ(set_option(o, units, "SCALE BOGUS 0.5", 0, 0), 1);
}

// What apply_defaults(2) gives options that are unset or out of range, for linear and nonlinear
// problems.
struct DefaultCase {
  std::vector<const char*> phrases;
  int nnobj;  // nonlinear objective variables of the problem
  int nncon;  // nonlinear constraints
  Kind kind;
  int option;
  double expected;
};

const double kEps = std::numeric_limits<double>::epsilon();

const DefaultCase kDefaultCases[] = {
    {{}, 0, 0, I, kCheckFrequency, 60}, {{"CHECK FREQUENCY 0"}, 0, 0, I, kCheckFrequency, 99999999},
    {{"UPPER BOUND 0", "LOWER BOUND 5"}, 0, 0, R, kLowerBoundDefault, 0},
    {{"UPPER BOUND 0", "LOWER BOUND 5"}, 0, 0, R, kUpperBoundDefault, 5},
    {{}, 0, 0, R, kUpperBoundDefault, kInfiniteBound}, {{}, 0, 0, I, kRowLimit, 100},
    {{"ROWS 50"}, 0, 0, I, kColumnLimit, 150}, {{"ROWS 50"}, 0, 0, I, kElementsLimit, 750},
    {{"ROWS 50"}, 0, 0, I, kIterationLimit, 150}, {{"ROWS 50"}, 7, 0, I, kIterationLimit, 220},
    {{"ROWS 50", "ITERATIONS 0"}, 0, 0, I, kIterationLimit, 0}, {{}, 0, 0, I, kSuperbasicsLimit, 1},
    {{}, 0, 0, I, kHessianDimension, 0}, {{}, 5, 0, I, kSuperbasicsLimit, 50},
    {{}, 5, 0, I, kHessianDimension, 50}, {{"HESSIAN DIMENSION 80"}, 5, 0, I, kSuperbasicsLimit, 80},
    {{"SUPERBASICS LIMIT 30"}, 5, 0, I, kHessianDimension, 30},
    {{"SUPERBASICS LIMIT 10", "HESSIAN DIMENSION 20"}, 5, 0, I, kSuperbasicsLimit, 20},
    {{"ROWS 5", "COLUMNS 5", "SUPERBASICS LIMIT 100"}, 5, 0, I, kSuperbasicsLimit, 11},
    {{}, 0, 0, I, kPartialPrice, 10}, {{"PARTIAL PRICE 0"}, 5, 0, I, kPartialPrice, 1},
    {{}, 0, 0, I, kFactorizationFrequency, 100}, {{}, 5, 0, I, kFactorizationFrequency, 50},
    {{"LU FACTOR TOLERANCE 0.5"}, 0, 0, R, kLuFactorTolerance, 100}, {{}, 5, 0, R, kLuFactorTolerance, 5},
    {{}, 5, 0, R, kLuUpdateTolerance, 5}, {{"SCALE YES"}, 0, 0, I, kScaleOption, 2},
    {{"SCALE YES"}, 5, 0, I, kScaleOption, 1}, {{"CRASH TOLERANCE 1"}, 0, 0, R, kCrashTolerance, 0.1},
    {{"SUBSPACE TOLERANCE 1.5"}, 0, 0, R, kSubspaceTolerance, 0.5}, {{}, 0, 0, R, kOptimalityTolerance, 1e-6},
    {{"FUNCTION PRECISION 1e-10"}, 0, 0, R, kOptimalityTolerance, 1e-5},
    {{"FUNCTION PRECISION 1e-12"}, 0, 0, R, kDifferenceInterval, 1e-6},
    {{}, 0, 0, R, kFunctionPrecision, std::pow(kEps, 0.8)},
    {{}, 0, 0, R, kPivotTolerance, std::pow(kEps, 0.67)},
    {{}, 0, 0, R, kLuSingularityTolerance2, std::pow(kEps, 0.67)},
    {{"RADIUS OF CONVERGENCE 1e-9"}, 0, 0, R, kRadiusOfConvergence, 0.1},
    {{"ROWS TOLERANCE 1e-17"}, 0, 0, R, kRowTolerance, 1e-6},
    {{"NEW BASIS FILE 11", "BACKUP BASIS FILE 11"}, 0, 0, I, kBackupBasisFile, 0},
    {{}, 0, 0, I, kCompletionFull, 1}, {{}, 0, 2, I, kCompletionFull, 0},
    {{}, 6, 0, I, kObjectiveCheckStop, 6}, {{}, 0, 0, R, kInternalValue5, 1e-12},
};

TEST(OptionDefaults, UnsetAndOutOfRangeOptionsTakeTheirDefaults) {
  for (const DefaultCase& c : kDefaultCases) {
    Units units;
    Options o;
    apply_defaults(o, units, 1);
    for (const char* phrase : c.phrases) ASSERT_EQ(set_option(o, units, phrase, 0, 0), 0);
    set_problem_counts(o, c.nncon, c.nnobj, 0);
    apply_defaults(o, units, 2);
    const double value = c.kind == I ? o.ival[c.option] : o.rval[c.option];
    EXPECT_NEAR(value, c.expected, 1e-12 * std::fabs(c.expected))
        << (c.phrases.empty() ? "(none)" : c.phrases.front()) << " option " << c.option
        << " nnobj " << c.nnobj;
  }
}

TEST(OptionDefaults, SetOptionsKeepTheirValuesFromSolveToSolve) {
  Units units;
  Options o;
  apply_defaults(o, units, 1);
  set_option(o, units, "PARTIAL PRICE 7", 0, 0);
  apply_defaults(o, units, 2);
  set_problem_counts(o, 0, 4, 0);
  apply_defaults(o, units, 2);
  EXPECT_EQ(o.ival[kPartialPrice], 7);
  EXPECT_EQ(o.nonlinear_variables, 4);
}

// Reading an options file: the statuses, the messages on the print and summary units, and
// records of any shape.
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
  Lines absent_print_lines = {};
};

const std::string kPad66(66, ' ');

const FileCase kFileCases[] = {
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
    // The look-for-BEGIN block shows the first stray record only.
    {"stray records before BEGIN", "ROWS 1\nROWS 2\nBEGIN\nEND\n", 0, {" ---->ROWS 1"}, {}, {}, {" ---->ROWS 2"}},
    {"ENDRUN first", "*\nENDRUN now  \nBEGIN\nEND\n", 4, {"      ENDRUN now"}, {" ENDRUN now"}, {}},
    {"skipped set", "SKIP\nROWS 1\nEND\nBegin\nROWS 2\nEND\n", 0, {}, {}, {{kRowLimit, 2}}},
    // Skipping ends at BEGIN only, after SKIP and after stray records alike.
    {"ENDRUN while skipping", "SKIP\nROWS 5\nENDRUN\nBEGIN\nROWS 3000\nEND\n", 0, {}, {},
     {{kRowLimit, 3000}}, {"      ENDRUN"}},
    {"ENDRUN after stray records", "ROWS 5\nENDRUN\nBEGIN\nROWS 3000\nEND\n", 0, {}, {},
     {{kRowLimit, 3000}}, {"      ENDRUN"}},
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

TEST(OptionsFile, StatusMessagesAndOptions) {
  testing::WorkDir dir;
  for (const FileCase& c : kFileCases) {
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
    for (const std::string& line : c.print_lines) EXPECT_TRUE(testing::has_line(print, line)) << line;
    for (const std::string& line : c.absent_print_lines) EXPECT_FALSE(testing::has_line(print, line)) << line;
    for (const std::string& line : c.summary_lines) EXPECT_TRUE(testing::has_line(summary, line)) << line;
    for (auto [option, value] : c.int_options) EXPECT_EQ(o.ival[option], value) << option;
  }
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
