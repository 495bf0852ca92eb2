#pragma once
// Writing a problem slot as a fixed-column MPS file, and the debug dumps MODEL.P00/P01/P02.
#include <array>
#include <string>
#include <string_view>

#include "common/units.h"
#include "input/mps_reader.h"
#include "input/status.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

// Writes the slot to an open unit: NAME, ROWS, COLUMNS, RHS, RANGES, BOUNDS, ENDATA. The set
// names come from `names` (the problem name from the slot). Values of 0 and +-1 are written
// exactly, others with six significant digits; magnitudes of 1e19 and more count as infinite.
void write_mps(const lp::ProblemSlot& slot, const MpsNames& names, Units& units, int unit);

// The writer's decisions on a row with limits [lower, upper] and a column with bounds [lower,
// upper], shared with every writer of MPS files: magnitudes of 1e19 and more are infinite.
// Row type: E, N, L or G (a ranged row is a G row with a RANGES entry).
char row_letter(double lower, double upper);
// The RHS entry (lower when finite, else upper when finite, else 0) and whether the row has a
// RANGES entry (both limits finite and different; its value is upper - lower).
double row_rhs(double lower, double upper);
bool row_ranged(double lower, double upper);

// One BOUNDS line: its key (" FX ", " FR ", " MI ", " LO ", " UP ") and value.
struct BoundLine {
  std::string_view key;
  double value = 0.0;
  bool has_value = true;  // FR and MI lines carry none
};
// The lines for a column with bounds [lower, upper]: 0, 1 or 2 of them, in file order.
int bound_lines(double lower, double upper, std::array<BoundLine, 2>& lines);

// A value for a 12-column field of a fixed-column MPS file, with as many significant digits as
// fit (a leading 0 before the point and the exponent's padding dropped).
std::string mps_value_field(double value);

// Opens `file_name` on `dump_unit` (created or overwritten), writes a comment header with the
// slot number and sizes and then the problem, and closes the unit. missing_file when the file
// cannot be created.
InputStatus dump_problem(const lp::ProblemSlot& slot, int slot_number, const MpsNames& names,
                         Units& units, const std::string& file_name, int dump_unit);

}  // namespace tarvo::input
