#pragma once
// Writing a problem slot as a fixed-column MPS file, and the debug dumps MODEL.P00/P01/P02.
#include <string>

#include "common/units.h"
#include "input/mps_reader.h"
#include "input/status.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

// Writes the slot to an open unit: NAME, ROWS, COLUMNS, RHS, RANGES, BOUNDS, ENDATA. The set
// names come from `names` (the problem name from the slot). Values of 0 and +-1 are written
// exactly, others with six significant digits; magnitudes of 1e19 and more count as infinite.
void write_mps(const lp::ProblemSlot& slot, const MpsNames& names, Units& units, int unit);

// Opens `file_name` on `dump_unit` (created or overwritten), writes a comment header with the
// slot number and sizes and then the problem, and closes the unit. missing_file when the file
// cannot be created.
InputStatus dump_problem(const lp::ProblemSlot& slot, int slot_number, const MpsNames& names,
                         Units& units, const std::string& file_name, int dump_unit);

}  // namespace tarvo::input
