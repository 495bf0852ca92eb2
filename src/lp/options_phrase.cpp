#include "lp/options_phrase.h"

#include <optional>
#include <string>
#include <vector>

#include "common/record_format.h"
#include "lp/options_keywords.h"
#include "lp/options_record.h"

namespace tarvo::lp {

namespace {

enum class Action {
  set_int,              // the phrase's integer
  set_real,             // the phrase's real
  set_int_to,           // a fixed value
  defaults,             // every option unset again
  parm_int,             // IPARM k i
  parm_real,            // RPARM k r
  set_name,             // a set name from the second word
  start_class,          // START ... with the class in the fourth word
  lu_singularity,       // both singularity tolerances
  nonlinear_variables,  // both nonlinear variable counts
};

// Second-keyword patterns besides a keyword of the second list.
constexpr std::string_view kAnyWord = "*";  // the keyword takes no second keyword
constexpr std::string_view kNoWord = "";    // the keyword standing alone

enum NameIndex { kObjectiveName, kRhsName, kRangesName, kBoundsName };

struct PhraseRule {
  std::string_view key;
  std::string_view key2;
  Action action;
  int index = 0;
  int fixed = 0;
};

using A = Action;

// Per keyword, the rules in the order they are tried; the first whose second keyword fits wins.
constexpr PhraseRule kRules[] = {
    {"CHECK", kAnyWord, A::set_int, kCheckFrequency},
    {"COMPLETION", "PARTIAL", A::set_int_to, kCompletionFull, 0},
    {"COMPLETION", "FULL", A::set_int_to, kCompletionFull, 1},
    {"CRASH", "OPTION", A::set_int, kCrashOption},
    {"CRASH", "TOLERANCE", A::set_real, kCrashTolerance},
    {"DEBUG", kAnyWord, A::set_int, kDebugLevel},
    {"DEFAULTS", kAnyWord, A::defaults},
    {"EXPAND", kAnyWord, A::set_int, kExpandFrequency},
    {"FACTORIZATION", kAnyWord, A::set_int, kFactorizationFrequency},
    {"FEASIBILITY", kAnyWord, A::set_real, kFeasibilityTolerance},
    {"HESSIAN", kAnyWord, A::set_int, kHessianDimension},
    {"IPARM", kAnyWord, A::parm_int},
    {"ITERATIONS", kAnyWord, A::set_int, kIterationLimit},
    {"LAGRANGIAN", "YES", A::set_int_to, kLagrangian, 1},
    {"LAGRANGIAN", "NO", A::set_int_to, kLagrangian, 0},
    {"LINESEARCH", "TOLERANCE", A::set_real, kLinesearchTolerance},
    {"LINESEARCH", "DEBUG", A::set_int, kLinesearchDebug},
    {"LOG", kAnyWord, A::set_int, kLogFrequency},
    {"LU", "FACTORIZATION", A::set_real, kLuFactorTolerance},
    {"LU", "UPDATE", A::set_real, kLuUpdateTolerance},
    {"LU", "DENSITY", A::set_real, kLuDensityTolerance},
    {"LU", "SINGULARITY", A::lu_singularity},
    {"LU", "SWAP", A::set_real, kLuSwapTolerance},
    {"MAJOR", "DAMPING", A::set_real, kMajorDamping},
    {"MAJOR", "ITERATIONS", A::set_int, kMajorIterations},
    {"MINOR", "DAMPING", A::set_real, kMinorDamping},
    {"MINOR", "ITERATIONS", A::set_int, kMinorIterations},
    {"MULTIPLE", kAnyWord, A::set_int, kMultiplePrice},
    {"OPTIMALITY", kAnyWord, A::set_real, kOptimalityTolerance},
    {"PARTIAL", kAnyWord, A::set_int, kPartialPrice},
    {"PENALTY", kAnyWord, A::set_real, kPenaltyParameter},
    {"PIVOT", kAnyWord, A::set_real, kPivotTolerance},
    {"PRINT", "FILE", A::set_int, kPrintFile},
    {"PRINT", "FREQUENCY", A::set_int, kLogFrequency},
    {"PRINT", "LEVEL", A::set_int, kPrintLevel},
    {"RADIUS", kAnyWord, A::set_real, kRadiusOfConvergence},
    {"ROWS", "TOLERANCE", A::set_real, kRowTolerance},
    {"ROWS", kAnyWord, A::set_int, kRowLimit},
    {"RPARM", kAnyWord, A::parm_real},
    {"SCALE", "OPTION", A::set_int, kScaleOption},
    {"SCALE", "TOLERANCE", A::set_real, kScaleTolerance},
    {"SCALE", "NO", A::set_int_to, kScaleOption, 0},
    {"SCALE", "YES", A::set_int_to, kScaleOption, -1},
    {"SCALE", "LINEAR", A::set_int_to, kScaleOption, 1},
    {"SCALE", "NONLINEAR", A::set_int_to, kScaleOption, 2},
    {"SCALE", "ALL", A::set_int_to, kScaleOption, 2},
    {"SCALE", "PRINT", A::set_int_to, kScalePrint, 1},
    {"SCALE", kNoWord, A::set_int_to, kScaleOption, -1},
    {"SOLUTION", "YES", A::set_int_to, kSolutionPrint, 2},
    {"SOLUTION", "NO", A::set_int_to, kSolutionPrint, 0},
    {"SOLUTION", "FILE", A::set_int, kSolutionFile},
    {"START", "OBJECTIVE", A::set_int, kObjectiveCheckStart},
    {"START", "CONSTRAINTS", A::set_int, kConstraintCheckStart},
    {"START", kAnyWord, A::start_class},
    {"SUBSPACE", kAnyWord, A::set_real, kSubspaceTolerance},
    {"SUMMARY", "FILE", A::set_int, kSummaryFile},
    {"SUMMARY", "FREQUENCY", A::set_int, kSummaryFrequency},
    {"SUMMARY", "LEVEL", A::set_int, kSummaryLevel},
    {"SUPERBASICS", kAnyWord, A::set_int, kSuperbasicsLimit},
    {"TIMING", kAnyWord, A::set_int, kTimingLevel},
    {"UNBOUNDED", "OBJECTIVE", A::set_real, kUnboundedObjective},
    {"UNBOUNDED", "STEP", A::set_real, kUnboundedStep},
    {"VERIFY", "OBJECTIVE", A::set_int_to, kVerifyLevel, 1},
    {"VERIFY", "CONSTRAINTS", A::set_int_to, kVerifyLevel, 2},
    {"VERIFY", "GRADIENTS", A::set_int_to, kVerifyLevel, 3},
    {"VERIFY", "YES", A::set_int_to, kVerifyLevel, 3},
    {"VERIFY", "NO", A::set_int_to, kVerifyLevel, 0},
    {"VERIFY", "LEVEL", A::set_int, kVerifyLevel},
    {"VERIFY", kNoWord, A::set_int_to, kVerifyLevel, 3},
    {"WEIGHT", kAnyWord, A::set_real, kWeightOnObjective},
    // keywords of the further list
    {"AIJ", kAnyWord, A::set_real, kAijTolerance},
    {"BACKUP", kAnyWord, A::set_int, kBackupBasisFile},
    {"BOUNDS", kAnyWord, A::set_name, kBoundsName},
    {"CENTRAL", kAnyWord, A::set_real, kCentralDifferenceInterval},
    {"COEFFICIENTS", kAnyWord, A::set_int, kElementsLimit},
    {"COLUMNS", kAnyWord, A::set_int, kColumnLimit},
    {"CYCLE", "LIMIT", A::set_int, kCycleLimit},
    {"CYCLE", "PRINT", A::set_int, kCyclePrint},
    {"CYCLE", "TOLERANCE", A::set_real, kCycleTolerance},
    {"DERIVATIVE", kAnyWord, A::set_int, kDerivativeLevel},
    {"DIFFERENCE", kAnyWord, A::set_real, kDifferenceInterval},
    {"DUMP", kAnyWord, A::set_int, kDumpFile},
    {"ELEMENTS", kAnyWord, A::set_int, kElementsLimit},
    {"ERROR", kAnyWord, A::set_int, kErrorMessageLimit},
    {"FUNCTION", kAnyWord, A::set_real, kFunctionPrecision},
    {"INSERT", kAnyWord, A::set_int, kInsertFile},
    {"JACOBIAN", "DENSE", A::set_int_to, kJacobianDense, 1},
    {"JACOBIAN", "SPARSE", A::set_int_to, kJacobianDense, 0},
    {"LIST", kAnyWord, A::set_int, kListLimit},
    {"LOAD", kAnyWord, A::set_int, kLoadFile},
    {"LOWER", kAnyWord, A::set_real, kLowerBoundDefault},
    {"MAXIMIZE", kAnyWord, A::set_int_to, kObjectiveSense, -1},
    {"MINIMIZE", kAnyWord, A::set_int_to, kObjectiveSense, 1},
    {"MPS", kAnyWord, A::set_int, kMpsFile},
    {"NEW", kAnyWord, A::set_int, kNewBasisFile},
    {"NONLINEAR", "CONSTRAINTS", A::set_int, kNonlinearConstraints},
    {"NONLINEAR", "OBJECTIVE", A::set_int, kNonlinearObjectiveVars},
    {"NONLINEAR", "JACOBIAN", A::set_int, kNonlinearJacobianVars},
    {"NONLINEAR", "VARIABLES", A::nonlinear_variables},
    {"OBJECTIVE", kAnyWord, A::set_name, kObjectiveName},
    {"OLD", kAnyWord, A::set_int, kOldBasisFile},
    {"PHANTOM", "COLUMNS", A::set_int, kPhantomColumns},
    {"PHANTOM", "ELEMENTS", A::set_int, kPhantomElements},
    {"PROBLEM", kAnyWord, A::set_int, kProblemNumber},
    {"PUNCH", kAnyWord, A::set_int, kPunchFile},
    {"RANGES", kAnyWord, A::set_name, kRangesName},
    {"REPORT", kAnyWord, A::set_int, kReportFile},
    {"RHS", kAnyWord, A::set_name, kRhsName},
    {"SAVE", kAnyWord, A::set_int, kSaveFrequency},
    {"STOP", "OBJECTIVE", A::set_int, kObjectiveCheckStop},
    {"STOP", "CONSTRAINTS", A::set_int, kConstraintCheckStop},
    {"UPPER", kAnyWord, A::set_real, kUpperBoundDefault},
    {"WORKSPACE", "(USER)", A::set_int, kWorkspaceUser},
    {"WORKSPACE", "(TOTAL)", A::set_int, kWorkspaceTotal},
};

// The classes a START phrase names in its fourth word.
struct StartClass {
  std::string_view word;
  int value;
};
constexpr StartClass kStartClasses[] = {
    {"ELIGIBLE", 1}, {"SUPERBASIC", 2}, {"BASIC", 3}, {"NONBASIC", 4}};

constexpr int kParmBlockSize = 30;
constexpr std::size_t kSecondWord = 1;
constexpr std::size_t kThirdWord = 2;
constexpr std::size_t kFourthWord = 3;

// The words of the phrase with its keywords looked up.
struct Phrase {
  std::vector<std::string> words;
  std::string key;   // first keyword after lookup
  std::string key2;  // second word after lookup ("" when there is none)
  PhraseValue value;
};

std::string word_at(const std::vector<std::string>& words, std::size_t i) {
  return i < words.size() ? words[i] : std::string();
}

std::string keyword_not_recognized(std::string_view word) {
  return " XXX  Keyword not recognized:         " + std::string(word);
}
std::string second_keyword_not_recognized(std::string_view word) {
  return " XXX  Second keyword not recognized:  " + std::string(word);
}
std::string fourth_keyword_not_recognized(std::string_view word) {
  return " XXX  Fourth keyword not recognized:  " + std::string(word);
}
std::string parm_subscript_out_of_range(int k) {
  const RecordItem item = static_cast<long long>(k);
  return " XXX  The parm subscript is out of range:" + format_record("(i10)", {&item, 1}).front();
}

// The message goes to both units; the summary unit has not seen the record, so it gets it too.
int report_error(Units& units, std::string_view record, const std::string& message,
                 int print_unit, int summary_unit) {
  write_line(units, print_unit, message);
  echo_record(units, summary_unit, record, kSummaryEchoIndent);
  write_line(units, summary_unit, message);
  return 1;
}

// A number in the second word is the phrase's value, not a second keyword: SCALE 0.5 is SCALE
// standing alone with a value.
bool second_word_absent(const Phrase& phrase) {
  double number = 0.0;
  return phrase.words.size() <= kSecondWord || read_number(phrase.words[kSecondWord], number);
}

bool second_keyword_fits(std::string_view pattern, const Phrase& phrase) {
  if (pattern == kAnyWord) return true;
  if (pattern == kNoWord) return second_word_absent(phrase);
  return pattern == phrase.key2;
}

const PhraseRule* find_rule(const Phrase& phrase) {
  for (const PhraseRule& rule : kRules) {
    if (rule.key == phrase.key && second_keyword_fits(rule.key2, phrase)) return &rule;
  }
  return nullptr;
}

Name8& set_name_of(Options& options, int index) {
  switch (index) {
    case kObjectiveName: return options.objective_name;
    case kRhsName: return options.rhs_name;
    case kRangesName: return options.ranges_name;
    default: return options.bounds_name;
  }
}

std::optional<int> start_class(const Phrase& phrase) {
  std::string key4;
  lookup_keyword(KeywordList::second, word_at(phrase.words, kFourthWord), key4);
  for (const StartClass& c : kStartClasses) {
    if (c.word == key4) return c.value;
  }
  return std::nullopt;
}

// IPARM k i / RPARM k r: the subscript k is the second word itself (0 when it is no number), the
// value the first number from the third word on.
int parm_subscript(const Phrase& phrase) {
  double k = 0.0;
  return read_number(word_at(phrase.words, kSecondWord), k) ? integer_value(k) : 0;
}

int apply_parm(Options& options, Units& units, const Phrase& phrase, bool real,
               std::string_view record, int print_unit, int summary_unit) {
  const int k = parm_subscript(phrase);
  if (k < 1 || k > kParmBlockSize) {
    return report_error(units, record, parm_subscript_out_of_range(k), print_unit, summary_unit);
  }
  const PhraseValue value = phrase_value(phrase.words, kThirdWord);
  if (real) {
    options.rval[k] = value.real;
  } else {
    options.ival[k] = value.integer;
  }
  return 0;
}

// A positive number on a SCALE phrase other than SCALE OPTION is the scale tolerance.
void apply_scale_tolerance(Options& options, const Phrase& phrase) {
  if (phrase.key == "SCALE" && phrase.key2 != "OPTION" && phrase.value.real > 0.0) {
    options.rval[kScaleTolerance] = phrase.value.real;
  }
}

int apply_rule(Options& options, Units& units, const PhraseRule& rule, const Phrase& phrase,
               std::string_view record, int print_unit, int summary_unit) {
  switch (rule.action) {
    case A::set_int: options.ival[rule.index] = phrase.value.integer; break;
    case A::set_real: options.rval[rule.index] = phrase.value.real; break;
    case A::set_int_to: options.ival[rule.index] = rule.fixed; break;
    case A::defaults: apply_defaults(options, units, 1); break;
    case A::parm_int:
    case A::parm_real:
      return apply_parm(options, units, phrase, rule.action == A::parm_real, record, print_unit,
                        summary_unit);
    case A::set_name:
      set_name_of(options, rule.index) = make_name(word_at(phrase.words, kSecondWord));
      break;
    case A::start_class: {
      const std::optional<int> value = start_class(phrase);
      if (!value) {
        return report_error(units, record,
                            fourth_keyword_not_recognized(word_at(phrase.words, kFourthWord)),
                            print_unit, summary_unit);
      }
      options.ival[kStartColumnClass] = *value;
      break;
    }
    case A::lu_singularity:
      options.rval[kLuSingularityTolerance] = phrase.value.real;
      options.rval[kLuSingularityTolerance2] = phrase.value.real;
      break;
    case A::nonlinear_variables:
      options.ival[kNonlinearObjectiveVars] = phrase.value.integer;
      options.ival[kNonlinearJacobianVars] = phrase.value.integer;
      break;
  }
  apply_scale_tolerance(options, phrase);
  return 0;
}

bool lookup_first_keyword(std::string_view word, std::string& key) {
  return lookup_keyword(KeywordList::first, word, key) ||
         lookup_keyword(KeywordList::further, word, key);
}

int apply_phrase(Options& options, Units& units, Phrase& phrase, std::string_view record,
                 int print_unit, int summary_unit) {
  if (!lookup_first_keyword(phrase.words.front(), phrase.key)) {
    return report_error(units, record, keyword_not_recognized(phrase.key), print_unit,
                        summary_unit);
  }
  lookup_keyword(KeywordList::second, word_at(phrase.words, kSecondWord), phrase.key2);
  const PhraseRule* rule = find_rule(phrase);
  if (rule == nullptr) {
    return report_error(units, record, second_keyword_not_recognized(phrase.key2), print_unit,
                        summary_unit);
  }
  return apply_rule(options, units, *rule, phrase, record, print_unit, summary_unit);
}

}  // namespace

void echo_record(Units& units, int unit, std::string_view record, int indent) {
  write_line(units, unit, std::string(indent, ' ') + std::string(trim_record(record)));
}

PhraseOutcome handle_phrase(Options& options, Units& units, std::string_view record,
                            int print_unit, int summary_unit) {
  const std::string_view columns = record_columns(record);
  echo_record(units, print_unit, columns, kPrintEchoIndent);
  Phrase phrase;
  phrase.words = split_words(strip_comment(columns));
  if (phrase.words.empty()) return {};
  if (phrase.words.front() == "END") return {.errors = 0, .end_of_set = true};
  phrase.value = phrase_value(phrase.words, kSecondWord);
  return {.errors = apply_phrase(options, units, phrase, columns, print_unit, summary_unit)};
}

int set_option(Options& options, Units& units, std::string_view phrase, int print_unit,
               int summary_unit) {
  return handle_phrase(options, units, phrase, print_unit, summary_unit).errors;
}

int set_option_int(Options& options, Units& units, std::string_view phrase, int value,
                   int print_unit, int summary_unit) {
  const std::string record = std::string(phrase) + " " + std::to_string(value);
  return set_option(options, units, record, print_unit, summary_unit);
}

}  // namespace tarvo::lp
