#pragma once
#include "common/units.h"

namespace tarvo::driver {

void write_long_banner(Units& units, int unit);
void write_short_banner(Units& units, int unit);

}  // namespace tarvo::driver
