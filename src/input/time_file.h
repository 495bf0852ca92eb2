#pragma once
// The time file MODEL.TIM: where the second stage begins in the core problem.
#include <string>

#include "common/units.h"
#include "input/messages.h"
#include "input/model.h"
#include "input/status.h"

namespace tarvo::input {

// Opens `file_name` (which must exist) on `unit`, reads the five records (any card, PERIODS, the
// stage-1 and stage-2 column and row names, ENDATA) into `names` and closes the unit. Records
// are echoed to `echo_unit` when open. On failure the message has been written to `to`.
InputStatus read_time_file(Units& units, const std::string& file_name, int unit, int echo_unit,
                           const MessageUnits& to, StageNames& names);

}  // namespace tarvo::input
