#pragma once
// Helpers for tests that run a built TARVO program in a fresh working directory.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace tarvo::testing {

namespace fs = std::filesystem;

inline fs::path fresh_directory(const std::string& tag) {
  static std::mt19937_64 rng(std::random_device{}());
  fs::path dir = fs::temp_directory_path() / ("tarvo-" + tag + "-" + std::to_string(rng()));
  fs::create_directories(dir);
  return dir;
}

inline void write_file(const fs::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
}

inline std::string read_file(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

inline std::vector<std::string> split_lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

inline std::vector<std::string> read_lines(const fs::path& path) { return split_lines(read_file(path)); }

inline bool has_line(const std::vector<std::string>& lines, const std::string& wanted) {
  return std::find(lines.begin(), lines.end(), wanted) != lines.end();
}

// A fresh directory for one test, removed with the object.
struct ScratchDir {
  fs::path path;
  explicit ScratchDir(const std::string& tag = "scratch") : path(fresh_directory(tag)) {}
  ScratchDir(const ScratchDir&) = delete;
  ScratchDir& operator=(const ScratchDir&) = delete;
  ~ScratchDir() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  std::string file(const std::string& name) const { return (path / name).string(); }
  void write(const std::string& name, const std::string& text) const { write_file(path / name, text); }
};

// A scratch directory that is the working directory while the object lives.
struct WorkDir : ScratchDir {
  fs::path previous = fs::current_path();
  explicit WorkDir(const std::string& tag = "work") : ScratchDir(tag) { fs::current_path(path); }
  ~WorkDir() { fs::current_path(previous); }
};

// Options with room for every bundled problem.
inline const char* const kSampleOptions =
    "BEGIN  options for the bundled test problems\n"
    "   ROWS                   3000\n"
    "   COLUMNS               10000\n"
    "   ELEMENTS             120000\n"
    "   ITERATIONS LIMIT     200000\n"
    "   PRINT LEVEL               0\n"
    "END\n";

inline void copy_example(const std::string& name, const fs::path& dir) {
  const fs::path source = fs::path(TARVO_SOURCE_DIR) / "examples" / name;
  for (const auto& entry : fs::directory_iterator(source)) {
    const std::string file = entry.path().filename().string();
    if (file.rfind("MODEL.", 0) == 0 || file == "SIMPLEX.SPC") {
      fs::copy_file(entry.path(), dir / file, fs::copy_options::overwrite_existing);
    }
  }
}

struct ProgramRun { int status = -1; std::string console; };

// Runs `program` in `dir` with `input` on standard input; returns the exit status and console.
inline ProgramRun run_program(const std::string& program, const fs::path& dir,
                              const std::string& input, const std::string& arguments = "") {
  write_file(dir / ".stdin", input);
  const std::string command = "cd '" + dir.string() + "' && '" + program + "' " + arguments +
                              " < .stdin > .console 2>&1";
  ProgramRun run;
  const int raw = std::system(command.c_str());
  run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  run.console = read_file(dir / ".console");
  fs::remove(dir / ".stdin");
  fs::remove(dir / ".console");
  return run;
}

inline bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

inline int count_of(const std::string& text, const std::string& part) {
  int n = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++n;
  return n;
}

}  // namespace tarvo::testing
