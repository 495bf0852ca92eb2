#pragma once
// Section cards of the stochastic file and the messages that end its reading, shared by the
// prescan and the full read.
#include "common/units.h"
#include "input/messages.h"
#include "input/model_record.h"

namespace tarvo::input {

enum class StochSection { none, indep, blocks };

enum class StochCard { indep, blocks, endata, other };

StochCard stoch_card(const ModelRecord& record);

// INDEP and BLOCKS must say DISCRETE in columns 15-22.
bool discrete_card(const ModelRecord& record);

// "Option <name1> <name2> not supported!", then "program terminated."
void report_unsupported(Units& units, const MessageUnits& to, const ModelRecord& record);

// "error(s) in stoch file!", then "program terminated."
void report_stoch_failure(Units& units, const MessageUnits& to);

// "ERROR in .sto: bad number in line <n>"
void report_bad_number(Units& units, const MessageUnits& to, int line_number);

}  // namespace tarvo::input
