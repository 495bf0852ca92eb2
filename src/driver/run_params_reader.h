#pragma once
// Reading the run parameters from MODEL.INP and echoing them to the screen log.
#include "common/run_params.h"
#include "common/units.h"

namespace tarvo::driver {

inline constexpr int kInputParamsUnit = 19;
inline constexpr int kMaxParamRecords = 1000;

// Sets every parameter to its default, then reads MODEL.INP when it exists. Returns false on a
// read error (the caller writes the message and takes the error exit).
bool read_run_params(Units& units, RunParams& params);

// One record of the file: a number and a keyword. Returns the parameter number (1..18) the
// keyword names, or 0 when it names none.
int run_param_index(std::string_view keyword8);

// Stores `value` into parameter k (1..18); integer parameters take it truncated toward zero.
// False when an integer parameter's value does not fit in 32 bits.
bool set_run_param(RunParams& params, int k, double value);

void echo_run_params(Units& units, int unit, const RunParams& params);

}  // namespace tarvo::driver
