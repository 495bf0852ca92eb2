#pragma once
// Tests that read and write files run in a fresh temporary directory of their own.
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace tarvo::lp::testing {

// Makes a fresh directory and enters it; at the end returns to the previous directory and
// removes it.
struct WorkDir {
  std::filesystem::path previous = std::filesystem::current_path();
  std::filesystem::path path;

  WorkDir() {
    std::random_device seed;
    do {
      path = std::filesystem::temp_directory_path() / ("tarvo_lp_" + std::to_string(seed()));
    } while (!std::filesystem::create_directory(path));
    std::filesystem::current_path(path);
  }
  ~WorkDir() {
    std::filesystem::current_path(previous);
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
};

inline void write_file(const std::string& name, const std::string& text) {
  std::ofstream(name, std::ios::binary) << text;
}

inline std::string read_file(const std::string& name) {
  std::ostringstream text;
  text << std::ifstream(name, std::ios::binary).rdbuf();
  return text.str();
}

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
