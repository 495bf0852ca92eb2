#include "driver/solution_reader.h"

#include <string>

#include "common/free_format.h"
#include "common/line_reader.h"

namespace tarvo::driver {
namespace {

constexpr std::size_t kRecordLength = 72;
constexpr std::size_t kNameLength = 12;

// A free-form read of a name (up to 12 characters) and a real from one record.
bool parse_solution_record(std::string_view record, std::string& name, double& value) {
  std::vector<FreeItem> items;
  bool ended = false;
  if (!split_free_items(record, items, ended, 2) || items.size() < 2) return false;
  if (items[0].null || items[1].null || items[1].quoted) return false;
  if (!parse_free_real(items[1].text, value)) return false;
  name = items[0].text.substr(0, kNameLength);
  name.resize(kNameLength, ' ');
  return true;
}

int first_stage_column(const lp::ProblemSlot& master, int n1, const lp::Name8& name) {
  for (int j = 1; j <= n1; ++j) {
    if (master.names[j] == name) return j;
  }
  return 0;
}

}  // namespace

void read_solution(Units& units, int unit, int log_unit, const lp::ProblemSlot& master, int n1,
                   std::vector<double>& values) {
  values.assign(n1 + 1, 0.0);
  write_free(units, log_unit, "reading solution");
  LineReader reader{unit_stream(units, unit)};
  if (reader.file == nullptr) return;
  std::string line;
  for (int record = 1; next_line(reader, line); ++record) {
    const std::string_view text = std::string_view(line).substr(0, kRecordLength);
    if (!text.empty() && text[0] == '*') continue;
    std::string name;
    double value = 0.0;
    if (!parse_solution_record(text, name, value)) {
      write_free(units, log_unit, "ignored error reading solution in record ", record, ":");
      write_free(units, log_unit, text);
      continue;
    }
    const lp::Name8 key = lp::make_name(name);
    const int j = first_stage_column(master, n1, key);
    if (j == 0) {
      write_free(units, log_unit, "error: ", lp::name_view(key), " not found, ignored.");
    } else {
      values[j] = value;
    }
  }
}

}  // namespace tarvo::driver
