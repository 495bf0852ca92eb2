#pragma once
// The Parameters report: every option's value after the defaults, by group.
#include "common/units.h"
#include "lp/options.h"

namespace tarvo::lp {

// Writes the report to the print file when the print unit and the print level are above 0 and
// the report switch (IPARM 3) is on.
void write_parameters_report(const Options& options, Units& units);

}  // namespace tarvo::lp
