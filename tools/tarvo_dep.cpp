// tarvo-dep [--sample N] [--seed S] [--relax] PREFIX OUTPUT.mps (or CORE TIME STOCH OUTPUT.mps):
// reads a two-stage problem as tarvo does by path and writes its deterministic equivalent, over
// every outcome combination or over a seeded sample, as a fixed-column MPS file for any LP solver.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "driver/command_line.h"
#include "driver/model_phase.h"
#include "driver/path_run.h"
#include "sampling/deterministic_equivalent.h"

namespace {

using namespace tarvo;

constexpr int kOutputUnit = 41;

int fail(const std::string& message) {
  std::fflush(stdout);
  std::fprintf(stderr, "tarvo-dep: %s\n", message.c_str());
  return 1;
}

// The model as tarvo reads it by path, quietly: messages about faulty files on the console.
std::unique_ptr<driver::RunState> read_two_stage_model(const driver::RunRequest& request) {
  auto run = std::make_unique<driver::RunState>();
  run->request = request;
  run->params.nzrows = 0;
  run->log_unit = 0;
  run->params.irelax = request.relax ? 1 : 0;
  run->message_unit = kConsoleUnit;
  if (!driver::start_optimizer(*run) || !driver::prescan_model(*run) || !driver::read_model(*run)) return nullptr;
  return run;
}

bool choose_scenarios(const driver::CommandLine& line, const sampling::TwoStageModel& model,
                      sampling::ScenarioSet& set, std::string& error) {
  if (line.sample) {
    sampling::sampled_scenarios(model.store, *line.sample, line.seed.value_or(RunParams{}.iseed), set);
    return true;
  }
  if (sampling::universe_scenarios(model.store, sampling::scenario_limit(model), set)) return true;
  error = "the universe of " + std::to_string(static_cast<long long>(model.store.universe)) +
          " outcome combinations is too large to write; take a sample with --sample N";
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  const driver::CommandLine line = driver::parse_command_line({argv + 1, argv + argc}, driver::Program::dep);
  switch (line.action) {
    case driver::CommandAction::help: std::fputs(driver::usage_text(driver::Program::dep).c_str(), stdout); return 0;
    case driver::CommandAction::version: std::printf("tarvo-dep %s\n", driver::kTarvoVersion.data()); return 0;
    case driver::CommandAction::error: return fail(line.error + " (tarvo-dep --help tells more)");
    case driver::CommandAction::run: break;
  }
  driver::RunRequest request;
  std::string error;
  if (!driver::request_for(line, request, error)) return fail(error);
  request.params_file.clear();
  request.specs_file.clear();
  const auto run = read_two_stage_model(request);
  if (run == nullptr) return fail("the model could not be read (see the messages above)");
  lp::Optimizer& opt = run->optimizer;
  const sampling::TwoStageModel model{opt.slot[lp::kMasterSlot], opt.slot[lp::kSubproblemSlot], run->model,
                                      run->store};
  sampling::ScenarioSet set;
  if (!choose_scenarios(line, model, set, error)) return fail(error);
  if (!open_unit(run->units, kOutputUnit, line.output, OpenStatus::unknown)) return fail("cannot write " + line.output);
  sampling::DepSizes sizes;
  const bool written = sampling::write_deterministic_equivalent(model, set, run->units, kOutputUnit, sizes, error);
  close_all_units(run->units);
  if (!written) {
    std::remove(line.output.c_str());
    return fail(error);
  }
  if (run->core_read.integer_columns > 0) {
    std::printf("%d integer columns are written as continuous: the LP relaxation\n", run->core_read.integer_columns);
  }
  std::printf("%s: %d scenarios, %lld rows, %lld columns, %lld matrix entries\n", line.output.c_str(),
              sampling::scenario_count(set), sizes.rows, sizes.columns, sizes.entries);
  return 0;
}
