#pragma once
#include <istream>

namespace tarvo::driver {

// Reads the one line of standard input into a 12-character field; true when it asks for an
// evaluation run ("eval" or "EVAL" exactly, blank-padded). No input means a normal solve.
bool read_mode_line(std::istream& in);

}  // namespace tarvo::driver
