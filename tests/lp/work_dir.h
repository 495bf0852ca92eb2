#pragma once
// Tests that read and write files run in a fresh temporary directory of their own.
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "run_in_dir.h"

namespace tarvo::lp::testing {

using tarvo::testing::read_file;
using tarvo::testing::write_file;

// Makes a fresh directory and enters it; at the end returns to the previous directory and
// removes it.
struct WorkDir {
  std::filesystem::path previous = std::filesystem::current_path();
  std::filesystem::path path = tarvo::testing::fresh_directory("lp");

  WorkDir() { std::filesystem::current_path(path); }
  ~WorkDir() {
    std::filesystem::current_path(previous);
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
};

inline std::vector<std::string> read_lines(const std::string& name) {
  std::vector<std::string> lines;
  std::istringstream text(read_file(name));
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

inline bool has_line(const std::vector<std::string>& lines, const std::string& wanted) {
  for (const std::string& line : lines) {
    if (line == wanted) return true;
  }
  return false;
}

}  // namespace tarvo::lp::testing
