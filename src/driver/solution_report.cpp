#include "driver/solution_report.h"

#include <cmath>
#include <string>
#include <vector>

#include "common/free_format.h"
#include "common/record_format.h"

namespace tarvo::driver {
namespace {

using SV = std::string_view;

void write_heading(Units& u, int unit, int s) {
  if (s == 1) {
    write_free(u, unit, "EXPECTED VALUE SOLUTION:");
    write_free(u, unit, "========================");
    return;
  }
  write_free(u, unit);
  if (s == 4 || s == 5) {
    write_free(u, unit, "-UNIVERSE- SOLUTION:");
    write_free(u, unit, "====================");
    return;
  }
  write_free(u, unit, "STOCHASTIC SOLUTION:");
  write_free(u, unit, "====================");
  if (s == 2 || s == 3) write_free(u, unit, "(importance sampling)");
  if (s == 6 || s == 7) write_free(u, unit, "(crude monte carlo)");
  if (s == 8 || s == 9) write_free(u, unit, "(crude monte carlo presampling)");
  if (s == 10 || s == 11) write_free(u, unit, "(control variable sampling)");
}

void write_column_table(Units& u, int unit, const SolutionReport& r) {
  const lp::ProblemSlot& master = *r.master;
  write_record(u, unit, "(/,1x,a7,1x,a8,2(1x,a15),/)",
               {SV("      #"), SV("  COLUMN"), SV("          VALUE"), SV("   REDUCED COST")});
  for (int j = 1; j <= master.n; ++j) {
    write_record(u, unit, "(1x,i7,1x,a8,2(1x,1pe15.5))",
                 {static_cast<long long>(j), lp::name_view(master.names[j]),
                  shown(r.column_values[j], r.tolw), shown(r.duals[master.m + j], r.tolw)});
  }
}

void write_row_table(Units& u, int unit, const SolutionReport& r) {
  const lp::ProblemSlot& master = *r.master;
  write_record(u, unit, "(/,1x,a7,1x,a8,2(1x,a15),/)",
               {SV("      #"), SV("     ROW"), SV("          VALUE"), SV("  MARGINAL COST")});
  const std::vector<double> activity = row_activities(master, r.column_values);
  for (int i = 1; i <= r.first_stage_rows; ++i) {
    write_record(u, unit, "(1x,i7,1x,a8,2(1x,1pe15.5))",
                 {static_cast<long long>(i), lp::name_view(master.names[master.n + i]),
                  shown(activity[i], r.tolw), shown(r.duals[i], r.tolw)});
  }
}

void write_confidence_lines(Units& u, int unit, const SolutionReport& r) {
  write_record(u, unit, "(1x, a32, 2(1x, 1pe15.5))",
               {SV("95% confidence interval:        "), r.lower_end, r.upper_end});
  if (r.objective != 0.0) {
    write_record(u, unit, "(1x, a32, 2(1x, 1pe15.5))",
                 {SV("95% confidence interval (%):    "),
                  100.0 * (r.lower_end - r.objective) / r.objective,
                  100.0 * (r.upper_end - r.objective) / r.objective});
  }
  write_free(u, unit);
  write_record(u, unit, "(1x, a32, 1x, i15)",
               {SV("initial seed:"), static_cast<long long>(r.iseed)});
  write_record(u, unit, "(1x, a32, 1x, i15)",
               {SV("sample size:"), static_cast<long long>(r.nsamples)});
}

}  // namespace

double shown(double value, double tolw) { return std::fabs(value) < tolw ? 0.0 : value; }

std::vector<double> row_activities(const lp::ProblemSlot& slot, const double* column_values) {
  std::vector<double> activity(slot.m + 1, 0.0);
  for (int j = 1; j <= slot.n; ++j) {
    for (int k = slot.ka[j]; k < slot.ka[j + 1]; ++k) activity[slot.ha[k]] += slot.a[k] * column_values[j];
  }
  return activity;
}

void write_solution_report(Units& u, int unit, const SolutionReport& r) {
  const int s = r.strategy;
  write_heading(u, unit, s);
  write_record(u, unit, "(1x, a16, 1x, i15)",
               {SV("iteration:      "), static_cast<long long>(r.iterations)});
  write_free(u, unit, " solution :");
  write_record(u, unit, "(1x, a16, 1x, 1pe15.5)", {SV("objective:      "), r.objective});
  if (r.master != nullptr) {
    write_column_table(u, unit, r);
    write_row_table(u, unit, r);
  }
  write_free(u, unit);
  write_record(u, unit, "(1x, a16, 1x, 1pe15.5, /)", {SV("zsub:           "), r.zsub});
  if (s >= 2 && s <= 11 && s != 4 && s != 5) write_confidence_lines(u, unit, r);
  write_record(u, unit, "(1x, a32, 1x, 1pe15.5)", {SV("number of universe scenarios:"), r.universe});
  write_record(u, unit, "(1x, a32, 1x, 1pe15.5)", {SV("tolerance level:"), r.tolben});
}

}  // namespace tarvo::driver
