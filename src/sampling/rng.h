#pragma once
// The run's one random-number generator: x <- 16807 x mod (2^31 - 1), seeded once from iseed and
// running on through every evaluation, so that a run is reproducible from its seed.
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Advances the state and returns u in (0, 1); a state of 0 stays 0 and gives u = 0.
double rngnext(Generator& g);

}  // namespace tarvo::sampling
