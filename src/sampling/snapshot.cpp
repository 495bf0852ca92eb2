#include <algorithm>
#include <vector>

#include "sampling/evaluate.h"

namespace tarvo::sampling {

namespace {

// Copies what fits: the loop's vectors and the snapshot were sized together.
void copy_values(const std::vector<double>& from, std::vector<double>& to) {
  const auto n = std::min(from.size(), to.size());
  std::copy(from.begin(), from.begin() + static_cast<std::ptrdiff_t>(n), to.begin());
}

void copy_approximation(const Approximation& from, Approximation& to) {
  copy_values(from.deltabar, to.deltabar);
  copy_values(from.gamma, to.gamma);
  copy_values(from.q, to.q);
  to.z0 = from.z0;
}

void keep_proposal(const Context& ctx, Evaluation& ev) {
  copy_values(ctx.master_primal, ev.best_master_primal);
  copy_values(ctx.master_duals, ev.best_master_duals);
  ev.best_first_stage_cost = ctx.first_stage_cost;
}

void restore_proposal(const Context& ctx, const Evaluation& ev) {
  copy_values(ev.best_master_primal, ctx.master_primal);
  copy_values(ev.best_master_duals, ctx.master_duals);
  ctx.first_stage_cost = ev.best_first_stage_cost;
}

}  // namespace

void snapshot(const Context& ctx, Evaluation& ev, int code) {
  switch (code) {
    case 1:
      copy_approximation(ev.last_approx, ev.best_approx);
      break;
    case 2:
      copy_approximation(ev.best_approx, ev.approx);
      ev.costs[1] = ev.approx.z0;
      break;
    case 3:
      keep_proposal(ctx, ev);
      break;
    case 4:
      restore_proposal(ctx, ev);
      break;
    case 5:
      break;
    default:
      copy_approximation(ev.approx, ev.last_approx);
      break;
  }
}

}  // namespace tarvo::sampling
