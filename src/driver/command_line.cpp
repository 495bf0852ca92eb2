#include "driver/command_line.h"

#include <climits>

#include "common/number_text.h"

namespace tarvo::driver {

namespace {

struct KnownOption {
  std::string_view name;
  bool takes_value;
  bool tarvo;  // accepted by tarvo
  bool dep;    // accepted by tarvo-dep
};

constexpr KnownOption kOptions[] = {
    {"strategy", true, true, false}, {"samples", true, true, false}, {"seed", true, true, true},
    {"inp", true, true, false},      {"spc", true, true, false},     {"out", true, true, false},
    {"eval", true, true, false},     {"relax", false, true, true},   {"sample", true, false, true},
    {"help", false, true, true},     {"version", false, true, true},
};

// The highest seed the generator takes; seed 0 would stay 0 for ever.
constexpr int kHighestSeed = INT_MAX - 1;

const KnownOption* find_option(std::string_view name, Program program) {
  for (const KnownOption& option : kOptions) {
    if (option.name == name && (program == Program::tarvo ? option.tarvo : option.dep)) return &option;
  }
  return nullptr;
}

bool fail(CommandLine& line, std::string message) {
  line.action = CommandAction::error;
  line.error = std::move(message);
  return false;
}

// A word as it may stand in a message: printable, and not too long.
std::string quoted(std::string_view word) {
  std::string text;
  for (const char c : word.substr(0, 40)) text += (c >= ' ' && c <= '~') ? c : '?';
  return "'" + text + (word.size() > 40 ? "...'" : "'");
}

bool whole_number(CommandLine& line, std::string_view option, const std::string& text, int lowest,
                  int highest, std::optional<int>& value) {
  long long number = 0;
  if (!parse_integer_text(text, number) || number < lowest || number > highest) {
    return fail(line, "--" + std::string(option) + " takes a whole number from " + std::to_string(lowest) +
                          " to " + std::to_string(highest) + ", not " + quoted(text));
  }
  value = static_cast<int>(number);
  return true;
}

bool apply_option(CommandLine& line, std::string_view name, const std::string& value) {
  if (name == "help") line.action = CommandAction::help;
  if (name == "version") line.action = CommandAction::version;
  if (name == "relax") line.relax = true;
  if (name == "strategy") return whole_number(line, name, value, 1, 11, line.strategy);
  if (name == "samples") return whole_number(line, name, value, 1, INT_MAX, line.samples);
  if (name == "sample") return whole_number(line, name, value, 1, INT_MAX, line.sample);
  if (name == "seed") return whole_number(line, name, value, 1, kHighestSeed, line.seed);
  if (name == "inp") line.inp = value;
  if (name == "spc") line.spc = value;
  if (name == "out") line.out = value;
  if (name == "eval") line.eval = value;
  return true;
}

// One option word at args[k]; its value may be the next word, which k then skips.
bool read_option(CommandLine& line, const std::vector<std::string>& args, std::size_t& k, Program program) {
  const std::string& word = args[k];
  const std::string body = word == "-h" ? "help" : word.substr(2);
  const std::size_t equals = body.find('=');
  const std::string name = body.substr(0, equals);
  const KnownOption* known = find_option(name, program);
  if (known == nullptr) return fail(line, "unknown option " + quoted(word));
  if (!known->takes_value) {
    if (equals != std::string::npos) return fail(line, "--" + name + " takes no value");
    return apply_option(line, name, "");
  }
  if (equals != std::string::npos) return apply_option(line, name, body.substr(equals + 1));
  if (k + 1 >= args.size()) return fail(line, "--" + name + " needs a value");
  return apply_option(line, name, args[++k]);
}

bool is_option(const std::string& word) { return word == "-h" || (word.size() > 2 && word.compare(0, 2, "--") == 0); }

// tarvo: a prefix or three model files; tarvo-dep: the same and the output file.
bool take_names(CommandLine& line, std::vector<std::string> names, Program program) {
  if (program == Program::dep) {
    if (names.size() != 2 && names.size() != 4) {
      return fail(line, "give a file prefix, or the core, time and stochastic files, then the output file");
    }
    line.output = names.back();
    names.pop_back();
  } else if (names.size() != 1 && names.size() != 3) {
    return fail(line, "give a file prefix, or the core, time and stochastic files (" +
                          std::to_string(names.size()) + " names given)");
  }
  line.models = std::move(names);
  return true;
}

}  // namespace

CommandLine parse_command_line(const std::vector<std::string>& args, Program program) {
  CommandLine line;
  std::vector<std::string> names;
  bool options_end = false;
  for (std::size_t k = 0; k < args.size(); ++k) {
    if (!options_end && args[k] == "--") {
      options_end = true;
    } else if (!options_end && is_option(args[k])) {
      // A failed option, --help or --version ends the reading.
      if (!read_option(line, args, k, program) || line.action != CommandAction::run) return line;
    } else {
      names.push_back(args[k]);
    }
  }
  take_names(line, std::move(names), program);
  return line;
}

std::string usage_text(Program program) {
  if (program == Program::dep) {
    return "usage: tarvo-dep [--sample N] [--seed S] [--relax] PREFIX OUTPUT.mps\n"
           "       tarvo-dep [--sample N] [--seed S] [--relax] CORE TIME STOCH OUTPUT.mps\n"
           "Writes the deterministic equivalent of the two-stage problem in PREFIX.cor, .tim and .sto\n"
           "(or the three files named) as a fixed-column MPS file: over every outcome combination, or\n"
           "over a sample of N outcomes drawn with seed S (default 12933428).\n"
           "  --relax      write a core with integer columns as its LP relaxation\n";
  }
  return "usage: tarvo [options] PREFIX            reads PREFIX.cor, PREFIX.tim, PREFIX.sto\n"
         "       tarvo [options] CORE TIME STOCH\n"
         "       tarvo                            reads MODEL.COR, MODEL.TIM, MODEL.STO, MODEL.INP and\n"
         "                                        SIMPLEX.SPC in the current folder\n"
         "The extensions may be in any case; .core, .time and .stoch do as well.\n"
         "  --strategy N  1 expected values, 2 importance sampling, 4 universe, 6 crude Monte Carlo,\n"
         "                8 Monte Carlo presampling, 10 control variables; odd values 3 to 11 solve the\n"
         "                expected-value problem first (istrat)\n"
         "  --samples N   sample size (nsamples)\n"
         "  --seed S      seed of the random numbers (iseed)\n"
         "  --inp FILE    run parameters in MODEL.INP form (default: PREFIX.inp when there is one)\n"
         "  --spc FILE    optimizer options in SIMPLEX.SPC form (default: sized from the model)\n"
         "  --out DIR     folder for MODEL.SOL and the other outputs (default: the current folder)\n"
         "  --eval FILE   evaluate the first-stage solution in FILE (MODEL.STA form)\n"
         "  --relax       solve the LP relaxation of a core with integer columns\n"
         "  --help, --version\n"
         "Options override the values of the parameter file. The exit status is 0 after a normal\n"
         "exit and 1 after an error.\n";
}

}  // namespace tarvo::driver
