#include "common/units.h"

namespace tarvo {

namespace {

// The console and standard input stand behind units 6 and 5 unless a file was opened there;
// they are never closed.
std::FILE* standard_stream(int unit) {
  if (unit == kConsoleUnit) return stdout;
  if (unit == kStdinUnit) return stdin;
  return nullptr;
}

// The file a write to a never-opened unit creates.
std::string default_file_name(int unit) { return "fort." + std::to_string(unit); }

// A missing file of status unknown_input is created empty, then read like an old one.
std::FILE* open_stream(const std::string& file, OpenStatus status) {
  if (status == OpenStatus::unknown) return std::fopen(file.c_str(), "w");
  std::FILE* stream = std::fopen(file.c_str(), "r");
  if (stream != nullptr || status == OpenStatus::old_file) return stream;
  std::FILE* created = std::fopen(file.c_str(), "w");
  if (created == nullptr) return nullptr;
  std::fclose(created);
  return std::fopen(file.c_str(), "r");
}

}  // namespace

bool open_unit(Units& units, int unit, const std::string& file, OpenStatus status) {
  close_unit(units, unit);
  std::FILE* stream = open_stream(file, status);
  if (stream == nullptr) return false;
  units.open[unit] = stream;
  return true;
}

void close_unit(Units& units, int unit) {
  const auto found = units.open.find(unit);
  if (found == units.open.end()) return;
  std::fclose(found->second);
  units.open.erase(found);
}

void close_all_units(Units& units) {
  for (const auto& [unit, stream] : units.open) std::fclose(stream);
  units.open.clear();
  std::fflush(stdout);
}

bool unit_is_open(const Units& units, int unit) { return unit_stream(units, unit) != nullptr; }

std::FILE* unit_stream(const Units& units, int unit) {
  const auto found = units.open.find(unit);
  return found != units.open.end() ? found->second : standard_stream(unit);
}

void write_line(Units& units, int unit, std::string_view text) {
  std::FILE* stream = unit_stream(units, unit);
  if (stream == stdin) return;
  if (stream == nullptr) {
    if (unit <= 0) return;
    if (!open_unit(units, unit, default_file_name(unit), OpenStatus::unknown)) return;
    stream = units.open[unit];
  }
  std::fwrite(text.data(), 1, text.size(), stream);
  std::fputc('\n', stream);
}

}  // namespace tarvo
