#pragma once
// The optimizer's options: read from the options file SIMPLEX.SPC, set by single phrases at run
// time, completed by defaults before every solve, and listed in the Parameters report.
//
// Integer and real options are held in two blocks. The leading entries of each block are fixed
// by the IPARM/RPARM phrases (IPARM k and RPARM k address entry k directly, k = 1..30); the rest
// follow in our own order. Every option starts unset (kUnsetInt / kUnsetReal).
#include <array>
#include <string_view>

#include "common/units.h"
#include "lp/problem_slot.h"

namespace tarvo::lp {

inline constexpr int kUnsetInt = -11111;
inline constexpr double kUnsetReal = -11111.0;

// Status of read_specs; a count n >= 1 of phrases not understood is returned as it stands.
inline constexpr int kOptionsRead = 0;
inline constexpr int kOptionsBadUnit = 1;
inline constexpr int kOptionsEndOfFileInSet = 2;
inline constexpr int kOptionsEndOfFileBeforeBegin = 3;
inline constexpr int kOptionsEndRun = 4;

enum IntOption : int {
  // IPARM 1..5
  kCrashOption = 1,
  kLinesearchDebug,
  kParametersReport,
  kScalePrint,
  kStartColumnClass,
  // further options, IPARM 6..30 address these in this order
  kCheckFrequency,
  kDebugLevel,
  kExpandFrequency,
  kFactorizationFrequency,
  kHessianDimension,
  kIterationLimit,
  kLogFrequency,
  kMajorIterations,
  kMinorIterations,
  kMultiplePrice,
  kPartialPrice,
  kPrintFile,
  kPrintLevel,
  kRowLimit,
  kScaleOption,
  kSolutionPrint,
  kSolutionFile,
  kObjectiveCheckStart,
  kConstraintCheckStart,
  kObjectiveCheckStop,
  kConstraintCheckStop,
  kSuperbasicsLimit,
  kSummaryFile,
  kSummaryFrequency,
  kSummaryLevel,
  // beyond the IPARM block
  kTimingLevel,
  kVerifyLevel,
  kBackupBasisFile,
  kElementsLimit,
  kColumnLimit,
  kCycleLimit,
  kCyclePrint,
  kDerivativeLevel,
  kDumpFile,
  kErrorMessageLimit,
  kInsertFile,
  kJacobianDense,
  kListLimit,
  kLoadFile,
  kObjectiveSense,
  kMpsFile,
  kNewBasisFile,
  kNonlinearConstraints,
  kNonlinearObjectiveVars,
  kNonlinearJacobianVars,
  kOldBasisFile,
  kPhantomColumns,
  kPhantomElements,
  kProblemNumber,
  kPunchFile,
  kReportFile,
  kSaveFrequency,
  kWorkspaceUser,
  kWorkspaceTotal,
  kCompletionFull,
  kLagrangian,
  kSpecsFile,
  kIntOptionCount
};

enum RealOption : int {
  // RPARM 1..8
  kUnboundedObjective = 1,
  kUnboundedStep,
  kFunctionPrecision,
  kMajorDamping,
  kCrashTolerance,
  kMinorDamping,
  kPenaltyParameter,
  kLuSwapTolerance,
  // further options, RPARM 9..30 address these in this order
  kFeasibilityTolerance,
  kOptimalityTolerance,
  kPivotTolerance,
  kLuFactorTolerance,
  kLuUpdateTolerance,
  kLuDensityTolerance,
  kLuSingularityTolerance,
  kLuSingularityTolerance2,
  kLinesearchTolerance,
  kRadiusOfConvergence,
  kRowTolerance,
  kScaleTolerance,
  kSubspaceTolerance,
  kWeightOnObjective,
  kAijTolerance,
  kCentralDifferenceInterval,
  kCycleTolerance,
  kDifferenceInterval,
  kLowerBoundDefault,
  kUpperBoundDefault,
  // fixed internal values set by every apply_defaults call
  kInternalSearchTol1,
  kInternalSearchTol2,
  kInternalValue3,
  kInternalValue4,
  kInternalValue5,
  kInternalValue6,
  kRealOptionCount
};

struct Options {
  std::array<int, kIntOptionCount> ival{};
  std::array<double, kRealOptionCount> rval{};
  Name8 objective_name;  // names of the sets the MPS reader uses (blank = first found)
  Name8 rhs_name;
  Name8 ranges_name;
  Name8 bounds_name;
  // Nonlinear counts of the problem being solved, known to apply_defaults(2); set them with
  // set_problem_counts. A problem without nonlinear variables is "linear" for the defaults.
  int nonlinear_variables = 0;  // max(nonlinear objective, nonlinear Jacobian variables)
  int nonlinear_objective_vars = 0;
  int nonlinear_jacobian_vars = 0;
  bool nonlinear_constraints_present = false;
};

// Reads one BEGIN ... END set from the opened unit `specs_unit`; returns the status (0 success,
// n >= 1 phrases not understood, 1 bad unit, 2 end of file inside the set, 3 end of file before
// BEGIN, 4 ENDRUN before BEGIN).
int read_specs(Options& options, Units& units, int specs_unit, int print_unit, int summary_unit,
               int nwcore);
// Applies one phrase, as one record of the file; returns the number of errors (0 or 1).
int set_option(Options& options, Units& units, std::string_view phrase, int print_unit,
               int summary_unit);
// Applies "phrase value".
int set_option_int(Options& options, Units& units, std::string_view phrase, int value,
                   int print_unit, int summary_unit);
// 1: every option unset (and the fixed initial values); 2: defaults for unset or out-of-range
// options; 3: the Parameters report on the print file. The units (options file, PRINT FILE,
// SUMMARY FILE) and the workspace sizes are kept by mode 1: read_specs sets them.
void apply_defaults(Options& options, Units& units, int mode);

// Records the nonlinear counts of the problem about to be solved, for apply_defaults(2).
void set_problem_counts(Options& options, int nncon, int nnobj, int nnjac);

// Completes the Row, Column and Elements limits (100; 3 x rows; 5 x columns) when unset or below
// 1; part of apply_defaults(2), and what the optimizer sizes its slots from.
void complete_capacities(Options& options);

}  // namespace tarvo::lp
