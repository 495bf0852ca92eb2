#include "driver/timing_report.h"

#include "common/free_format.h"
#include "common/record_format.h"

namespace tarvo::driver {
namespace {

constexpr const char* kTimeLine = "(1x,a32,1x,f15.2)";

}  // namespace

void write_timing_report(RunState& run) {
  const RunClock& c = run.clock;
  Units& u = run.units;
  write_free(u, kSolutionUnit);
  write_record(u, kSolutionUnit, kTimeLine, {std::string_view("execution time (sec):"), c.execution});
  write_record(u, kSolutionUnit, kTimeLine, {std::string_view("setup time     (sec):"), c.setup});
  write_record(u, kSolutionUnit, kTimeLine,
               {std::string_view("solution time  (sec):"), c.execution - c.setup});
  write_free(u, kSolutionUnit);
  write_record(u, kSolutionUnit, kTimeLine, {std::string_view("solving master (sec):"), c.master});
  write_record(u, kSolutionUnit, kTimeLine, {std::string_view("solving subs   (sec):"), c.subproblem});
}

}  // namespace tarvo::driver
