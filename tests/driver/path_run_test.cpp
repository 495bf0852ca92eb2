// Runs with files named on the command line: on every bundled problem the same reports as without
// arguments and the optimum of the deterministic equivalent (tarvo-dep, solved by tarvo-lp);
// dakota from its SCENARIOS file, integer columns, one line for each bad command line or file, and
// the command-line parser under random words.
#include <gtest/gtest.h>

#include <random>

#include "driver/command_line.h"
#include "end_to_end_support.h"

namespace tarvo::testing {
namespace {

const std::string kSource = TARVO_SOURCE_DIR;

// The solution reports of MODEL.SOL, without the timing lines.
std::string reports(const fs::path& dir) {
  const std::string text = read_file(dir / "MODEL.SOL");
  return text.substr(0, text.find(" execution time"));
}

TEST(PathRun, EveryBundledProblemAsWithoutArgumentsAndAsItsEquivalent) {
  // Each example's MODEL.INP asks for the universe after the expected values, but lands-1e6's
  // (importance sampling of a million outcomes) and stormg2-1000's, whose universe takes seconds:
  // its expected-value run stands for it. tarvo-dep's samples of these two are checked with the tools.
  const std::pair<const char*, const char*> runs[] = {
      {"lands3", ""}, {"lands3-blocks", ""}, {"chem", ""},      {"env-aggr", ""},          {"pltexpa2-6", ""},
      {"fxm2-6", ""}, {"stormg2-8", ""},     {"lands-1e6", ""}, {"stormg2-1000", "--strategy 1"}};
  for (const auto& [name, options] : runs) {
    SCOPED_TRACE(name);
    ScratchDir plain(name), by_path("by-path");
    copy_example(name, plain.path);
    if (*options != '\0') write_file(plain.path / "MODEL.INP", "1 istrat\n");
    run_program(TARVO_BINARY, plain.path, "");
    // MODEL.INP is found beside the files as PREFIX.inp; SIMPLEX.SPC is not read.
    const std::string prefix = kSource + "/examples/" + name + "/MODEL";
    const ProgramRun run = run_program(TARVO_BINARY, by_path.path, "", std::string(options) + " " + prefix);
    EXPECT_EQ(run.status, 0) << run.console;
    EXPECT_TRUE(contains(reports(by_path.path), " objective: "));
    EXPECT_EQ(reports(by_path.path), reports(plain.path));
    EXPECT_TRUE(contains(read_file(by_path.path / "MODEL.SCR"), " Simplex slots sized from the model:"));
    if (contains(reports(by_path.path), "-UNIVERSE- SOLUTION:")) {
      EXPECT_LT(relative_error(equivalent_optimum(by_path.path, prefix), final_objective(by_path.path)), 1e-6);
    }
  }
}

// Strategy 4 on dakota is checked against its equivalent with the tools.
TEST(PathRun, DakotaFromItsScenarios) {
  ScratchDir out("dakota");
  out.write("run.inp", "1 igms\n");
  out.write("run.spc", kSampleOptions);
  // The core file itself stands for its prefix.
  const ProgramRun run = run_program(TARVO_BINARY, out.path, "",
                                     "--inp run.inp --spc run.spc --strategy 6 " + kSource + "/examples/dakota/dakota.cor");
  EXPECT_EQ(run.status, 0) << run.console;
  EXPECT_LT(relative_error(read_status_file(out.path).objective, -24000.0), 1e-9);
  EXPECT_TRUE(contains(read_file(out.path / "MODEL.SCR"), " Simplex specs file:\n rows:     3000\n"));
}

// The newsvendor of the test data with its order quantity marked integer.
void write_integer_newsvendor(const ScratchDir& dir) {
  const fs::path data = kSource + "/tests/data/newsvendor/newsvendor";
  std::string core = read_file(data.string() + ".cor");
  core.insert(core.find("    ORDER"), "    M1        'MARKER'                 'INTORG'\n");
  core.insert(core.find("    SALES"), "    M2        'MARKER'                 'INTEND'\n");
  dir.write("MODEL.COR", core);
  dir.write("MODEL.TIM", read_file(data.string() + ".tim"));
  dir.write("MODEL.STO", read_file(data.string() + ".sto"));
  dir.write("SIMPLEX.SPC", kSampleOptions);
}

TEST(PathRun, IntegerColumnsStopUnlessRelaxed) {
  const std::string error = " ERROR: column ORDER is integer; TARVO solves linear programs: run with --relax";
  const std::string warning = " WARNING: integer column ORDER solved as continuous: the LP relaxation\n";
  ScratchDir dir("integer");
  write_integer_newsvendor(dir);
  const ProgramRun stopped = run_program(TARVO_BINARY, dir.path, "", "MODEL");
  EXPECT_EQ(stopped.status, 1);
  EXPECT_TRUE(contains(stopped.console, error)) << stopped.console;
  EXPECT_TRUE(contains(read_file(dir.path / "MODEL.ERR"), error));

  const ProgramRun relaxed = run_program(TARVO_BINARY, dir.path, "", "--relax --strategy 4 MODEL");
  EXPECT_EQ(relaxed.status, 0);
  EXPECT_TRUE(contains(read_file(dir.path / "MODEL.SOL"), warning));
  EXPECT_TRUE(contains(read_file(dir.path / "MODEL.SCR"), warning));
  EXPECT_TRUE(contains(read_file(dir.path / "MODEL.SOL"), " objective:          -7.50000E+01"));

  // Without arguments integer columns are relaxed as always: silently, unless irelax asks.
  for (const char* inp : {"", "1 irelax\n"}) {
    dir.write("MODEL.INP", inp);
    const ProgramRun plain = run_program(TARVO_BINARY, dir.path, "");
    EXPECT_TRUE(contains(plain.console, " Normal Exit\n"));
    EXPECT_EQ(contains(read_file(dir.path / "MODEL.SOL"), warning), *inp != '\0');
  }
}

TEST(PathRun, EachBadCommandLineOrFileHasItsLine) {
  ScratchDir dir("bad-args");
  const std::string data = kSource + "/tests/data/newsvendor/newsvendor";
  // The extensions in any case, .stoch for .sto.
  dir.write("nv.COR", read_file(data + ".cor"));
  dir.write("nv.Tim", read_file(data + ".tim"));
  dir.write("nv.stoch", read_file(data + ".sto"));
  dir.write("lone.cor", "");
  fs::create_directory(dir.path / "folder");
  const std::pair<const char*, const char*> cases[] = {
      {"--bogus nv", "unknown option '--bogus' (tarvo --help tells more)"},
      {"nv --strategy", "--strategy needs a value"},
      {"--strategy 12 nv", "--strategy takes a whole number from 1 to 11, not '12'"},
      {"--seed=0 nv", "--seed takes a whole number from 1 to 2147483646, not '0'"},
      {"--relax=1 nv", "--relax takes no value"},
      {"nv nv.Tim", "give a file prefix, or the core, time and stochastic files (2 names given)"},
      {"missing", "no core file missing.cor or missing.core (the extension in any case)"},
      {"lone", "no time file lone.tim or lone.time"},
      {"nv.COR nv.Tim nowhere.sto", "cannot read nowhere.sto: No such file or directory"},
      {"folder nv.Tim nv.stoch", "cannot read folder: it is a folder"},
      {"--inp none.inp nv", "cannot read none.inp: No such file or directory"},
      {"--out nv.COR nv", "output folder nv.COR is not a folder"},
  };
  for (const auto& [args, message] : cases) {
    const ProgramRun run = run_program(TARVO_BINARY, dir.path, "", args);
    EXPECT_EQ(run.status, 1) << args;
    EXPECT_EQ(run.console.rfind("tarvo: ", 0), 0u) << run.console;
    EXPECT_EQ(count_of(run.console, "\n"), 1) << run.console;
    EXPECT_TRUE(contains(run.console, message)) << run.console;
  }
  EXPECT_FALSE(fs::exists(dir.path / "MODEL.SOL"));  // nothing was written
  // The first stage of the newsvendor has no rows; the outputs go to a new folder. Its optimal
  // order, evaluated, costs the optimum.
  EXPECT_EQ(run_program(TARVO_BINARY, dir.path, "", "--strategy 4 --out out/run nv").status, 0);
  EXPECT_TRUE(contains(read_file(dir.path / "out/run/MODEL.SOL"), " objective:          -7.50000E+01"));
  dir.write("order.sta", "ORDER 100\n");
  EXPECT_EQ(run_program(TARVO_BINARY, dir.path, "", "--strategy 4 --eval order.sta --out out/eval nv").status, 0);
  EXPECT_TRUE(contains(read_file(dir.path / "out/eval/MODEL.SOL"), " objective:          -7.50000E+01"));
  EXPECT_TRUE(contains(read_file(dir.path / "out/eval/MODEL.SCR"), " reading solution\n"));
}

TEST(CommandLine, RandomWordsGiveARunOrOneLineOfError) {
  const std::vector<std::string> words = {
      "--strategy", "--samples", "--seed", "--inp", "--spc", "--out", "--eval", "--relax", "--sample",  "--help",
      "--version",  "-h",        "--",     "-",     "7",     "-3",    "0",      "1e3",     "99999999999", "",
      "p",          "--seed=5",  "--=",    "---",   "--relax=", "\xff\x01\t", "--strategy=11"};
  std::mt19937 rng(5);
  int runs = 0, errors = 0;
  for (int k = 0; k < 20000; ++k) {
    std::vector<std::string> args(rng() % 7);
    for (std::string& word : args) {
      word = words[rng() % words.size()];
      if (rng() % 8 == 0) word += static_cast<char>(rng() % 256);
    }
    for (const driver::Program program : {driver::Program::tarvo, driver::Program::dep}) {
      const driver::CommandLine line = driver::parse_command_line(args, program);
      if (line.action == driver::CommandAction::error) {
        ++errors;
        EXPECT_FALSE(line.error.empty());
        for (const char c : line.error) ASSERT_TRUE(c >= ' ' && c <= '~') << line.error;
      } else if (line.action == driver::CommandAction::run) {
        ++runs;
        EXPECT_TRUE(line.models.size() == 1 || line.models.size() == 3);
        EXPECT_TRUE(line.strategy.value_or(1) >= 1 && line.strategy.value_or(1) <= 11);
        EXPECT_GE(line.seed.value_or(1), 1);
      }
    }
  }
  EXPECT_GT(runs, 1000);
  EXPECT_GT(errors, 1000);
}

}  // namespace
}  // namespace tarvo::testing
