#pragma once
// Running TARVO on a bundled example and reading back what a caller reads: the status file
// MODEL.SOG, the solution report and the console.
#include <map>
#include <sstream>
#include <string>

#include "run_in_dir.h"

namespace tarvo::testing {

struct StatusFile {
  int status = 0;
  int solsta = 0;
  int iterations = 0;
  double objective = 0.0;
  std::map<std::string, double> column_value;  // first-stage columns by name
};

inline double number_after(const std::string& text, const std::string& label) {
  const auto at = text.find(label);
  if (at == std::string::npos) return -1.0e300;
  return std::stod(text.substr(at + label.size()));
}

inline std::string trimmed(std::string s) {
  while (!s.empty() && s.back() == ' ') s.pop_back();
  return s;
}

// The header lines and the first block of column records (the master's first-stage columns).
inline StatusFile read_status_file(const fs::path& dir) {
  const std::string text = read_file(dir / "MODEL.SOG");
  StatusFile sog;
  sog.status = static_cast<int>(number_after(text, "status  = "));
  sog.solsta = static_cast<int>(number_after(text, "solsta  = "));
  sog.iterations = static_cast<int>(number_after(text, "itusd  = "));
  sog.objective = number_after(text, "objval  = ");
  std::istringstream in(text);
  std::string line;
  int previous = 0;
  while (std::getline(in, line)) {
    if (line.size() < 59 || line.compare(0, 1, " ") != 0 || line[8] != ' ') continue;
    const int number = std::stoi(line.substr(1, 7));
    if (number <= previous) break;  // the subproblem's columns start again from 1
    previous = number;
    sog.column_value[trimmed(line.substr(9, 8))] = std::stod(line.substr(18, 20));
  }
  return sog;
}

// A bundled example in a fresh directory, its MODEL.INP replaced, and what running TARVO on it
// left; the directory goes with the object.
struct ExampleRun {
  ScratchDir dir;
  ProgramRun program;
  StatusFile sog;

  // Runs at once unless `later`, which leaves room to change the files first.
  ExampleRun(const std::string& name, const std::string& inp, bool later = false) : dir(name) {
    copy_example(name, dir.path);
    write_file(dir.path / "MODEL.INP", inp + "1 igms\n");
    if (!later) run();
  }
  void run(const std::string& mode = "") {
    program = run_program(TARVO_BINARY, dir.path, mode);
    sog = read_status_file(dir.path);
  }
  std::string file(const std::string& name) const { return read_file(dir.path / name); }
};

// TARVO run in a fresh directory holding only MODEL.INP (none when null) and, unless told
// otherwise, the sample options.
struct BareRun {
  ScratchDir dir{"bare"};
  ProgramRun program;
  explicit BareRun(const char* inp, bool options = true) {
    if (inp != nullptr) write_file(dir.path / "MODEL.INP", inp);
    if (options) write_file(dir.path / "SIMPLEX.SPC", kSampleOptions);
    program = run_program(TARVO_BINARY, dir.path, "");
  }
  std::string file(const std::string& name) const { return read_file(dir.path / name); }
  bool has(const std::string& name) const { return fs::exists(dir.path / name); }
};

// The last master objective of a run's screen log (9 significant digits).
inline double final_objective(const fs::path& dir) {
  const std::string log = read_file(dir / "MODEL.SCR");
  const auto at = log.rfind(" obj : ");
  return at == std::string::npos ? -1.0e300 : std::stod(log.substr(at + 7));
}

// tarvo-lp's optimum of the deterministic equivalent tarvo-dep writes with `arguments` (the model
// files) into `dir`.
inline double equivalent_optimum(const fs::path& dir, const std::string& arguments) {
  const ProgramRun dep = run_program(TARVO_DEP_BINARY, dir, "", arguments + " dep.mps");
  if (dep.status != 0) return -1.0e300;
  const ProgramRun lp = run_program(TARVO_LP_BINARY, dir, "", "dep.mps");
  return number_after(lp.console, "status 0 (optimal)  objective ");
}

inline double relative_error(double value, double reference) {
  return std::abs(value - reference) / std::max(1.0, std::abs(reference));
}

}  // namespace tarvo::testing
