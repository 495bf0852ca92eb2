#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "lp/options.h"
#include "lp/options_report.h"

namespace tarvo::lp {

namespace {

constexpr double kEps = std::numeric_limits<double>::epsilon();

// A frequency below 1 means "never".
constexpr int kNever = 99999999;

// Values mode 1 sets (these options have no other default).
constexpr int kInitialCrashOption = 3;
constexpr int kInitialLinesearchDebug = 9999999;
constexpr int kInitialStartColumnClass = 2;
constexpr int kInitialMajorIterations = 50;
constexpr int kInitialMinorIterations = 40;
constexpr int kInitialSolutionPrint = 2;
constexpr int kInitialTimingLevel = 3;
constexpr int kInitialDerivativeLevel = 3;
constexpr int kInitialErrorMessageLimit = 10;
constexpr double kInitialAijTolerance = 1.0e-10;

// Defaults of mode 2; of a pair, the first is for a linear problem, the second otherwise.
constexpr int kDefaultRowLimit = 100;
constexpr int kColumnsPerRow = 3;
constexpr int kElementsPerColumn = 5;
// Capacities stay below this so that the workspace (2 x elements) fits an int32.
constexpr long long kCapacityCeiling = std::numeric_limits<int>::max() / 2;
constexpr int kIterationsPerRow = 3;
constexpr int kIterationsPerNonlinearVariable = 10;
constexpr int kDefaultCheckFrequency = 60;
constexpr int kDefaultExpandFrequency = 10000;
constexpr int kDefaultLogFrequency = 100;
constexpr int kDefaultSummaryFrequency = 100;
constexpr int kDefaultSaveFrequency = 100;
constexpr int kDefaultCheckStart = 1;
constexpr std::pair<int, int> kDefaultFactorizationFrequency = {100, 50};
constexpr std::pair<int, int> kDefaultPartialPrice = {10, 1};
constexpr std::pair<int, int> kDefaultScaleOption = {2, 1};
constexpr std::pair<double, double> kDefaultLuFactorTolerance = {100.0, 5.0};
constexpr std::pair<double, double> kDefaultLuUpdateTolerance = {10.0, 5.0};
constexpr int kDefaultNonlinearSuperbasics = 50;
constexpr double kDefaultCrashTolerance = 0.1;
constexpr double kDefaultLinesearchTolerance = 0.1;
constexpr double kDefaultLuDensityTolerance = 0.5;
constexpr double kDefaultDamping = 2.0;
constexpr double kDefaultOptimalityTolerance = 1.0e-6;
constexpr double kDefaultPenaltyParameter = 1.0;
constexpr double kDefaultRadiusOfConvergence = 0.1;
constexpr double kDefaultRowTolerance = 1.0e-6;
constexpr double kDefaultScaleTolerance = 0.9;
constexpr double kDefaultSubspaceTolerance = 0.5;
constexpr double kDefaultUnboundedObjective = 1.0e+20;
constexpr double kDefaultUnboundedStep = 1.0e+10;
constexpr double kDefaultWeightOnObjective = 0.0;
constexpr double kDefaultLowerBound = 0.0;
constexpr double kCentralDifferencePower = 0.333333;
const double kDefaultFeasibilityTolerance = std::max(std::sqrt(kEps), 1.0e-6);
const double kDefaultPivotTolerance = std::pow(kEps, 0.67);
const double kDefaultLuSingularityTolerance = std::pow(kEps, 0.67);
const double kDefaultLuSwapTolerance = std::pow(kEps, 0.25);
const double kDefaultFunctionPrecision = std::pow(kEps, 0.8);
const double kSmallestRadius = std::sqrt(kEps);

// Fixed internal values of the nonlinear search, set by every call.
constexpr double kFixedSearchTolerance1 = 0.1;
constexpr double kFixedSearchTolerance2 = 0.01;
const double kFixedValue3 = std::max(std::pow(kEps, 0.25), 0.001);
const double kFixedValue4 = std::max(std::sqrt(kEps), 1.0e-7);
const double kFixedValue5 = std::pow(std::max(std::sqrt(kEps), 1.0e-6), 2);
const double kFixedValue6 = std::max(std::pow(kEps, 0.33), 1.0e-4);

// Options mode 1 leaves alone: read_specs sets them from its arguments.
constexpr std::array kKeptByReset = {kSpecsFile, kPrintFile, kSummaryFile, kWorkspaceUser,
                                     kWorkspaceTotal};

// Integer options whose default is 0 when unset.
constexpr std::array kZeroWhenUnset = {
    kDebugLevel,     kScalePrint,      kSolutionFile,       kDumpFile,
    kInsertFile,     kListLimit,       kLoadFile,           kMpsFile,
    kNewBasisFile,   kOldBasisFile,    kBackupBasisFile,    kPunchFile,
    kReportFile,     kProblemNumber,   kPhantomColumns,     kPhantomElements,
    kNonlinearConstraints, kNonlinearObjectiveVars, kNonlinearJacobianVars};

bool unset(int value) { return value == kUnsetInt; }
bool unset(double value) { return value == kUnsetReal; }

template <typename T>
T by_problem(const Options& o, std::pair<T, T> linear_nonlinear) {
  return o.nonlinear_variables == 0 ? linear_nonlinear.first : linear_nonlinear.second;
}

// Unset takes the default; a value below 1 means never.
void default_frequency(int& value, int fallback) {
  if (unset(value)) {
    value = fallback;
  } else if (value < 1) {
    value = kNever;
  }
}

void default_unless_positive(double& value, double fallback) {
  if (value <= 0.0) value = fallback;
}

void default_if_below(double& value, double floor, double fallback) {
  if (value < floor) value = fallback;
}

int capacity(long long value) { return static_cast<int>(std::min(value, kCapacityCeiling)); }

void set_fixed_internal_values(Options& o) {
  o.rval[kInternalSearchTol1] = kFixedSearchTolerance1;
  o.rval[kInternalSearchTol2] = kFixedSearchTolerance2;
  o.rval[kInternalValue3] = kFixedValue3;
  o.rval[kInternalValue4] = kFixedValue4;
  o.rval[kInternalValue5] = kFixedValue5;
  o.rval[kInternalValue6] = kFixedValue6;
}

void reset_options(Options& o) {
  std::array<int, kKeptByReset.size()> kept{};
  for (std::size_t k = 0; k < kKeptByReset.size(); ++k) kept[k] = o.ival[kKeptByReset[k]];
  o.ival.fill(kUnsetInt);
  o.rval.fill(kUnsetReal);
  for (std::size_t k = 0; k < kKeptByReset.size(); ++k) o.ival[kKeptByReset[k]] = kept[k];

  o.ival[kCrashOption] = kInitialCrashOption;
  o.ival[kLinesearchDebug] = kInitialLinesearchDebug;
  o.ival[kParametersReport] = 1;
  o.ival[kStartColumnClass] = kInitialStartColumnClass;
  o.ival[kMajorIterations] = kInitialMajorIterations;
  o.ival[kMinorIterations] = kInitialMinorIterations;
  o.ival[kMultiplePrice] = 1;
  o.ival[kPrintLevel] = 0;
  o.ival[kSolutionPrint] = kInitialSolutionPrint;
  o.ival[kTimingLevel] = kInitialTimingLevel;
  o.ival[kVerifyLevel] = 0;
  o.ival[kCycleLimit] = 1;
  o.ival[kCyclePrint] = 1;
  o.ival[kDerivativeLevel] = kInitialDerivativeLevel;
  o.ival[kErrorMessageLimit] = kInitialErrorMessageLimit;
  o.ival[kJacobianDense] = 1;
  o.ival[kObjectiveSense] = 1;
  o.ival[kLagrangian] = 1;
  o.rval[kCycleTolerance] = 0.0;
  o.rval[kAijTolerance] = kInitialAijTolerance;
  o.objective_name = Name8{};
  o.rhs_name = Name8{};
  o.ranges_name = Name8{};
  o.bounds_name = Name8{};
}

void default_frequencies(Options& o) {
  default_frequency(o.ival[kCheckFrequency], kDefaultCheckFrequency);
  default_frequency(o.ival[kExpandFrequency], kDefaultExpandFrequency);
  default_frequency(o.ival[kLogFrequency], kDefaultLogFrequency);
  default_frequency(o.ival[kSummaryFrequency], kDefaultSummaryFrequency);
  default_frequency(o.ival[kSaveFrequency], kDefaultSaveFrequency);
  if (o.ival[kFactorizationFrequency] < 1) {
    o.ival[kFactorizationFrequency] = by_problem(o, kDefaultFactorizationFrequency);
  }
}

void default_files_and_counts(Options& o) {
  for (IntOption option : kZeroWhenUnset) {
    if (unset(o.ival[option])) o.ival[option] = 0;
  }
  if (o.ival[kBackupBasisFile] == o.ival[kNewBasisFile]) o.ival[kBackupBasisFile] = 0;
  if (unset(o.ival[kObjectiveCheckStart])) o.ival[kObjectiveCheckStart] = kDefaultCheckStart;
  if (unset(o.ival[kConstraintCheckStart])) o.ival[kConstraintCheckStart] = kDefaultCheckStart;
  int& objective_stop = o.ival[kObjectiveCheckStop];
  int& constraint_stop = o.ival[kConstraintCheckStop];
  if (unset(objective_stop)) objective_stop = o.nonlinear_objective_vars;
  if (unset(constraint_stop)) constraint_stop = o.nonlinear_jacobian_vars;
  if (unset(o.ival[kCompletionFull])) {
    o.ival[kCompletionFull] = o.nonlinear_constraints_present ? 0 : 1;
  }
}

void default_bounds(Options& o) {
  double& lower = o.rval[kLowerBoundDefault];
  double& upper = o.rval[kUpperBoundDefault];
  if (unset(lower)) lower = kDefaultLowerBound;
  if (unset(upper)) upper = kInfiniteBound;
  if (upper < lower) std::swap(lower, upper);
}

void default_lp_parameters(Options& o) {
  auto& r = o.rval;
  double& crash = r[kCrashTolerance];
  if (crash < 0.0 || crash >= 1.0) crash = kDefaultCrashTolerance;
  default_unless_positive(r[kFeasibilityTolerance], kDefaultFeasibilityTolerance);
  default_unless_positive(r[kPivotTolerance], kDefaultPivotTolerance);
  default_unless_positive(r[kScaleTolerance], kDefaultScaleTolerance);
  default_if_below(r[kWeightOnObjective], 0.0, kDefaultWeightOnObjective);
  if (o.ival[kPartialPrice] < 1) o.ival[kPartialPrice] = by_problem(o, kDefaultPartialPrice);
  if (o.ival[kScaleOption] < 0) o.ival[kScaleOption] = by_problem(o, kDefaultScaleOption);
}

void default_lu_tolerances(Options& o) {
  auto& r = o.rval;
  default_if_below(r[kLuFactorTolerance], 1.0, by_problem(o, kDefaultLuFactorTolerance));
  default_if_below(r[kLuUpdateTolerance], 1.0, by_problem(o, kDefaultLuUpdateTolerance));
  default_unless_positive(r[kLuDensityTolerance], kDefaultLuDensityTolerance);
  default_unless_positive(r[kLuSwapTolerance], kDefaultLuSwapTolerance);
  default_unless_positive(r[kLuSingularityTolerance], kDefaultLuSingularityTolerance);
  default_unless_positive(r[kLuSingularityTolerance2], kDefaultLuSingularityTolerance);
}

// The optimality tolerance follows a function precision the user gave; the difference
// intervals follow the function precision in force.
void default_precision_dependents(Options& o) {
  auto& r = o.rval;
  const bool precision_given = r[kFunctionPrecision] > 0.0;
  if (r[kOptimalityTolerance] <= 0.0) {
    r[kOptimalityTolerance] =
        precision_given ? std::sqrt(r[kFunctionPrecision]) : kDefaultOptimalityTolerance;
  }
  if (!precision_given) r[kFunctionPrecision] = kDefaultFunctionPrecision;
  default_unless_positive(r[kDifferenceInterval], std::sqrt(r[kFunctionPrecision]));
  default_unless_positive(r[kCentralDifferenceInterval],
                          std::pow(r[kFunctionPrecision], kCentralDifferencePower));
}

void default_nonlinear_parameters(Options& o) {
  auto& r = o.rval;
  double& linesearch = r[kLinesearchTolerance];
  if (linesearch < 0.0 || linesearch > 1.0) linesearch = kDefaultLinesearchTolerance;
  double& subspace = r[kSubspaceTolerance];
  if (subspace <= 0.0 || subspace > 1.0) subspace = kDefaultSubspaceTolerance;
  if (r[kRadiusOfConvergence] <= kSmallestRadius) {
    r[kRadiusOfConvergence] = kDefaultRadiusOfConvergence;
  }
  if (r[kRowTolerance] <= kEps) r[kRowTolerance] = kDefaultRowTolerance;
  default_unless_positive(r[kMajorDamping], kDefaultDamping);
  default_unless_positive(r[kMinorDamping], kDefaultDamping);
  default_if_below(r[kPenaltyParameter], 0.0, kDefaultPenaltyParameter);
  default_unless_positive(r[kUnboundedObjective], kDefaultUnboundedObjective);
  default_unless_positive(r[kUnboundedStep], kDefaultUnboundedStep);
}

void default_superbasics(Options& o) {
  int& limit = o.ival[kSuperbasicsLimit];
  int& hessian = o.ival[kHessianDimension];
  if (o.nonlinear_variables > 0) {
    if (unset(limit) && unset(hessian)) {
      limit = hessian = kDefaultNonlinearSuperbasics;
    } else if (unset(limit)) {
      limit = hessian;
    } else if (unset(hessian)) {
      hessian = limit;
    }
  }
  limit = std::max(limit, 1);
  hessian = std::max(hessian, 0);
  if (o.nonlinear_variables > 0) {
    limit = std::max(limit, hessian);
    limit = std::min(limit, capacity(1LL + o.ival[kRowLimit] + o.ival[kColumnLimit]));
  }
}

void default_iteration_limit(Options& o) {
  if (o.ival[kIterationLimit] >= 0) return;
  const long long rows = o.ival[kRowLimit];
  const long long nonlinear = o.nonlinear_variables;
  o.ival[kIterationLimit] =
      capacity(kIterationsPerRow * rows + kIterationsPerNonlinearVariable * nonlinear);
}

void complete_options(Options& o) {
  complete_capacities(o);
  default_frequencies(o);
  default_files_and_counts(o);
  default_bounds(o);
  default_lp_parameters(o);
  default_lu_tolerances(o);
  default_precision_dependents(o);
  default_nonlinear_parameters(o);
  default_superbasics(o);
  default_iteration_limit(o);
}

}  // namespace

void complete_capacities(Options& o) {
  int& rows = o.ival[kRowLimit];
  int& columns = o.ival[kColumnLimit];
  int& elements = o.ival[kElementsLimit];
  if (rows < 1) rows = kDefaultRowLimit;
  if (columns < 1) columns = capacity(kColumnsPerRow * static_cast<long long>(rows));
  if (elements < 1) elements = capacity(kElementsPerColumn * static_cast<long long>(columns));
  rows = capacity(rows);
  columns = capacity(columns);
  elements = capacity(elements);
}

void set_problem_counts(Options& o, int nncon, int nnobj, int nnjac) {
  o.nonlinear_objective_vars = nnobj;
  o.nonlinear_jacobian_vars = nnjac;
  o.nonlinear_variables = std::max(nnobj, nnjac);
  o.nonlinear_constraints_present = nncon > 0;
}

void apply_defaults(Options& o, Units& units, int mode) {
  if (mode == 1) reset_options(o);
  set_fixed_internal_values(o);
  if (mode == 2) {
    complete_options(o);
  } else if (mode == 3) {
    write_parameters_report(o, units);
  }
}

}  // namespace tarvo::lp
