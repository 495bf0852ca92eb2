// Exact strategies end to end: the expected-value run followed by the universe (istrat 5), the
// universe alone (istrat 4) and the universe with a regularized master reach the known optimum
// of every small bundled problem, and the first-stage solution they report satisfies the
// first-stage rows of the core problem.
#include <gtest/gtest.h>

#include <cmath>

#include "end_to_end_support.h"
#include "input/mps_reader.h"
#include "input/name_lookup.h"
#include "input/time_file.h"
#include "lp/optimizer.h"

namespace tarvo::testing {
namespace {

struct Known {
  const char* example;
  double optimum;
};

// Optima of the deterministic equivalents, solved independently.
constexpr Known kKnown[] = {
    {"lands3", 381.853333},        {"lands3-blocks", 381.853333}, {"chem", -13009.1667},
    {"env-aggr", 20478.6990},      {"pltexpa2-6", -9.479354},     {"fxm2-6", 18417.0656},
    {"stormg2-8", 15535235.7},
};

// Largest violation of the core's first-stage rows by the reported first-stage values.
double first_stage_violation(const fs::path& dir, const StatusFile& sog) {
  Units units;
  lp::Options options;
  options.ival.fill(lp::kUnsetInt);
  options.rval.fill(lp::kUnsetReal);
  lp::ProblemSlot core;
  lp::allocate_slot(core, 3000, 10000, 120000);
  const std::string cor = (dir / "MODEL.COR").string();
  const std::string tim = (dir / "MODEL.TIM").string();
  EXPECT_EQ(input::read_mps_file(core, options, units, cor, 24, 0, 0).errors, 0);
  input::StageNames names;
  EXPECT_FALSE(input::failed(input::read_time_file(units, tim, 32, 0, {0, 0}, names)));
  const int i1 = input::find_row(core, names.stage1_row);
  const int i2 = input::find_row(core, names.stage2_row, i1 + 1);
  const int j1 = input::find_column(core, names.stage1_column);
  const int j2 = input::find_column(core, names.stage2_column, j1 + 1);
  std::vector<double> activity(core.m + 1, 0.0);
  for (int j = j1; j < j2; ++j) {
    const auto found = sog.column_value.find(trimmed(std::string(lp::name_view(core.names[j]))));
    EXPECT_NE(found, sog.column_value.end()) << lp::name_view(core.names[j]);
    if (found == sog.column_value.end()) continue;
    for (int k = core.ka[j]; k < core.ka[j + 1]; ++k) activity[core.ha[k]] += core.a[k] * found->second;
  }
  double worst = 0.0;
  for (int i = std::max(i1, 2); i < i2; ++i) {
    const double lo = lp::row_lower(core, i), up = lp::row_upper(core, i);
    const double scale = 1.0 + std::abs(activity[i]);
    worst = std::max({worst, (lo - activity[i]) / scale, (activity[i] - up) / scale});
  }
  return worst;
}

TEST(ExactStrategies, ReachTheKnownOptimum) {
  for (const Known& k : kKnown) {
    // The universe alone, after the expected-value run, and with the regularized master.
    for (const char* strategy : {"4 istrat\n", "5 istrat\n", "4 istrat\n1 ireg\n"}) {
      SCOPED_TRACE(std::string(k.example) + " " + strategy);
      const ExampleRun run(k.example, std::string(strategy) + "100 nzrows\n1000 maxit\n1.0d-7 tolben\n");
      EXPECT_TRUE(contains(run.program.console, " Normal Exit\n"));
      EXPECT_EQ(run.sog.status, 1);
      EXPECT_LT(relative_error(run.sog.objective, k.optimum), 1e-6) << run.sog.objective;
      EXPECT_LT(first_stage_violation(run.dir.path, run.sog), 1e-6);
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

}  // namespace
}  // namespace tarvo::testing
