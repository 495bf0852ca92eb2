#pragma once
// The solution report in MODEL.SOL, one per solved strategy run.
#include <vector>

#include "common/units.h"
#include "lp/problem_slot.h"

namespace tarvo::driver {

struct SolutionReport {
  int strategy = 0;
  int iterations = 0;
  double objective = 0.0;  // best upper, or for an evaluation run first-stage plus second-stage
  double zsub = 0.0;       // expected second-stage cost of the solution
  double lower_end = 0.0;  // 95% confidence interval
  double upper_end = 0.0;
  double universe = 1.0;   // number of outcome combinations
  int iseed = 0;
  int nsamples = 0;
  double tolben = 0.0;
  double tolw = 0.0;
  int first_stage_rows = 0;            // master rows listed (the reserved cut rows are not)
  const lp::ProblemSlot* master = nullptr;  // names and matrix
  const double* column_values = nullptr;    // [1..n] master columns, THETA last
  const double* duals = nullptr;            // [1..m] row duals then [m+1..m+n] reduced costs
};

void write_solution_report(Units& units, int unit, const SolutionReport& report);

// Activities [1..m] of the slot's rows at the given column values [1..n].
std::vector<double> row_activities(const lp::ProblemSlot& slot, const double* column_values);

// A value below tolw in magnitude is reported as 0.
double shown(double value, double tolw);

}  // namespace tarvo::driver
