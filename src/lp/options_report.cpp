#include "lp/options_report.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/record_format.h"

namespace tarvo::lp {

namespace {

enum class Layout { integer, scientific, fixed3, fixed2 };

struct ReportEntry {
  std::string_view label;
  Layout layout;
  int option;  // IntOption for Layout::integer, RealOption otherwise
};

struct ReportGroup {
  std::string_view title;
  std::span<const ReportEntry> entries;
};

using L = Layout;

constexpr ReportEntry kMpsInput[] = {
    {"Row limit", L::integer, kRowLimit},
    {"Column limit", L::integer, kColumnLimit},
    {"Elements limit", L::integer, kElementsLimit},
    {"Upper bound default", L::scientific, kUpperBoundDefault},
    {"Lower bound default", L::scientific, kLowerBoundDefault},
    {"Aij tolerance", L::scientific, kAijTolerance},
    {"Phantom elements", L::integer, kPhantomElements},
    {"Error message limit", L::integer, kErrorMessageLimit},
    {"List limit", L::integer, kListLimit},
    {"Problem number", L::integer, kProblemNumber},
};

constexpr ReportEntry kFiles[] = {
    {"MPS file", L::integer, kMpsFile},
    {"Old basis file", L::integer, kOldBasisFile},
    {"New basis file", L::integer, kNewBasisFile},
    {"Backup basis file", L::integer, kBackupBasisFile},
    {"Insert file", L::integer, kInsertFile},
    {"Punch file", L::integer, kPunchFile},
    {"Load file", L::integer, kLoadFile},
    {"Dump file", L::integer, kDumpFile},
    {"Solution file", L::integer, kSolutionFile},
    {"(Printer)", L::integer, kPrintFile},
};

constexpr ReportEntry kFrequencies[] = {
    {"Log frequency", L::integer, kLogFrequency},
    {"Summary frequency", L::integer, kSummaryFrequency},
    {"Save new basis map", L::integer, kSaveFrequency},
    {"Check row error", L::integer, kCheckFrequency},
    {"Factorize basis", L::integer, kFactorizationFrequency},
    {"Expand frequency", L::integer, kExpandFrequency},
};

constexpr ReportEntry kLpParameters[] = {
    {"Scale option", L::integer, kScaleOption},
    {"Scale tolerance", L::fixed3, kScaleTolerance},
    {"Feasibility tolerance", L::scientific, kFeasibilityTolerance},
    {"Iteration limit", L::integer, kIterationLimit},
    {"Optimality tolerance", L::scientific, kOptimalityTolerance},
    {"Partial  price", L::integer, kPartialPrice},
    {"Multiple price", L::integer, kMultiplePrice},
    {"Crash option", L::integer, kCrashOption},
    {"Crash tolerance", L::fixed3, kCrashTolerance},
    {"Pivot tolerance", L::scientific, kPivotTolerance},
    {"Weight on objective", L::scientific, kWeightOnObjective},
};

constexpr ReportEntry kNonlinearProblems[] = {
    {"Nonlinear objectiv vars", L::integer, kNonlinearObjectiveVars},
    {"Hessian dimension", L::integer, kHessianDimension},
    {"Superbasics limit", L::integer, kSuperbasicsLimit},
    {"Unbounded objective val", L::scientific, kUnboundedObjective},
    {"Unbounded step size", L::scientific, kUnboundedStep},
    {"Linesearch tolerance", L::fixed3, kLinesearchTolerance},
    {"Subspace tolerance", L::fixed3, kSubspaceTolerance},
    {"Function precision", L::scientific, kFunctionPrecision},
    {"Difference interval", L::scientific, kDifferenceInterval},
    {"Central difference int.", L::scientific, kCentralDifferenceInterval},
    {"Derivative level", L::integer, kDerivativeLevel},
    {"Verify level", L::integer, kVerifyLevel},
};

constexpr ReportEntry kAugmentedLagrangian[] = {
    {"Nonlinear constraints", L::integer, kNonlinearConstraints},
    {"Nonlinear Jacobian vars", L::integer, kNonlinearJacobianVars},
    {"Major iterations limit", L::integer, kMajorIterations},
    {"Minor iterations limit", L::integer, kMinorIterations},
    {"Major damping parameter", L::fixed2, kMajorDamping},
    {"Minor damping parameter", L::fixed2, kMinorDamping},
    {"Penalty parameter", L::scientific, kPenaltyParameter},
    {"Radius of convergence", L::scientific, kRadiusOfConvergence},
    {"Row tolerance", L::scientific, kRowTolerance},
};

constexpr ReportEntry kMiscellaneous[] = {
    {"LU factor tolerance", L::fixed2, kLuFactorTolerance},
    {"LU update tolerance", L::fixed2, kLuUpdateTolerance},
    {"LU singularity tol", L::scientific, kLuSingularityTolerance},
    {"LU swap tolerance", L::scientific, kLuSwapTolerance},
    {"Timing level", L::integer, kTimingLevel},
    {"Debug level", L::integer, kDebugLevel},
    {"Linesearch debug after", L::integer, kLinesearchDebug},
    {"Print level..(JFLXB)", L::integer, kPrintLevel},
    {"Workspace (user)", L::integer, kWorkspaceUser},
    {"Workspace (total)", L::integer, kWorkspaceTotal},
};

constexpr ReportGroup kGroups[] = {
    {" MPS INPUT DATA.", kMpsInput},
    {" FILES.", kFiles},
    {" FREQUENCIES.", kFrequencies},
    {" LP PARAMETERS.", kLpParameters},
    {" NONLINEAR PROBLEMS.", kNonlinearProblems},
    {" AUGMENTED LAGRANGIAN.", kAugmentedLagrangian},
    {" MISCELLANEOUS.", kMiscellaneous},
};

constexpr std::size_t kLabelWidth = 24;
constexpr std::size_t kEntriesPerLine = 3;
constexpr std::string_view kPairSeparator = "6x";

// " Feasibility tolerance..": one blank, the label, dots up to 24 characters.
std::string dotted_label(std::string_view label) {
  std::string text = " " + std::string(label.substr(0, kLabelWidth - 1));
  text.resize(kLabelWidth, '.');
  return text;
}

std::string_view value_edit(Layout layout) {
  switch (layout) {
    case L::integer: return "i10";
    case L::scientific: return "1pe10.2";
    case L::fixed3: return "0pf10.3";
    case L::fixed2: return "0pf10.2";
  }
  return "i10";
}

RecordItem value_item(const Options& options, const ReportEntry& entry) {
  if (entry.layout == L::integer) return static_cast<long long>(options.ival[entry.option]);
  return options.rval[entry.option];
}

void write_entry_line(const Options& options, Units& units, int unit,
                      std::span<const ReportEntry> entries) {
  std::string edit = "(";
  std::vector<std::string> labels;
  for (const ReportEntry& entry : entries) labels.push_back(dotted_label(entry.label));
  std::vector<RecordItem> items;
  for (std::size_t k = 0; k < entries.size(); ++k) {
    if (k > 0) edit += "," + std::string(kPairSeparator) + ",";
    edit += "a" + std::to_string(kLabelWidth) + "," + std::string(value_edit(entries[k].layout));
    items.emplace_back(std::string_view(labels[k]));
    items.push_back(value_item(options, entries[k]));
  }
  edit += ")";
  for (const std::string& line : format_record(edit, items)) write_line(units, unit, line);
}

void write_group(const Options& options, Units& units, int unit, const ReportGroup& group) {
  write_line(units, unit, "");
  write_line(units, unit, group.title);
  for (std::size_t first = 0; first < group.entries.size(); first += kEntriesPerLine) {
    const std::size_t count = std::min(kEntriesPerLine, group.entries.size() - first);
    write_entry_line(options, units, unit, group.entries.subspan(first, count));
  }
}

}  // namespace

void write_parameters_report(const Options& options, Units& units) {
  const int unit = options.ival[kPrintFile];
  if (unit <= 0 || options.ival[kPrintLevel] <= 0 || options.ival[kParametersReport] <= 0) return;
  write_line(units, unit, "");
  write_line(units, unit, " Parameters");
  write_line(units, unit, " ----------");
  for (const ReportGroup& group : kGroups) write_group(options, units, unit, group);
}

}  // namespace tarvo::lp
