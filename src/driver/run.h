#pragma once
#include "driver/run_state.h"

namespace tarvo::driver {

// Runs TARVO in the current working directory, from the banner to the exit line. Returns the
// process exit status: without arguments (the default request) 0 in every case; with files named
// on the command line 0 after a normal exit and 1 after an error.
int run_tarvo(const RunRequest& request = {});

}  // namespace tarvo::driver
