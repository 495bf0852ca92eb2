// The strategies end to end. The exact ones (the expected-value run followed by the universe,
// istrat 5; the universe alone, istrat 4, also with a regularized master, with a cut per outcome
// and with a few groups of outcomes; both with stabilized proposals) reach the known optimum of every small bundled problem, and
// the first-stage solution they report satisfies the first-stage rows of the core problem. The
// sampled ones on lands-1e6 (a million outcomes) report a 95% interval that covers the optimum.
#include <gtest/gtest.h>

#include <cmath>

#include "end_to_end_support.h"
#include "input/input_test_support.h"

namespace tarvo::testing {
namespace {

struct Known {
  const char* example;
  double optimum;      // of the deterministic equivalent, solved independently
  const char* groups;  // a number of cut groups between 1 and one per outcome
};

constexpr Known kKnown[] = {
    {"lands3", 381.853333, "2"},   {"lands3-blocks", 381.853333, "2"}, {"chem", -13009.1667, "2"},
    {"env-aggr", 20478.6990, "3"}, {"pltexpa2-6", -9.479354, "3"},     {"fxm2-6", 18417.0656, "3"},
    {"stormg2-8", 15535235.7, "3"},
};

// Largest violation of the core's first-stage rows by the reported first-stage values.
double first_stage_violation(const fs::path& dir, const StatusFile& sog) {
  input::testing::Model model;
  input::testing::load_model(model, dir.string());
  EXPECT_EQ(model.status, input::InputStatus::ok) << model.failed_step;
  const lp::ProblemSlot& core = model.core;
  const input::Decomposition& dec = model.dec;
  std::vector<double> activity(core.m + 1, 0.0);
  for (int j = dec.j1; j < dec.j2; ++j) {
    const auto found = sog.column_value.find(trimmed(std::string(lp::name_view(core.names[j]))));
    EXPECT_NE(found, sog.column_value.end()) << lp::name_view(core.names[j]);
    if (found == sog.column_value.end()) continue;
    for (int k = core.ka[j]; k < core.ka[j + 1]; ++k) activity[core.ha[k]] += core.a[k] * found->second;
  }
  double worst = 0.0;
  for (int i = std::max(dec.i1, 2); i < dec.i2; ++i) {
    const double lo = lp::row_lower(core, i), up = lp::row_upper(core, i);
    const double scale = 1.0 + std::abs(activity[i]);
    worst = std::max({worst, (lo - activity[i]) / scale, (activity[i] - up) / scale});
  }
  return worst;
}

TEST(ExactStrategies, ReachTheKnownOptimum) {
  for (const Known& k : kKnown) {
    const std::string grouped = std::string("4 istrat\n") + k.groups + " ncuts\n";
    const std::string stabilized = grouped + "0.8 stabil\n";
    for (const std::string strategy :
         {"4 istrat\n", "5 istrat\n", "4 istrat\n1 ireg\n", "4 istrat\n0 ncuts\n", grouped.c_str(),
          "5 istrat\n0.5 stabil\n", stabilized.c_str()}) {
      SCOPED_TRACE(std::string(k.example) + " " + strategy);
      const ExampleRun run(k.example, strategy + "100 nzrows\n1000 maxit\n1.0d-7 tolben\n");
      EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
      EXPECT_EQ(run.sog.status, 1);
      EXPECT_LT(relative_error(run.sog.objective, k.optimum), 1e-6) << run.sog.objective;
      EXPECT_LT(first_stage_violation(run.dir.path, run.sog), 1e-6);
      // With cut groups the status file lists the THETA of every group, not THETA itself.
      const bool groups = contains(strategy, "ncuts");
      EXPECT_EQ(run.sog.column_value.count("THG00001"), groups ? 1u : 0u);
      if (groups) {
        EXPECT_EQ(run.sog.column_value.count("THETA001"), 0u);
      }
    }
  }
}

TEST(ExactStrategies, EvaluationRunReproducesTheOptimum) {
  for (const char* example : {"lands3", "pltexpa2-6"}) {
    SCOPED_TRACE(example);
    const ExampleRun solved(example, "4 istrat\n");
    std::string sta = "* first-stage solution of the universe run\n";
    for (const auto& [name, value] : solved.sog.column_value) {
      std::ostringstream line;
      line.precision(17);
      line << name << " " << value << "\n";
      sta += line.str();
    }
    ExampleRun eval(example, "4 istrat\n", true);
    eval.dir.write("MODEL.STA", sta);
    eval.run("eval\n");
    EXPECT_TRUE(contains(eval.program.console, " Normal Exit\n"));
    EXPECT_LT(relative_error(eval.sog.objective, solved.sog.objective), 1e-7);
    EXPECT_TRUE(contains(eval.file("MODEL.SCR"), " reading solution\n"));
    EXPECT_FALSE(fs::exists(eval.dir.path / "fort.15"));  // an evaluation writes no run summary
  }
}

// The optimum of lands-1e6 as far as it is known (large samples of the deterministic equivalent).
constexpr double kLandsOptimum = 225.6;

struct Interval { double lower = 0.0; double upper = 0.0; };

Interval confidence_interval(const fs::path& dir) {
  const std::string sol = read_file(dir / "MODEL.SOL");
  const std::string label = "95% confidence interval:";
  const auto at = sol.rfind(label);
  Interval ci;
  if (at == std::string::npos) return ci;
  std::istringstream in(sol.substr(at + label.size()));
  in >> ci.lower >> ci.upper;
  return ci;
}

TEST(SampledStrategies, ConfidenceIntervalsCoverTheOptimum) {
  // Importance sampling, crude Monte Carlo, presampling and control variables, alone and after
  // the expected-value run.
  for (int istrat : {2, 3, 6, 7, 8, 9, 10, 11}) {
    SCOPED_TRACE("istrat " + std::to_string(istrat));
    const ExampleRun run("lands-1e6", std::to_string(istrat) + " istrat\n500 nsamples\n200 maxit\n");
    EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
    const Interval ci = confidence_interval(run.dir.path);
    EXPECT_LE(ci.lower, kLandsOptimum);
    EXPECT_GE(ci.upper, kLandsOptimum);
    EXPECT_LT(ci.lower, ci.upper);
    EXPECT_TRUE(contains(run.file("MODEL.SOL"), "initial seed:"));
  }
}

// env-aggr meets infeasible outcomes early; at its optimum the sampled costs barely vary, and the
// variance estimates must not drift below zero there, or the statistical test never passes.
TEST(SampledStrategies, RunsWithFeasibilityCutsEndByTheirTest) {
  for (int istrat : {7, 9, 11}) {
    SCOPED_TRACE("istrat " + std::to_string(istrat));
    const ExampleRun run("env-aggr", std::to_string(istrat) + " istrat\n100 maxit\n");
    EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
    EXPECT_TRUE(contains(run.file("MODEL.SCR"), " sub infeasible\n"));
    EXPECT_EQ(run.file("MODEL.ERR"), "");  // no limit warning
    EXPECT_LT(run.sog.iterations, 20);
  }
}

}  // namespace
}  // namespace tarvo::testing
