#pragma once
// The command lines of tarvo and tarvo-dep. Options take the usual forms: "--name value",
// "--name=value", "-h" for "--help"; "--" ends the options. Parsing looks at the words only;
// finding and checking the files they name is model_files.h's.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::driver {

inline constexpr std::string_view kTarvoVersion = "1.0";

enum class Program { tarvo, dep };
enum class CommandAction { run, help, version, error };

struct CommandLine {
  CommandAction action = CommandAction::run;
  std::string error;                // one line saying what is wrong (action error)
  std::vector<std::string> models;  // a prefix, or the core, time and stochastic files
  std::string output;               // tarvo-dep: the MPS file to write
  std::optional<int> strategy;
  std::optional<int> samples;
  std::optional<int> seed;
  std::optional<int> sample;        // tarvo-dep: sample size (none: the universe)
  std::string inp, spc, out, eval;  // empty when not given
  bool relax = false;
};

// `args` without the program name.
CommandLine parse_command_line(const std::vector<std::string>& args, Program program);

// The text of --help.
std::string usage_text(Program program);

}  // namespace tarvo::driver
