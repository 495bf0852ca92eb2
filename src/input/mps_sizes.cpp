#include "input/mps_sizes.h"

#include <cstdio>
#include <string_view>

#include "common/line_reader.h"
#include "input/mps_read_state.h"

namespace tarvo::input {

namespace {

bool blank(std::string_view field) { return field.find_first_not_of(' ') == std::string_view::npos; }

// Columns 5-12, 15-22 and 40-47 of a line padded to the reader's 61 columns.
std::string_view field(const std::string& line, std::size_t at) { return std::string_view(line).substr(at, 8); }

void count_column_line(const std::string& line, std::string& last_column, MpsSizes& sizes) {
  if (field(line, 14) == "'MARKER'") return;
  if (sizes.columns == 0 || field(line, 4) != last_column) {
    ++sizes.columns;
    last_column = field(line, 4);
  }
  sizes.entries += blank(field(line, 39)) ? 1 : 2;
}

}  // namespace

MpsSizes count_mps_sizes(const std::string& file_name) {
  MpsSizes sizes;
  std::FILE* file = std::fopen(file_name.c_str(), "r");
  if (file == nullptr) return sizes;
  LineReader reader{.file = file, .line_number = 0, .max_length = mps::kMpsColumns};
  std::string line, section, last_column;
  while (next_line(reader, line)) {
    if (line.empty() || line[0] == '*') continue;
    line.resize(mps::kMpsColumns, ' ');
    if (line[0] != ' ') {
      section = line.substr(0, 4);
    } else if (section == "ROWS") {
      ++sizes.rows;
    } else if (section == "COLU") {
      count_column_line(line, last_column, sizes);
    }
  }
  std::fclose(file);
  return sizes;
}

}  // namespace tarvo::input
