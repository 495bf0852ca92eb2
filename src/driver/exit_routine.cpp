#include "driver/exit_routine.h"

#include "common/free_format.h"
#include "driver/status_file.h"

namespace tarvo::driver {

void error_exit(RunState& run, int code) {
  run.model_status = 12;
  if (code != 0) {
    clock_interval(run.clock, nullptr);
  } else {
    run.model_status = 1;
    run.solver_status = 1;
  }
  if (run.params.igms == 1) write_status_file(run);
  write_free(run.units, kConsoleUnit);
  write_free(run.units, kConsoleUnit, code != 0 ? "ERROR Exit" : "Normal Exit");
  close_all_units(run.units);
}

}  // namespace tarvo::driver
