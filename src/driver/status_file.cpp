#include "driver/status_file.h"

#include "common/free_format.h"

namespace tarvo::driver {

void write_status_file(RunState& run) {
  Units& u = run.units;
  if (!open_unit(u, kStatusUnit, "MODEL.SOG", OpenStatus::unknown)) return;
  write_free(u, kStatusUnit, "status  = ", run.model_status);
  write_free(u, kStatusUnit, "solsta  = ", run.solver_status);
  write_free(u, kStatusUnit, "itusd  = ", run.iterations);
  write_free(u, kStatusUnit, "resusd = ", run.clock.execution);
  write_free(u, kStatusUnit, "objval  = ", run.master_objective);
  write_free(u, kStatusUnit, "domerr  = ", "0");
  close_unit(u, kStatusUnit);
}

}  // namespace tarvo::driver
