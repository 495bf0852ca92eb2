#include "driver/run.h"

#include <iostream>
#include <memory>
#include <string>

#include "common/free_format.h"
#include "driver/banner.h"
#include "driver/exit_routine.h"
#include "driver/mode_line.h"
#include "driver/model_phase.h"
#include "driver/run_params_reader.h"
#include "driver/run_state.h"
#include "driver/solve_phase.h"
#include "driver/timing_report.h"
#include "lp/optimizer.h"

namespace tarvo::driver {
namespace {

void open_run_files(RunState& run) {
  Units& u = run.units;
  open_unit(u, kSolutionUnit, "MODEL.SOL", OpenStatus::unknown);
  write_short_banner(u, kSolutionUnit);
  open_unit(u, kErrorUnit, "MODEL.ERR", OpenStatus::unknown);
}

void open_screen_log(RunState& run) {
  const int unit = run.params.iscratch == kConsoleUnit ? kConsoleUnit : kScreenLogUnit;
  if (unit != kConsoleUnit) open_unit(run.units, unit, "MODEL.SCR", OpenStatus::unknown);
  run.log_unit = unit;
  write_long_banner(run.units, unit);
  echo_run_params(run.units, unit, run.params);
}

// Ends a run that got through every phase: timing report, then the normal exit.
void finish_run(RunState& run) {
  clock_interval(run.clock, nullptr);
  write_timing_report(run);
  close_unit(run.units, kSolutionUnit);
  close_unit(run.units, kErrorUnit);
  error_exit(run, 0);
}

}  // namespace

int run_tarvo() {
  auto run = std::make_unique<RunState>();
  clock_start(run->clock);
  write_long_banner(run->units, kConsoleUnit);
  open_run_files(*run);
  if (!read_run_params(run->units, run->params)) {
    write_free(run->units, kErrorUnit, "error in file MODEL.INP");
    error_exit(*run, 1);
    return 0;
  }
  sampling::seed_generator(run->evaluation, run->params.iseed);
  open_screen_log(*run);
  if (!run_params_usable(run->units, run->log_unit, kErrorUnit, run->params)) {
    error_exit(*run, 1);
    return 0;
  }
  if (lp::optimizer_init(run->optimizer, run->units, run->log_unit, kErrorUnit,
                         run->params.iwrite) != 0) {
    // The optimizer could not start: stop at once, without the status file or the exit line.
    write_free(run->units, kErrorUnit, "ERROR: could not initialize optimizer");
    write_free(run->units, kConsoleUnit, "ERROR exit");
    close_all_units(run->units);
    return 0;
  }
  if (!prescan_model(*run)) {
    error_exit(*run, 1);
    return 0;
  }
  run->evaluation_run = read_mode_line(std::cin);
  if (!read_model(*run) || !prepare_solve(*run)) {
    error_exit(*run, 1);
    return 0;
  }
  const bool solved = run->evaluation_run ? evaluate_solution_file(*run)
                                          : solve_stochastic_program(*run);
  if (!solved) {
    error_exit(*run, 1);
    return 0;
  }
  finish_run(*run);
  return 0;
}

}  // namespace tarvo::driver
