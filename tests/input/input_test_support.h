#pragma once
// Shared helpers of the model-input tests: slots and options as the driver sets them up, the
// whole read of an example directory, and temporary files.
#include <sstream>
#include <string>
#include <vector>

#include "common/units.h"
#include "input/decompose.h"
#include "input/model.h"
#include "input/core_file.h"
#include "input/stoch_file.h"
#include "input/time_file.h"
#include "lp/options.h"
#include "lp/problem_slot.h"
#include "run_in_dir.h"

namespace tarvo::input::testing {

inline std::string example_dir(const std::string& problem) {
  return std::string(TARVO_SOURCE_DIR) + "/examples/" + problem;
}

inline std::string example_file(const std::string& problem, const std::string& file) {
  return example_dir(problem) + "/" + file;
}

inline const std::vector<std::string>& example_problems() {
  static const std::vector<std::string> problems = {
      "20term", "chem", "env-aggr", "fxm2-6", "lands-1e6", "lands3", "lands3-blocks",
      "pltexpa2-6", "stormg2-1000", "stormg2-8"};
  return problems;
}

// The reader's options with the defaults of an options file that sets none of them.
inline lp::Options default_options() {
  lp::Options options;
  options.ival.fill(lp::kUnsetInt);
  options.rval.fill(lp::kUnsetReal);
  options.ival[lp::kErrorMessageLimit] = 10;
  options.ival[lp::kListLimit] = 0;
  options.rval[lp::kLowerBoundDefault] = 0.0;
  options.rval[lp::kUpperBoundDefault] = lp::kInfiniteBound;
  return options;
}

inline lp::ProblemSlot make_slot(int rows = 3000, int columns = 10000, int elements = 120000) {
  lp::ProblemSlot slot;
  lp::allocate_slot(slot, rows, columns, elements);
  return slot;
}

// Everything the model input produces for one example.
struct Model {
  Model() = default;
  Model(int rows, int columns, int elements)
      : core(make_slot(rows, columns, elements)),
        master(make_slot(rows, columns, elements)),
        sub(make_slot(rows, columns, elements)) {}
  Units units;
  lp::ProblemSlot core = make_slot();
  lp::ProblemSlot master = make_slot();
  lp::ProblemSlot sub = make_slot();
  Decomposition dec;
  OutcomeStore store;
  StageNames stages;
  MpsReadResult read;
  InputStatus status = InputStatus::ok;
  std::string failed_step;
};

inline constexpr int kStoUnit = 8;
inline constexpr int kTimUnit = 32;
inline constexpr int kCorUnit = 24;

// Reads time, core and stochastic files of a directory in the driver's order.
inline void load_model(Model& model, const std::string& dir, const MessageUnits& to = {},
                       int print_unit = 0, int nzrows = 100) {
  const auto step = [&](InputStatus status, const char* name) {
    if (failed(status) && !failed(model.status)) {
      model.status = status;
      model.failed_step = name;
    }
    return !failed(status);
  };
  const lp::Options options = default_options();
  if (!open_unit(model.units, kStoUnit, dir + "/MODEL.STO", OpenStatus::old_file)) {
    step(InputStatus::missing_file, "open sto");
    return;
  }
  const InputStatus prescan = prescan_stoch_file(model.units, kStoUnit, 0, to, model.store);
  close_unit(model.units, kStoUnit);
  if (!step(prescan, "prescan")) return;
  allocate_outcome_store(model.store);
  if (!step(read_time_file(model.units, dir + "/MODEL.TIM", kTimUnit, 0, to, model.stages), "time")) return;
  model.read = read_mps_file(model.core, options, model.units, dir + "/MODEL.COR", kCorUnit, print_unit, 0);
  if (!step(check_core_problem(model.core, lp::kCoreSlot, model.read, dir + "/MODEL.COR", model.units, to),
            "core")) {
    return;
  }
  allocate_decomposition(model.dec, model.core);
  if (!step(decompose(model.core, model.stages, nzrows, model.master, model.sub, model.dec, model.units, to),
            "decompose")) {
    return;
  }
  const StochContext context{model.master, model.sub, model.dec, model.read.names.rhs,
                             {model.stages.stage1_period, model.stages.stage2_period}};
  step(read_stoch_file(model.units, dir + "/MODEL.STO", kStoUnit, 0, to, context, model.store), "stoch");
}

using TempDir = tarvo::testing::ScratchDir;
using tarvo::testing::read_file;
using tarvo::testing::write_file;

}  // namespace tarvo::input::testing
