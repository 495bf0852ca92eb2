#pragma once
// Section cards of the stochastic file and the messages that end its reading, shared by the
// prescan and the full read.
#include "common/units.h"
#include "input/messages.h"
#include "input/model_record.h"

namespace tarvo::input {

enum class StochSection { none, indep, blocks, scenarios };

enum class StochCard { indep, blocks, scenarios, endata, other };

StochCard stoch_card(const ModelRecord& record);

// INDEP, BLOCKS and SCENARIOS must say DISCRETE in columns 15-22.
bool discrete_card(const ModelRecord& record);

// The section a card opens (INDEP, BLOCKS or SCENARIOS).
StochSection section_of(StochCard card);

// SCENARIOS describe the whole distribution, so they stand alone: true when `card` would mix
// them with INDEP or BLOCKS after the sections seen so far. The message names the line.
bool mixes_scenarios(StochCard card, bool scenarios_seen, bool parameters_seen);
void report_mixed_sections(Units& units, const MessageUnits& to, int line_number);

// The key of a SCENARIOS section's scenario lines.
inline constexpr std::string_view kScenarioKey = " SC ";

// "Option <name1> <name2> not supported!", then "program terminated."
void report_unsupported(Units& units, const MessageUnits& to, const ModelRecord& record);

// "error(s) in stoch file!", then "program terminated."
void report_stoch_failure(Units& units, const MessageUnits& to);

// "ERROR in .sto: bad number in line <n>"
void report_bad_number(Units& units, const MessageUnits& to, int line_number);

}  // namespace tarvo::input
