// Every phrase of the option table: the option it sets, that it sets nothing else, and the
// label and value under which the Parameters report shows it.
#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "lp/options.h"
#include "work_dir.h"

namespace tarvo::lp {
namespace {

enum Kind { I, R };

struct PhraseCase {
  const char* phrase;
  Kind kind;
  int option;
  double value;
  const char* label;  // "" when the report does not show the option
  int twin = 0;       // a second option of the same kind the phrase sets alike
};

const PhraseCase kPhrases[] = {
    {"CHECK FREQUENCY 45", I, kCheckFrequency, 45, "Check row error"}, {"C 46", I, kCheckFrequency, 46, ""},
    {"CRASH OPTION 2", I, kCrashOption, 2, "Crash option"},
    {"CRASH TOLERANCE 0.2", R, kCrashTolerance, 0.2, "Crash tolerance"},
    {"DEBUG LEVEL 1", I, kDebugLevel, 1, "Debug level"},
    {"EXPAND FREQUENCY 500", I, kExpandFrequency, 500, "Expand frequency"},
    {"FACTORIZATION FREQUENCY 77", I, kFactorizationFrequency, 77, "Factorize basis"},
    {"FEASIBILITY TOLERANCE 1e-7", R, kFeasibilityTolerance, 1e-7, "Feasibility tolerance"},
    {"Feasibility tolerance 1e-8 * tighter 5", R, kFeasibilityTolerance, 1e-8, ""},
    {"feas tol 2.5D-8", R, kFeasibilityTolerance, 2.5e-8, ""},
    {"HESSIAN DIMENSION 12", I, kHessianDimension, 12, "Hessian dimension"},
    {"IPARM 1 4", I, kCrashOption, 4, ""},
    {"IPARM 2 123", I, kLinesearchDebug, 123, "Linesearch debug after"},
    {"IPARM 3 0", I, kParametersReport, 0, ""},
    {"ITERATIONS LIMIT 500", I, kIterationLimit, 500, "Iteration limit"},
    {"iterations limit 501", I, kIterationLimit, 501, ""}, {"ITERS 600", I, kIterationLimit, 600, ""},
    {"ITNS 700", I, kIterationLimit, 700, ""}, {"Iter 800.9", I, kIterationLimit, 800, ""},
    {"ITN -12.7", I, kIterationLimit, -12, ""},
    {"LINESEARCH TOLERANCE 0.25", R, kLinesearchTolerance, 0.25, "Linesearch tolerance"},
    {"LINESEARCH DEBUG 5", I, kLinesearchDebug, 5, ""},
    {"LOG FREQUENCY 7", I, kLogFrequency, 7, "Log frequency"},
    {"LU FACTORIZATION TOLERANCE 20.5", R, kLuFactorTolerance, 20.5, "LU factor tolerance"},
    {"LU FACTOR TOL 21.5", R, kLuFactorTolerance, 21.5, ""},
    {"LU UPDATE TOLERANCE 4.5", R, kLuUpdateTolerance, 4.5, "LU update tolerance"},
    {"LU DENSITY TOLERANCE 0.7", R, kLuDensityTolerance, 0.7, ""},
    {"LU SINGULARITY TOLERANCE 1e-12", R, kLuSingularityTolerance, 1e-12, "LU singularity tol",
     kLuSingularityTolerance2},
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
    {"PRINT FILE 9", I, kPrintFile, 9, "(Printer)"}, {"PRINT FREQUENCY 8", I, kLogFrequency, 8, ""},
    {"PRI LEV 2", I, kPrintLevel, 2, "Print level..(JFLXB)"},
    {"RADIUS OF CONVERGENCE 0.02", R, kRadiusOfConvergence, 0.02, "Radius of convergence"},
    {"ROWS 5000", I, kRowLimit, 5000, "Row limit"},
    {"ROWS TOLERANCE 1e-7", R, kRowTolerance, 1e-7, "Row tolerance"},
    {"RPARM 1 5e19", R, kUnboundedObjective, 5e19, ""}, {"RPARM 3 1e-10", R, kFunctionPrecision, 1e-10, ""},
    {"RPARM 8 1e-5", R, kLuSwapTolerance, 1e-5, ""}, {"SCALE OPTION 1", I, kScaleOption, 1, "Scale option"},
    {"SCALE TOLERANCE 0.8", R, kScaleTolerance, 0.8, "Scale tolerance"},
    {"SOLUTION FILE 12", I, kSolutionFile, 12, "Solution file"},
    {"START OBJECTIVE CHECK AT COLUMN 3", I, kObjectiveCheckStart, 3, ""},
    {"START CONSTRAINT CHECK AT COLUMN 4", I, kConstraintCheckStart, 4, ""},
    {"STOP OBJECTIVE CHECK AT COLUMN 8", I, kObjectiveCheckStop, 8, ""},
    {"STOP CONSTRAINT CHECK AT COLUMN 9", I, kConstraintCheckStop, 9, ""},
    {"SUBSPACE TOLERANCE 0.3", R, kSubspaceTolerance, 0.3, "Subspace tolerance"},
    {"SUPERBASICS LIMIT 40", I, kSuperbasicsLimit, 40, "Superbasics limit"},
    {"SUMMARY FILE 14", I, kSummaryFile, 14, ""},
    {"SUMMARY FREQUENCY 25", I, kSummaryFrequency, 25, "Summary frequency"},
    {"SUMMARY LEVEL 1", I, kSummaryLevel, 1, ""}, {"TIMING LEVEL 1", I, kTimingLevel, 1, "Timing level"},
    {"UNBOUNDED OBJECTIVE VALUE 1e15", R, kUnboundedObjective, 1e15, "Unbounded objective val"},
    {"UNBOUNDED STEP SIZE 1e8", R, kUnboundedStep, 1e8, "Unbounded step size"},
    {"VERIFY LEVEL 2", I, kVerifyLevel, 2, "Verify level"},
    {"WEIGHT ON OBJECTIVE 0.5", R, kWeightOnObjective, 0.5, "Weight on objective"},
    {"AIJ TOLERANCE 1e-9", R, kAijTolerance, 1e-9, "Aij tolerance"},
    {"BACKUP BASIS FILE 11", I, kBackupBasisFile, 11, "Backup basis file"},
    {"CENTRAL DIFFERENCE INTERVAL 1e-4", R, kCentralDifferenceInterval, 1e-4,
     "Central difference int."},
    {"COEFFICIENTS 9000", I, kElementsLimit, 9000, ""},
    {"ELEMENTS 8000", I, kElementsLimit, 8000, "Elements limit"},
    {"COLUMNS 7000", I, kColumnLimit, 7000, "Column limit"}, {"COL 7001", I, kColumnLimit, 7001, ""},
    {"CYCLE LIMIT 5", I, kCycleLimit, 5, ""}, {"CYCLE PRINT 2", I, kCyclePrint, 2, ""},
    {"CYCLE TOLERANCE 0.5", R, kCycleTolerance, 0.5, ""},
    {"DERIVATIVE LEVEL 2", I, kDerivativeLevel, 2, "Derivative level"},
    {"DIFFERENCE INTERVAL 1e-6", R, kDifferenceInterval, 1e-6, "Difference interval"},
    {"DUMP FILE 13", I, kDumpFile, 13, "Dump file"},
    {"ERROR MESSAGE LIMIT 20", I, kErrorMessageLimit, 20, "Error message limit"},
    {"FUNCTION PRECISION 1e-12", R, kFunctionPrecision, 1e-12, "Function precision"},
    {"INSERT FILE 15", I, kInsertFile, 15, "Insert file"}, {"LIST LIMIT 3", I, kListLimit, 3, "List limit"},
    {"LOAD FILE 16", I, kLoadFile, 16, "Load file"},
    {"LOWER BOUND -5", R, kLowerBoundDefault, -5, "Lower bound default"},
    {"MPS FILE 17", I, kMpsFile, 17, "MPS file"},
    {"NEW BASIS FILE 18", I, kNewBasisFile, 18, "New basis file"},
    {"NONLINEAR CONSTRAINTS 2", I, kNonlinearConstraints, 2, "Nonlinear constraints"},
    {"NONLINEAR OBJECTIVE VARIABLES 3", I, kNonlinearObjectiveVars, 3, "Nonlinear objectiv vars"},
    {"NONLINEAR JACOBIAN VARIABLES 4", I, kNonlinearJacobianVars, 4, "Nonlinear Jacobian vars"},
    {"NONLINEAR VARIABLES 5", I, kNonlinearObjectiveVars, 5, "", kNonlinearJacobianVars},
    {"OLD BASIS FILE 19", I, kOldBasisFile, 19, "Old basis file"},
    {"PHANTOM COLUMNS 6", I, kPhantomColumns, 6, ""},
    {"PHANTOM ELEMENTS 7", I, kPhantomElements, 7, "Phantom elements"},
    {"PROBLEM NUMBER 21", I, kProblemNumber, 21, "Problem number"},
    {"PUNCH FILE 22", I, kPunchFile, 22, "Punch file"}, {"REPORT FILE 24", I, kReportFile, 24, ""},
    {"SAVE FREQUENCY 33", I, kSaveFrequency, 33, "Save new basis map"},
    {"UPPER BOUND 1e6", R, kUpperBoundDefault, 1e6, "Upper bound default"},
    {"WORKSPACE (USER) 100", I, kWorkspaceUser, 100, "Workspace (user)"},
    {"workspace (total) 2000", I, kWorkspaceTotal, 2000, "Workspace (total)"},
};

// Phrases without a number: each sets one integer option to a fixed value.
struct SwitchCase {
  int option;
  std::vector<std::pair<const char*, int>> phrases;
};

const SwitchCase kSwitches[] = {
    {kCompletionFull, {{"COMPLETION PARTIAL", 0}, {"COMPLETION FULL", 1}}},
    {kLagrangian, {{"LAGRANGIAN NO", 0}, {"LAGRANGIAN YES", 1}}},
    {kScaleOption, {{"SCALE NO", 0}, {"SCALE YES", -1}, {"SCALE LINEAR", 1},
                    {"SCALE NONLINEAR", 2}, {"SCALE ALL", 2}, {"SCALE", -1}}},
    {kScalePrint, {{"SCALE PRINT", 1}}},
    {kSolutionPrint, {{"SOLUTION NO", 0}, {"SOLUTION YES", 2}}},
    {kStartColumnClass, {{"START ASSIGNED NONLINEARS ELIGIBLE FOR CRASH", 1},
                         {"START ASSIGNED NONLINEARS SUPERBASIC", 2},
                         {"START ASSIGNED NONLINEARS BASIC", 3},
                         {"START ASSIGNED NONLINEARS NONBASIC", 4}}},
    {kVerifyLevel, {{"VERIFY OBJECTIVE GRADIENTS", 1}, {"VERIFY CONSTRAINT GRADIENTS", 2},
                    {"VERIFY GRADIENTS", 3}, {"VERIFY YES", 3}, {"VERIFY NO", 0},
                    {"VERIFY", 3}}},
    {kJacobianDense, {{"JACOBIAN SPARSE", 0}, {"JACOBIAN DENSE", 1}}},
    {kObjectiveSense, {{"MAXIMIZE", -1}, {"MINIMIZE", 1}}},
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

std::vector<PhraseCase> every_phrase() {
  std::vector<PhraseCase> all(std::begin(kPhrases), std::end(kPhrases));
  for (const SwitchCase& c : kSwitches) {
    for (auto [phrase, value] : c.phrases) all.push_back({phrase, I, c.option, 1.0 * value, ""});
  }
  return all;
}

TEST(OptionPhrases, EachPhraseSetsOnlyItsOptionAndIsReportedUnderItsLabel) {
  testing::WorkDir dir;
  for (const PhraseCase& c : every_phrase()) {
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

TEST(OptionPhrases, ScaleTakesAPositiveNumberAsItsTolerance) {
  Units units;
  Options o;
  apply_defaults(o, units, 1);
  set_option(o, units, "SCALE YES 0.7", 0, 0);
  EXPECT_EQ(o.ival[kScaleOption], -1);
  EXPECT_EQ(o.rval[kScaleTolerance], 0.7);
  set_option(o, units, "SCALE OPTION 2", 0, 0);
  EXPECT_EQ(o.rval[kScaleTolerance], 0.7);
}

}  // namespace
}  // namespace tarvo::lp
