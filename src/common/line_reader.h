#pragma once
// Line-by-line reading of the model and option files. Whatever bytes a file holds, a line is
// returned as text: a trailing carriage return is dropped, and a line longer than the reader's
// limit keeps its first `max_length` characters (the record readers look at fewer columns).
#include <cstdio>
#include <string>

namespace tarvo {

struct LineReader {
  std::FILE* file = nullptr;
  int line_number = 0;        // lines read so far
  std::size_t max_length = 4096;
};

// Reads the next line into `line`; false at end of file (or on a read error).
bool next_line(LineReader& reader, std::string& line);

}  // namespace tarvo
