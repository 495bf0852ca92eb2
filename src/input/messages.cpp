#include "input/messages.h"

#include "common/free_format.h"

#include <span>
#include <string>
#include <vector>

namespace tarvo::input {

std::string laid_out(std::string_view edit_list, std::initializer_list<RecordItem> items) {
  const std::vector<std::string> lines =
      format_record(edit_list, std::span<const RecordItem>(items.begin(), items.size()));
  return lines.empty() ? std::string() : lines.front();
}

void write_run_message(Units& units, const MessageUnits& to, std::string_view line) {
  write_if_open(units, to.log, line);
  if (to.err != to.log) write_if_open(units, to.err, line);
}

void report_no_file(Units& units, const MessageUnits& to, const std::string& file_name) {
  write_run_message(units, to, free_line("ERROR: No file ", file_name));
}

void write_if_open(Units& units, int unit, std::string_view line) {
  if (unit_is_open(units, unit)) write_line(units, unit, line);
}

}  // namespace tarvo::input
