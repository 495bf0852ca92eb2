#pragma once
// Everything a run owns, created once by the driver and passed to the phases.
#include "common/clock.h"
#include "common/run_params.h"
#include "common/units.h"
#include "input/model.h"
#include "input/mps_reader.h"
#include "lp/optimizer.h"

namespace tarvo::driver {

// Fixed units of the run's files.
inline constexpr int kBaseUnit = 15;  // run summary, fort.15
inline constexpr int kSolutionUnit = 16;
inline constexpr int kStatusUnit = 18;
inline constexpr int kSprUnit = 7;
inline constexpr int kStochUnit = 8;
inline constexpr int kSolutionInputUnit = 35;
inline constexpr int kErrorUnit = 48;

struct RunState {
  Units units;
  RunParams params;
  RunClock clock;
  lp::Optimizer optimizer;
  input::StageNames stage_names;
  input::MpsReadResult core_read;
  input::Decomposition model;
  input::OutcomeStore store;
  int model_status = 0;
  int solver_status = 0;
  bool evaluation_run = false;
  int iterations = 0;
  double master_objective = 0.0;
};

}  // namespace tarvo::driver
