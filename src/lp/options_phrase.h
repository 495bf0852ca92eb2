#pragma once
// The phrase handler shared by the options-file reader and the run-time phrases.
#include <string_view>

#include "common/units.h"
#include "lp/options.h"

namespace tarvo::lp {

struct PhraseOutcome {
  int errors = 0;           // 0, or 1 for a phrase not understood (already reported)
  bool end_of_set = false;  // the first word was END
};

// Echoes the record to the print unit, then applies the phrase it holds.
PhraseOutcome handle_phrase(Options& options, Units& units, std::string_view record,
                            int print_unit, int summary_unit);

// Writes "record" to a unit after the blanks that set echoed records off (6 on the print unit,
// 1 on the summary unit).
void echo_record(Units& units, int unit, std::string_view record, int indent);
inline constexpr int kPrintEchoIndent = 6;
inline constexpr int kSummaryEchoIndent = 1;

}  // namespace tarvo::lp
