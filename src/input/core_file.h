#pragma once
// The core problem MODEL.COR: read into the core slot and checked for what the decomposition
// needs (row 1 must be the free objective row).
#include <string>

#include "common/units.h"
#include "input/messages.h"
#include "input/mps_reader.h"
#include "input/status.h"
#include "lp/options.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

// After reading the core: a failed read gives "ERROR: reading MPS file <name>" and returns the
// failure. Otherwise row 1 must be free with limits of exactly -infinity and +infinity; if not,
// "ERROR: row 1 of problem <slot> is not a free row" is written and the slot stays not loaded,
// but the read still counts as successful (ok is returned). When both hold the slot is loaded.
InputStatus check_core_problem(lp::ProblemSlot& slot, int slot_number, const MpsReadResult& read,
                               const std::string& file_name, Units& units,
                               const MessageUnits& to);

// The driver's step: the core file (MODEL.COR unless named) on unit 24 into the core slot, the
// check above and, with iwrite >= 6, the dump MODEL.P00 on unit 27. The reader's faults also go
// to `to.err`. `read` receives the reader's result (the RHS set name is needed by the stochastic
// file).
InputStatus read_core_problem(lp::ProblemSlot& core, const lp::Options& options, Units& units,
                              int print_unit, int summary_unit, const MessageUnits& to,
                              int iwrite, MpsReadResult& read,
                              const std::string& file_name = "MODEL.COR");

}  // namespace tarvo::input
