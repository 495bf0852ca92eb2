#pragma once
// Everything a run owns, created once by the driver and passed to the phases.
#include <optional>
#include <string>

#include "common/clock.h"
#include "common/run_params.h"
#include "common/units.h"
#include "benders/solve_state.h"
#include "input/model.h"
#include "input/mps_reader.h"
#include "lp/optimizer.h"
#include "sampling/evaluation.h"

namespace tarvo::driver {

// Fixed units of the run's files.
inline constexpr int kBaseUnit = 15;  // run summary, fort.15
inline constexpr int kStatusUnit = 18;
inline constexpr int kSprUnit = 7;
inline constexpr int kStochUnit = 8;
inline constexpr int kSolutionInputUnit = 35;
// MODEL.SCR is written on a unit of its own whatever `iscratch` names, so that no value of it can
// mean "no file" (0 or less), standard input (5), or another file's unit.
inline constexpr int kScreenLogUnit = 17;

// The files a run reads and what its command line sets; the defaults are the run without
// arguments, in the working directory.
struct RunRequest {
  std::string core = "MODEL.COR";
  std::string time = "MODEL.TIM";
  std::string stoch = "MODEL.STO";
  std::string params_file = "MODEL.INP";    // empty: none, every parameter at its default
  std::string specs_file = "SIMPLEX.SPC";   // empty: the slots are sized from the core file
  std::string solution_file = "MODEL.STA";  // evaluation runs
  bool by_path = false;   // files named on the command line: exit status 1 after an error
  bool evaluate = false;  // by path, the evaluation run is asked for here (else standard input)
  std::optional<int> istrat;
  std::optional<int> nsamples;
  std::optional<int> iseed;
  bool relax = false;
};

struct RunState {
  RunRequest request;
  Units units;
  RunParams params;
  RunClock clock;
  lp::Optimizer optimizer;
  input::StageNames stage_names;
  input::MpsReadResult core_read;
  input::Decomposition model;
  input::OutcomeStore store;
  sampling::Evaluation evaluation;
  benders::SolveState solve;
  int log_unit = kScreenLogUnit;  // the console when iscratch is 6, else MODEL.SCR
  int message_unit = kErrorUnit;  // where model-input messages go besides the screen log
  int model_status = 0;
  int solver_status = 0;
  bool evaluation_run = false;
  bool solve_ready = false;  // the solve state is sized: the reports have a master to show
};

// What the sampling layer and the Benders loop borrow from the run.
sampling::Context sampling_context(RunState& run);

}  // namespace tarvo::driver
