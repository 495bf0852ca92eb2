#pragma once
// Output and input files addressed by unit number, as every report of the run names them.
// Unit 6 is the console; unit 5 is standard input; a unit <= 0 means "no file". A file opened on
// any unit, whatever its number, receives the writes to that unit. Without one, writes to a unit
// <= 0 or to unit 5 are dropped, and writing to any other unit creates the file fort.<unit> in the
// working directory (that is how the run summary reaches fort.15). A file opened on unit 5 or 6
// stands in for standard input or the console until it is closed; the standard streams themselves
// are never closed.
#include <cstdio>
#include <map>
#include <string>
#include <string_view>

namespace tarvo {

inline constexpr int kStdinUnit = 5;
inline constexpr int kConsoleUnit = 6;
inline constexpr int kSolutionUnit = 16;  // MODEL.SOL
inline constexpr int kErrorUnit = 48;     // MODEL.ERR

enum class OpenStatus { old_file, unknown, unknown_input };

struct Units {
  std::map<int, std::FILE*> open;
};

// Opens `file` on `unit`, closing whatever the unit held. With old_file the file must exist and
// is opened for reading; with unknown it is created or overwritten for writing; with
// unknown_input it is opened for reading, created empty first when missing.
bool open_unit(Units& units, int unit, const std::string& file, OpenStatus status);
void close_unit(Units& units, int unit);
void close_all_units(Units& units);
bool unit_is_open(const Units& units, int unit);
// The stream of an opened unit (reading or writing), or nullptr.
std::FILE* unit_stream(const Units& units, int unit);

// Writes one line (a newline is added) to the unit. Write failures are ignored, as a report that
// cannot be written must not end the run.
void write_line(Units& units, int unit, std::string_view text);

}  // namespace tarvo
