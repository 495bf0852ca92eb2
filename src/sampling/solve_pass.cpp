#include "sampling/solve_pass.h"

#include <algorithm>

#include "common/free_format.h"
#include "lp/optimizer.h"
#include "sampling/cut.h"
#include "sampling/importance.h"
#include "sampling/sample_tables.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

constexpr int kInfeasible = 1;

bool rows_equal(const Evaluation& ev, int a, int b) {
  for (int c = 1; c <= ev.nblocks; ++c) {
    if (table_entry(ev, a, c) != table_entry(ev, b, c)) return false;
  }
  return true;
}

bool row_before(const Evaluation& ev, int a, int b) {
  for (int c = 1; c <= ev.nblocks; ++c) {
    const int x = table_entry(ev, a, c);
    const int y = table_entry(ev, b, c);
    if (x != y) return x < y;
  }
  return a < b;
}

void sort_points(Evaluation& ev, int rows) {
  for (int k = 1; k <= rows; ++k) ev.order[k] = k;
  const auto before = [&ev](int a, int b) { return row_before(ev, a, b); };
  int* first = ev.order.data() + 1;
  if (!std::is_sorted(first, first + rows, before)) std::sort(first, first + rows, before);
}

// The reflected mixed-radix order of the universe table: the last block runs up, then down, and
// each block moves one outcome whenever the blocks after it turn around. ev.index holds the
// outcomes and ev.visit_step the directions meanwhile.
void serpentine_points(const Context& ctx, Evaluation& ev, int rows) {
  for (int b = 1; b <= ev.nblocks; ++b) {
    ev.index[b] = 1;
    ev.visit_step[b] = 1;
  }
  for (int v = 1; v <= rows; ++v) {
    int k = 0;
    for (int b = 1; b <= ev.nblocks; ++b) k = k * ctx.store.nsoc[b] + ev.index[b] - 1;
    ev.order[v] = k + 1;
    for (int b = ev.nblocks; b >= 1; --b) {
      const int next = ev.index[b] + ev.visit_step[b];
      if (next >= 1 && next <= ctx.store.nsoc[b]) {
        ev.index[b] = next;
        break;
      }
      ev.visit_step[b] = -ev.visit_step[b];
    }
  }
}

int block_of_point(const Evaluation& ev, int s) {
  int b = 1;
  while (b < ev.nblocks && s > ev.share_end[b]) ++b;
  return b;
}

double collect_weight(const Context& ctx, const Evaluation& ev, const PassPlan& plan, int k) {
  switch (plan.collect) {
    case CollectRule::mean:
      return 1.0 / plan.rows;
    case CollectRule::scenario:
      return ev.scenario_prob;
    case CollectRule::importance: {
      if (approximation_of_row(ctx, ev, k) == 0.0) return 0.0;
      const int b = block_of_point(ev, k);
      return ev.approx.deltabar[b] / ev.counts[b];
    }
    default:
      return 0.0;
  }
}

void collect_solution(const Context& ctx, Evaluation& ev, const PassPlan& plan, int k) {
  const int size = ev.n2 + ev.m2;
  if (plan.collect == CollectRule::base_copy) {
    if (k != 1) return;
    std::copy(ev.primal.begin() + 1, ev.primal.begin() + 1 + size, ev.acc_primal.begin() + 1);
    std::copy(ev.duals.begin() + 1, ev.duals.begin() + 1 + size, ev.acc_duals.begin() + 1);
    return;
  }
  const double w = collect_weight(ctx, ev, plan, k);
  if (w == 0.0) return;
  for (int i = 1; i <= size; ++i) {
    ev.acc_primal[i] += w * ev.primal[i];
    ev.acc_duals[i] += w * ev.duals[i];
  }
}

void store_point(Evaluation& ev, const PassPlan& plan, int k) {
  ev.costs[k + plan.cost_offset] = ev.z;
  std::copy(ev.u.begin() + 1, ev.u.begin() + 1 + ev.n1, point_u(ev, k) + 1);
}

void copy_point(Evaluation& ev, const PassPlan& plan, int from, int to) {
  ev.costs[to + plan.cost_offset] = ev.costs[from + plan.cost_offset];
  std::copy(point_u(ev, from) + 1, point_u(ev, from) + 1 + ev.n1, point_u(ev, to) + 1);
  ++ev.reused_points;
}

signed char* point_basis(Evaluation& ev, int k) {
  return ev.point_basis.data() + static_cast<std::size_t>(k - 1) * (ev.n2 + ev.m2);
}

int solve_point(const Context& ctx, Evaluation& ev, const PassPlan& plan, int k, int& startflag,
                int& status) {
  const bool keep_basis = plan.point_bases && !ev.point_basis.empty();
  lp::ProblemSlot& sub = ctx.optimizer.slot[lp::kSubproblemSlot];
  const int states = ev.n2 + ev.m2;
  if (keep_basis && ev.restart_from_point_bases && ev.point_basis_kept[k]) {
    std::copy(point_basis(ev, k), point_basis(ev, k) + states, sub.hs.begin() + 1);
  }
  if (subeval(ctx, ev, k, plan.mode, startflag, status) != kOk) return kErrorExit;
  if (keep_basis) {
    std::copy(sub.hs.begin() + 1, sub.hs.begin() + 1 + states, point_basis(ev, k));
    ev.point_basis_kept[k] = status != kInfeasible;
  }
  store_point(ev, plan, k);
  if (ev.collect == 1 && plan.collect != CollectRule::none && status != kInfeasible) {
    collect_solution(ctx, ev, plan, k);
  }
  ev.solved[k] = 1;
  return kOk;
}

int solve_in_table_order(const Context& ctx, Evaluation& ev, const PassPlan& plan, int& startflag) {
  for (int k = 1; k <= plan.rows; ++k) {
    int status = 0;
    if (solve_point(ctx, ev, plan, k, startflag, status) != kOk) return kErrorExit;
    if (status == kInfeasible) {
      ev.infeasible_point = k;
      return kOk;
    }
  }
  return kOk;
}

// Point k was found infeasible out of order: the evaluation ends at the first infeasible point
// in table order, so the unsolved points before k are tried in order.
int settle_first_infeasible(const Context& ctx, Evaluation& ev, const PassPlan& plan, int k,
                            int& startflag) {
  ev.infeasible_point = k;
  for (int j = 1; j < k; ++j) {
    if (ev.solved[j]) continue;
    int status = 0;
    if (solve_point(ctx, ev, plan, j, startflag, status) != kOk) return kErrorExit;
    if (status == kInfeasible) {
      ev.infeasible_point = j;
      return kOk;
    }
  }
  return kOk;
}

int solve_reordered(const Context& ctx, Evaluation& ev, const PassPlan& plan, int& startflag) {
  order_points(ctx, ev, plan);
  const bool backwards = ev.visit_backwards;
  ev.visit_backwards = !backwards;
  int previous = 0;
  for (int v = 1; v <= plan.rows; ++v) {
    const int k = ev.order[backwards ? plan.rows + 1 - v : v];
    if (previous != 0 && rows_equal(ev, previous, k)) {
      copy_point(ev, plan, previous, k);
      ev.solved[k] = 1;
      continue;
    }
    int status = 0;
    if (solve_point(ctx, ev, plan, k, startflag, status) != kOk) return kErrorExit;
    if (status == kInfeasible) return settle_first_infeasible(ctx, ev, plan, k, startflag);
    previous = k;
  }
  return kOk;
}

}  // namespace

void order_points(const Context& ctx, Evaluation& ev, const PassPlan& plan) {
  if (plan.visit == Visit::serpentine) {
    serpentine_points(ctx, ev, plan.rows);
  } else {
    sort_points(ev, plan.rows);
  }
}

int solve_points(const Context& ctx, Evaluation& ev, const PassPlan& plan, int& startflag) {
  ev.infeasible_point = 0;
  for (int k = 1; k <= plan.rows; ++k) ev.solved[k] = 0;
  const bool table_order = plan.visit == Visit::table || ctx.params.ibug >= 2 || ev.collect == 1;
  if (table_order) return solve_in_table_order(ctx, ev, plan, startflag);
  return solve_reordered(ctx, ev, plan, startflag);
}

void clear_accumulators(Evaluation& ev) {
  std::fill(ev.acc_primal.begin(), ev.acc_primal.end(), 0.0);
  std::fill(ev.acc_duals.begin(), ev.acc_duals.end(), 0.0);
}

void end_on_infeasible(const Context& ctx, Evaluation& ev, const PassPlan& plan) {
  const int k = ev.infeasible_point;
  write_free(ctx.units, ctx.log_unit, "sub infeasible");
  feascut(ctx, ev, ev.costs[k + plan.cost_offset], point_u(ev, k));
}

}  // namespace tarvo::sampling
