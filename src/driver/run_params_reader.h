#pragma once
// Reading the run parameters from MODEL.INP and echoing them to the screen log.
#include <string>

#include "common/run_params.h"
#include "common/units.h"

namespace tarvo::driver {

inline constexpr int kInputParamsUnit = 19;
inline constexpr int kMaxParamRecords = 1000;

// Sets every parameter to its default, then reads the parameter file (MODEL.INP unless named;
// none when the name is empty) when it exists. Returns false on a read error (the caller writes
// the message and takes the error exit).
bool read_run_params(Units& units, RunParams& params, const std::string& file_name = "MODEL.INP");

// One record of the file: a number and a keyword. Returns the parameter number (1..16, 17 for
// irelax, 18 ncuts, 19 nthreads, 20 stabil) the keyword names, or 0 when it names none.
int run_param_index(std::string_view keyword8);

// Stores `value` into parameter k (1..20); integer parameters take it truncated toward zero.
// False when an integer parameter's value does not fit in 32 bits.
bool set_run_param(RunParams& params, int k, double value);

void echo_run_params(Units& units, int unit, const RunParams& params);

// Strategies that draw a sample of `nsamples` points (all but 1, 4 and 5 of 1..11).
bool sampled_strategy(int istrat);

// The values read are taken as they stand, but a run cannot use every one: it needs a cut row
// and, for a sampled strategy, a sample point. False (message written to the error unit and to
// `log_unit`) when a value leaves the run nothing to work with.
bool run_params_usable(Units& units, int log_unit, int err_unit, const RunParams& params);

}  // namespace tarvo::driver
