#include "driver/mode_line.h"

#include <string>

namespace tarvo::driver {

bool read_mode_line(std::istream& in) {
  std::string line;
  if (!std::getline(in, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  std::string field = line.substr(0, 12);
  field.resize(12, ' ');
  return field == "eval        " || field == "EVAL        ";
}

}  // namespace tarvo::driver
