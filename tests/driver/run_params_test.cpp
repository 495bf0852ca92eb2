// The run parameters as a user sees them: MODEL.INP in, the echo in the screen log out.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "driver/mode_line.h"
#include "end_to_end_support.h"

namespace tarvo::testing {
namespace {

struct InpCase {
  const char* name;
  const char* inp;  // nullptr: no MODEL.INP at all
  const char* expected_echo_lines;  // lines that must stand in the echo, '\n'-separated
};

TEST(RunParams, ModelInpIsReadAndEchoed) {
  const std::string defaults =
      " istrat    =  3\n nsamples  =  100\n nzrows    =  100\n maxit     =  1000\n"
      " iwrite    =  0\n ibug      =  0\n iscratch  =  17\n iresamp   =  1\n igms      =  0\n"
      " ireg      =  0\n rho       =   1000.\n tolben    =   1.E-07\n tolw      =   1.E-09\n"
      " iappr     =  1\n maxtime   =   345600.\n iseed     =  12933428\n ncuts     =  1\n"
      " nthreads  =  1\n";
  std::string thousand;  // the records after the first thousand are not read
  for (int i = 1; i < 1000; ++i) thousand += "1 iwrite\n";
  thousand += "8 istrat\n9 istrat\n";
  const InpCase cases[] = {
      {"missing file", nullptr, defaults.c_str()},
      {"only the first thousand records", thousand.c_str(), " istrat    =  8\n"},
      {"empty file", "", defaults.c_str()},
      {"the documented example", "3 istrat\n500 NSAMPLES\n1.0d-6 tolben\n2.5 maxit\n",
       " istrat    =  3\n nsamples  =  500\n maxit     =  2\n tolben    =   1.E-06\n"},
      {"rho kept above its floor", ".5 rho\n", " rho       =   .5\n"},
      {"rho of zero raised", "0 rho\n", " rho       =   1.E-06\n"},
      {"negative rho raised", "-3 RHO\n", " rho       =   1.E-06\n"},
      {"truncation toward zero", "3.99 istrat\n-2.9 ibug\n", " istrat    =  3\n ibug      =  -2\n"},
      {"keyword cut to eight characters", "7 nsamplesx\n", " nsamples  =  7\n"},
      {"mixed case matches nothing", "9 Istrat\n", " istrat    =  3\n"},
      {"quoted keyword and comma", "4,'maxit'\n6, \"NZROWS\"\n", " maxit     =  4\n nzrows    =  6\n"},
      {"record continues on the next line", "5\n\n  istrat  trailing words\n",
       " istrat    =  5\n"},
      {"last value of a repeated keyword", "2 istrat\n4 istrat\n", " istrat    =  4\n"},
      {"negative values taken as they stand", "-5 nsamples\n13 istrat\n",
       " nsamples  =  -5\n istrat    =  13\n"},
      {"half record at end of file", "11 iseed\n8\n", " iseed     =  11\n istrat    =  3\n"},
      {"unknown keyword ignored", "3 foo\n7 maxit\n", " maxit     =  7\n"},
      {"huge real for a real parameter", "1e30 maxtime\n", " maxtime   =   1.E+30\n"},
      {"cut groups and threads", "0 NCUTS\n2 nthreads\n", " ncuts     =  0\n nthreads  =  2\n"},
  };
  for (const InpCase& c : cases) {
    SCOPED_TRACE(c.name);
    const BareRun run(c.inp);
    EXPECT_EQ(run.program.status, 0);
    const std::string log = run.file("MODEL.SCR");
    EXPECT_TRUE(contains(log, " parameters: \n \n istrat    = ")) << log;
    std::istringstream wanted(c.expected_echo_lines);
    for (std::string line; std::getline(wanted, line);) {
      EXPECT_TRUE(contains(log, line + "\n")) << "missing: [" << line << "]\n" << log;
    }
    // Without a model the run goes on to the stochastic file and ends there.
    EXPECT_EQ(run.file("MODEL.ERR"), " ERROR in file MODEL.STO\n");
    EXPECT_TRUE(contains(run.program.console, "\n \n ERROR Exit\n")) << run.program.console;
  }
}

TEST(RunParams, FaultyRecordsEndTheRunBeforeTheEcho) {
  const char* faulty[] = {
      "abc istrat\n",           // a word where the number must stand
      "3 istrat\nfive maxit\n", // a later faulty record
      "'3' istrat\n",           // quoted text is no number
      "\x01\x02\xff\xfe istrat\n",
      "1e30 istrat\n",          // beyond any 32-bit integer
      "1.5.5 maxit\n",
  };
  for (const char* inp : faulty) {
    SCOPED_TRACE(inp);
    const BareRun run(inp);
    EXPECT_EQ(run.program.status, 0);
    EXPECT_EQ(run.file("MODEL.ERR"), " error in file MODEL.INP\n");
    EXPECT_FALSE(contains(run.file("MODEL.SCR"), "parameters:"));
    EXPECT_TRUE(contains(run.program.console, "\n \n ERROR Exit\n")) << run.program.console;
  }
}

// Values taken as they stand but leaving the run nothing to work with end it through the error
// exit, after the echo, with every report in place; a sample size the strategy does not use
// stands.
TEST(RunParams, ValuesTheRunCannotUseEndItWithTheirMessage) {
  const struct {
    const char* inp;
    const char* message;  // "": the run ends normally
  } cases[] = {
      {"-5 nsamples\n6 istrat\n", " error: nsamples must be at least 1 for a sampled strategy\n"},
      {"0 nsamples\n10 istrat\n", " error: nsamples must be at least 1 for a sampled strategy\n"},
      {"-1 nzrows\n4 istrat\n", " error: nzrows must be at least 1\n"},
      {"-5 nzrows\n4 istrat\n", " error: nzrows must be at least 1\n"},
      {"1.0 stabil\n4 istrat\n", " error: stabil must be at least 0 and below 1\n"},
      {"-0.1 stabil\n4 istrat\n", " error: stabil must be at least 0 and below 1\n"},
      {"-5 nsamples\n5 istrat\n", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.inp);
    const ExampleRun run("lands3", c.inp);
    const std::string log = run.file("MODEL.SCR");
    EXPECT_TRUE(contains(log, " parameters: ") && contains(log, c.message)) << log;
    EXPECT_EQ(run.file("MODEL.SOL").rfind("  T  A  R  V  O ", 0), 0u);
    EXPECT_EQ(run.file("MODEL.ERR"), c.message);
    EXPECT_TRUE(contains(run.program.console, *c.message ? " ERROR Exit\n" : " Normal Exit\n"));
    EXPECT_EQ(run.sog.status, *c.message ? 12 : 1);
  }
}

TEST(RunParams, ModeLineSelectsEvaluationOnlyWhenSpelledExactly) {
  const struct {
    const char* input;
    bool evaluation;
  } cases[] = {
      {"eval\n", true},   {"EVAL\n", true},   {"eval", true},     {"eval   \n", true},
      {"eval\r\n", true}, {"Eval\n", false},  {" eval\n", false}, {"evaluate\n", false},
      {"", false},        {"\n", false},      {"eval        x\n", true},
  };
  for (const auto& c : cases) {
    std::istringstream in(c.input);
    EXPECT_EQ(driver::read_mode_line(in), c.evaluation) << "[" << c.input << "]";
  }
}

}  // namespace
}  // namespace tarvo::testing
