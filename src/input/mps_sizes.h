#pragma once
// The size of an MPS file's problem, counted before it is read so that problem slots can be sized
// for it without an options file.
#include <string>

namespace tarvo::input {

// Upper bounds on what a read of the file stores: data lines of ROWS, column names and entries of
// COLUMNS (one or two per line; marker lines count nothing). All zero when the file cannot be
// opened.
struct MpsSizes {
  long long rows = 0;
  long long columns = 0;
  long long entries = 0;
};

MpsSizes count_mps_sizes(const std::string& file_name);

}  // namespace tarvo::input
