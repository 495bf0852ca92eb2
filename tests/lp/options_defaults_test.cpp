// What apply_defaults(2) gives options that are unset or out of range, for linear and nonlinear
// problems.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "lp/options.h"

namespace tarvo::lp {
namespace {

enum Kind { I, R };

struct DefaultCase {
  std::vector<const char*> phrases;
  int nnobj;  // nonlinear objective variables of the problem
  int nncon;  // nonlinear constraints
  Kind kind;
  int option;
  double expected;
};

const double kEps = std::numeric_limits<double>::epsilon();

const DefaultCase kCases[] = {
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
  for (const DefaultCase& c : kCases) {
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

}  // namespace
}  // namespace tarvo::lp
