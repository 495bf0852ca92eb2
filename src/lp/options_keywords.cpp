#include "lp/options_keywords.h"

#include <array>
#include <span>

namespace tarvo::lp {

namespace {

constexpr std::array<std::string_view, 38> kFirstKeywords = {
    "CHECK",       "COMPLETION", "CRASH",       "DEBUG",      "DEFAULTS",
    "EXPAND",      "FACTORIZATION", "FEASIBILITY", "HESSIAN", "IPARM",
    "ITERATIONS",  "ITERS:ITERATIONS", "ITNS :ITERATIONS", "LAGRANGIAN", "LINESEARCH",
    "LOG",         "LU",         "MAJOR",       "MINOR",      "MULTIPLE",
    "OPTIMALITY",  "PARTIAL",    "PENALTY",     "PIVOT",      "PRINT",
    "RADIUS",      "ROWS",       "RPARM",       "SCALE",      "SOLUTION",
    "START",       "SUBSPACE",   "SUMMARY",     "SUPERBASICS", "TIMING",
    "UNBOUNDED",   "VERIFY",     "WEIGHT"};

constexpr std::array<std::string_view, 40> kSecondKeywords = {
    "(TOTAL)",     "(USER)",     "ALL",         "BASIC",      "COLUMNS",
    "CONSTRAINTS", "DAMPING",    "DEBUG",       "DENSE",      "DENSITY",
    "ELEMENTS",    "ELIGIBLE",   "FACTORIZATION", "FILE",     "FREQUENCY",
    "FULL",        "GRADIENTS",  "ITERATIONS",  "ITERS:ITERATIONS", "ITNS :ITERATIONS",
    "JACOBIAN",    "LEVEL",      "LIMIT",       "LINEAR",     "NO",
    "NONBASIC",    "NONLINEAR",  "OBJECTIVE",   "OPTION",     "PARTIAL",
    "PRINT",       "SINGULARITY", "SPARSE",     "STEP",       "SUPERBASIC",
    "SWAP",        "TOLERANCE",  "UPDATE",      "VARIABLES",  "YES"};

constexpr std::array<std::string_view, 35> kFurtherKeywords = {
    "AIJ",         "BACKUP",     "BOUNDS",      "CENTRAL",    "COEFFICIENTS",
    "COLUMNS",     "CYCLE",      "DERIVATIVE",  "DIFFERENCE", "DUMP",
    "ELEMENTS",    "ERROR",      "FUNCTION",    "INSERT",     "JACOBIAN",
    "LIST",        "LOAD",       "LOWER",       "MAXIMIZE",   "MINIMIZE",
    "MPS",         "NEW",        "NONLINEAR",   "OBJECTIVE",  "OLD",
    "PHANTOM",     "PROBLEM",    "PUNCH",       "RANGES",     "REPORT",
    "RHS",         "SAVE",       "STOP",        "UPPER",      "WORKSPACE"};

std::span<const std::string_view> entries(KeywordList list) {
  switch (list) {
    case KeywordList::first: return kFirstKeywords;
    case KeywordList::second: return kSecondKeywords;
    case KeywordList::further: return kFurtherKeywords;
  }
  return {};
}

// The part of an entry a word is matched against: the alias of a synonym, without its padding.
std::string_view entry_word(std::string_view entry) {
  std::string_view word = entry.substr(0, entry.find(':'));
  while (!word.empty() && word.back() == ' ') word.remove_suffix(1);
  return word;
}

std::string_view entry_target(std::string_view entry) {
  const std::size_t colon = entry.find(':');
  return colon == std::string_view::npos ? entry : entry.substr(colon + 1);
}

}  // namespace

bool lookup_keyword(KeywordList list, std::string_view word, std::string& key) {
  key = word;
  if (word.empty()) return false;
  for (std::string_view entry : entries(list)) {
    if (entry_word(entry).starts_with(word)) {
      key = entry_target(entry);
      return true;
    }
  }
  return false;
}

}  // namespace tarvo::lp
