#pragma once
#include "driver/run_state.h"

namespace tarvo::driver {

// MODEL.SOG, the status file for a calling modelling system.
void write_status_file(RunState& run);

}  // namespace tarvo::driver
