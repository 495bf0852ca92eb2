#pragma once
// Where model input writes: run-level messages go to the screen log and to MODEL.ERR; listings go
// only to units that are open.
#include <initializer_list>
#include <string>
#include <string_view>

#include "common/record_format.h"
#include "common/units.h"

namespace tarvo::input {

struct MessageUnits {
  int log = 0;  // screen log (iscratch)
  int err = 0;  // MODEL.ERR
};

// Writes the line to the log unit and to the error unit (once when they are the same).
void write_run_message(Units& units, const MessageUnits& to, std::string_view line);

// One laid-out line (edit lists without "/").
std::string laid_out(std::string_view edit_list, std::initializer_list<RecordItem> items);

// "ERROR: No file <name>" for a model file that must exist.
void report_no_file(Units& units, const MessageUnits& to, const std::string& file_name);

// Writes the line only when the unit is open.
void write_if_open(Units& units, int unit, std::string_view line);

}  // namespace tarvo::input
