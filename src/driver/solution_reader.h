#pragma once
// Reading the first-stage solution of an evaluation run from MODEL.STA.
#include <vector>

#include "common/units.h"
#include "lp/problem_slot.h"

namespace tarvo::driver {

// Sets values[1..n1] to 0, then reads "name value" records from the opened unit and gives each
// value to the first of the master's first n1 columns with that name. Bad records and unknown
// names are reported to the screen log and skipped; reading never fails.
void read_solution(Units& units, int unit, int log_unit, const lp::ProblemSlot& master, int n1,
                   std::vector<double>& values);

}  // namespace tarvo::driver
