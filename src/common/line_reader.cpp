#include "common/line_reader.h"

namespace tarvo {

bool next_line(LineReader& reader, std::string& line) {
  line.clear();
  if (reader.file == nullptr) return false;
  int c = std::getc(reader.file);
  if (c == EOF) return false;
  // Characters past the limit are read and dropped, so a huge line costs no memory.
  bool cut = false;
  for (; c != EOF && c != '\n'; c = std::getc(reader.file)) {
    if (line.size() < reader.max_length) {
      line += static_cast<char>(c);
    } else {
      cut = true;
    }
  }
  if (!cut && !line.empty() && line.back() == '\r') line.pop_back();
  ++reader.line_number;
  return true;
}

}  // namespace tarvo
