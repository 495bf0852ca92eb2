#include "driver/run_state.h"

namespace tarvo::driver {

sampling::Context sampling_context(RunState& run) {
  return sampling::Context{run.units,
                           run.params,
                           run.clock,
                           run.optimizer,
                           run.model,
                           run.store,
                           run.log_unit,
                           kErrorUnit,
                           run.solve.iterations,
                           run.solve.master_primal,
                           run.solve.master_duals,
                           run.solve.first_stage_cost,
                           run.model_status,
                           run.solver_status};
}

}  // namespace tarvo::driver
