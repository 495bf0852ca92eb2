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

// What the command line sets wins over the parameter file.
void apply_overrides(RunState& run) {
  const RunRequest& r = run.request;
  if (r.istrat) run.params.istrat = *r.istrat;
  if (r.nsamples) run.params.nsamples = *r.nsamples;
  if (r.iseed) run.params.iseed = *r.iseed;
  if (r.relax) run.params.irelax = 1;
}

int exit_status(const RunState& run, int code) { return run.request.by_path && code != 0 ? 1 : 0; }

// Ends a run that got through every phase: timing report, then the normal exit.
int finish_run(RunState& run) {
  clock_interval(run.clock, nullptr);
  write_timing_report(run);
  close_unit(run.units, kSolutionUnit);
  close_unit(run.units, kErrorUnit);
  error_exit(run, 0);
  return exit_status(run, 0);
}

int fail_run(RunState& run) {
  error_exit(run, 1);
  return exit_status(run, 1);
}

}  // namespace

int run_tarvo(const RunRequest& request) {
  auto run = std::make_unique<RunState>();
  run->request = request;
  clock_start(run->clock);
  write_long_banner(run->units, kConsoleUnit);
  open_run_files(*run);
  if (!read_run_params(run->units, run->params, request.params_file)) {
    write_free(run->units, kErrorUnit, "error in file ", request.params_file);
    return fail_run(*run);
  }
  apply_overrides(*run);
  sampling::seed_generator(run->evaluation, run->params.iseed);
  open_screen_log(*run);
  if (!run_params_usable(run->units, run->log_unit, kErrorUnit, run->params)) return fail_run(*run);
  if (!start_optimizer(*run)) {
    // The optimizer could not start: stop at once, without the status file or the exit line.
    write_free(run->units, kErrorUnit, "ERROR: could not initialize optimizer");
    write_free(run->units, kConsoleUnit, "ERROR exit");
    close_all_units(run->units);
    return exit_status(*run, 1);
  }
  if (!prescan_model(*run)) return fail_run(*run);
  run->evaluation_run = request.by_path ? request.evaluate : read_mode_line(std::cin);
  if (!read_model(*run) || !prepare_solve(*run)) return fail_run(*run);
  const bool solved = run->evaluation_run ? evaluate_solution_file(*run)
                                          : solve_stochastic_program(*run);
  if (!solved) return fail_run(*run);
  return finish_run(*run);
}

}  // namespace tarvo::driver
