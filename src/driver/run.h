#pragma once

namespace tarvo::driver {

// Runs TARVO in the current working directory, from the banner to the exit line. Returns the
// process exit status, which is 0 in every case.
int run_tarvo();

}  // namespace tarvo::driver
