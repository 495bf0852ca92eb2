#include <algorithm>

#include "sampling/cut.h"
#include "sampling/solve_pass.h"
#include "sampling/strategies.h"

namespace tarvo::sampling {

int evalmarg(const Context& ctx, Evaluation& ev, int& startflag) {
  const PassPlan plan{.rows = ev.nmarg, .cost_offset = 0, .mode = 1, .visit = Visit::table,
                      .collect = CollectRule::base_copy};
  if (solve_points(ctx, ev, plan, startflag) != kOk) return kErrorExit;
  if (ev.infeasible_point != 0) {
    end_on_infeasible(ctx, ev, plan);
    return kOk;
  }
  std::copy(point_u(ev, 1) + 1, point_u(ev, 1) + 1 + ev.n1, ev.u0.begin() + 1);
  return kOk;
}

}  // namespace tarvo::sampling
