#include "sampling/solve_pass.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <exception>
#include <thread>

#include "common/free_format.h"
#include "lp/optimizer.h"
#include "sampling/cut.h"
#include "sampling/importance.h"
#include "sampling/sample_tables.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

constexpr int kInfeasible = 1;
constexpr int kWithProbability = 3;
// From this trace level on, solves write lines of their own, so a pass stays on one thread.
constexpr int kSolveTraceLevel = 6;
constexpr int kPointTraceLevel = 2;

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

double collect_weight(const Context& ctx, const Evaluation& ev, const PassPlan& plan, int k,
                      const SolveWork& work) {
  switch (plan.collect) {
    case CollectRule::mean:
      return 1.0 / plan.rows;
    case CollectRule::scenario:
      return work.scenario_prob;
    case CollectRule::importance: {
      if (approximation_of_row(ctx, ev, k) == 0.0) return 0.0;
      const int b = block_of_point(ev, k);
      return ev.approx.deltabar[b] / ev.counts[b];
    }
    default:
      return 0.0;
  }
}

// Adds point k's solution, still in the chain's work, to the chain's accumulators.
void collect_solution(const Context& ctx, const Evaluation& ev, const PassPlan& plan, int k,
                      Chain& chain) {
  const SolveWork& work = chain.work;
  const int size = ev.n2 + ev.m2;
  if (plan.collect == CollectRule::base_copy) {
    if (k != 1) return;
    std::copy_n(work.primal.begin() + 1, size, chain.acc_primal.begin() + 1);
    std::copy_n(work.duals.begin() + 1, size, chain.acc_duals.begin() + 1);
    return;
  }
  const double w = collect_weight(ctx, ev, plan, k, work);
  if (w == 0.0) return;
  for (int i = 1; i <= size; ++i) {
    chain.acc_primal[i] += w * work.primal[i];
    chain.acc_duals[i] += w * work.duals[i];
  }
}

bool collecting(const Evaluation& ev, const PassPlan& plan) {
  return ev.collect == 1 && plan.collect != CollectRule::none;
}

// The chains' accumulators into the evaluation's, chain after chain.
void gather_collected(Evaluation& ev, int chains) {
  const int size = ev.n2 + ev.m2;
  for (int c = 0; c < chains; ++c) {
    const Chain& chain = ev.chains[c];
    for (int i = 1; i <= size; ++i) {
      ev.acc_primal[i] += chain.acc_primal[i];
      ev.acc_duals[i] += chain.acc_duals[i];
    }
  }
}

void store_point(Evaluation& ev, const PassPlan& plan, int k, const SolveWork& work, int status) {
  ev.costs[k + plan.cost_offset] = work.z;
  std::copy(work.u.begin() + 1, work.u.begin() + 1 + ev.n1, point_u(ev, k) + 1);
  ev.point_status[k] = static_cast<signed char>(status);
  ev.solved[k] = 1;
}

void copy_point(Evaluation& ev, const PassPlan& plan, int from, int to) {
  ev.costs[to + plan.cost_offset] = ev.costs[from + plan.cost_offset];
  std::copy(point_u(ev, from) + 1, point_u(ev, from) + 1 + ev.n1, point_u(ev, to) + 1);
  ev.point_status[to] = 0;
  ev.solved[to] = 1;
}

signed char* point_basis(Evaluation& ev, int k) {
  return ev.point_basis.data() + static_cast<std::size_t>(k - 1) * (ev.n2 + ev.m2);
}

// Solves point k on chain c and stores its results; returns the optimizer's status (or kBadKind).
// A failed solve stores nothing.
int solve_point(const Context& ctx, Evaluation& ev, const PassPlan& plan, int c, int k) {
  Chain& chain = ev.chains[c];
  const ChainLp lp = chain_lp(ctx, ev, c);
  const bool keep_basis = plan.point_bases && !ev.point_basis.empty();
  const int states = ev.n2 + ev.m2;
  if (keep_basis && ev.restart_from_point_bases && ev.point_basis_kept[k]) {
    std::copy(point_basis(ev, k), point_basis(ev, k) + states, lp.slot.hs.begin() + 1);
  }
  const int status = solve_row(ctx, ev, chain, lp, k, plan.mode);
  if (status != 0 && status != kInfeasible) return status;
  if (keep_basis) {
    std::copy(lp.slot.hs.begin() + 1, lp.slot.hs.begin() + 1 + states, point_basis(ev, k));
    ev.point_basis_kept[k] = status != kInfeasible;
  }
  store_point(ev, plan, k, chain.work, status);
  if (collecting(ev, plan) && status != kInfeasible) collect_solution(ctx, ev, plan, k, chain);
  return status;
}

// What every chain of a pass needs to know.
struct PassShape {
  int chains = 1;
  bool reorder = false;    // a reordered visit: equal neighbours share one solve
  bool backwards = false;  // chains run from their last position to their first
};

// The chain's points in the pass's direction; it stops at the first point not solved to
// optimality, which it records.
void run_chain(const Context& ctx, Evaluation& ev, const PassPlan& plan, const PassShape& shape,
               int c) {
  Chain& chain = ev.chains[c];
  int previous = 0;
  const int count = chain.last - chain.first + 1;
  for (int i = 0; i < count; ++i) {
    const int k = ev.order[shape.backwards ? chain.last - i : chain.first + i];
    if (shape.reorder && previous != 0 && rows_equal(ev, previous, k)) {
      copy_point(ev, plan, previous, k);
      if (collecting(ev, plan)) collect_solution(ctx, ev, plan, k, chain);
      ++chain.reused;
      continue;
    }
    const int status = solve_point(ctx, ev, plan, c, k);
    if (status != 0) {
      chain.stop_point = k;
      chain.stop_status = status;
      return;
    }
    previous = k;
  }
}

// Runs the pass's chains on up to `threads` threads, each thread taking the next chain not yet
// taken. A thread that cannot be started leaves its chains to the others.
void run_chains(const Context& ctx, Evaluation& ev, const PassPlan& plan, const PassShape& shape,
                int threads) {
  std::atomic<int> next{0};
  const auto work = [&] {
    for (int c = next.fetch_add(1); c < shape.chains; c = next.fetch_add(1)) {
      run_chain(ctx, ev, plan, shape, c);
    }
  };
  std::array<std::thread, kMaxChains> helpers;
  for (int t = 1; t < threads; ++t) {
    try {
      helpers[t] = std::thread(work);
    } catch (const std::exception&) {
      break;
    }
  }
  work();
  for (std::thread& helper : helpers) {
    if (helper.joinable()) helper.join();
  }
}

// Solves that write lines of their own keep the pass on the calling thread.
int pass_threads(const Context& ctx, const Evaluation& ev, int chains) {
  const lp::Options& o = ctx.optimizer.options;
  const bool solves_write = ctx.params.ibug >= kSolveTraceLevel || o.ival[lp::kPrintFile] > 0 ||
                            o.ival[lp::kSummaryFile] > 0;
  return solves_write ? 1 : std::min(ev.nthreads, chains);
}

// The order of the pass, its cut into chains, and every chain ready to run: chain 0 with the
// caller's start flag, the others with the optimizer's options of the moment.
PassShape prepare_chains(const Context& ctx, Evaluation& ev, const PassPlan& plan, int startflag) {
  PassShape shape;
  shape.reorder = plan.visit != Visit::table;
  if (shape.reorder) {
    order_points(ctx, ev, plan);
    shape.backwards = ev.visit_backwards;
    ev.visit_backwards = !shape.backwards;
  } else {
    for (int k = 1; k <= plan.rows; ++k) ev.order[k] = k;
  }
  shape.chains = chain_count(plan.rows);
  for (int c = 0; c < shape.chains; ++c) {
    Chain& chain = ev.chains[c];
    chain.first = static_cast<int>(static_cast<long long>(plan.rows) * c / shape.chains) + 1;
    chain.last = static_cast<int>(static_cast<long long>(plan.rows) * (c + 1) / shape.chains);
    chain.stop_point = chain.stop_status = 0;
    chain.solves = chain.pivots = chain.reused = 0;
    if (c > 0) chain.held.options = ctx.optimizer.options;
    if (collecting(ev, plan)) {
      std::fill(chain.acc_primal.begin(), chain.acc_primal.end(), 0.0);
      std::fill(chain.acc_duals.begin(), chain.acc_duals.end(), 0.0);
    }
  }
  ev.chains[0].startflag = startflag;
  return shape;
}

// The first chain, in chain order, that stopped on a failed solve, or -1.
int failed_chain(const Evaluation& ev, int chains) {
  for (int c = 0; c < chains; ++c) {
    const int status = ev.chains[c].stop_status;
    if (status != 0 && status != kInfeasible) return c;
  }
  return -1;
}

// ev.infeasible_point := the first infeasible point in table order: the lowest point a chain
// stopped on, unless a point before it that no chain reached is infeasible; those are solved on
// chain 0 in table order. Returns false when one of them fails (chain 0 records it).
bool settle_first_infeasible(const Context& ctx, Evaluation& ev, const PassPlan& plan, int chains) {
  int k = 0;
  for (int c = 0; c < chains; ++c) {
    const Chain& chain = ev.chains[c];
    if (chain.stop_status == kInfeasible && (k == 0 || chain.stop_point < k)) k = chain.stop_point;
  }
  ev.infeasible_point = k;
  for (int j = 1; j < k; ++j) {
    if (ev.solved[j]) continue;
    const int status = solve_point(ctx, ev, plan, 0, j);
    if (status == kInfeasible) {
      ev.infeasible_point = j;
      return true;
    }
    if (status != 0) {
      ev.chains[0].stop_point = j;
      ev.chains[0].stop_status = status;
      return false;
    }
  }
  return true;
}

void count_work(Evaluation& ev, int chains) {
  for (int c = 0; c < chains; ++c) {
    const Chain& chain = ev.chains[c];
    ev.lp_solves += chain.solves;
    ev.lp_pivots += chain.pivots;
    ev.reused_points += chain.reused;
  }
}

// The lines of the pass's solves in table order: the optimizer's line for an infeasible solve
// and, with ibug >= 2, the point's cost (and scenario probability).
void write_point_lines(const Context& ctx, const Evaluation& ev, const PassPlan& plan) {
  const bool trace = ctx.params.ibug >= kPointTraceLevel;
  for (int k = 1; k <= plan.rows; ++k) {
    if (!ev.solved[k]) continue;
    const int status = ev.point_status[k];
    if (status != 0) lp::report_solve_status(ctx.units, ctx.log_unit, status);
    if (!trace) continue;
    const double z = ev.costs[k + plan.cost_offset];
    if (plan.mode == kWithProbability) {
      const double p = row_probability(ctx, ev, k);
      write_free(ctx.units, ctx.log_unit, "   sub ", k, " : obj ", z, "  prob ", p);
    } else {
      write_free(ctx.units, ctx.log_unit, "   sub ", k, " : obj ", z);
    }
  }
}

int report_failure(const Context& ctx, Evaluation& ev, int c) {
  const Chain& chain = ev.chains[c];
  if (chain.stop_status == kBadKind) {
    write_bogus_kind(ctx, chain.bad_kind);
    return kErrorExit;
  }
  lp::report_solve_status(ctx.units, ctx.log_unit, chain.stop_status);
  return dumpbad(ctx, lp::kSubproblemSlot, chain.stop_status, chain_lp(ctx, ev, c).slot);
}

}  // namespace

int chain_count(int rows) { return std::clamp(rows / kChainPoints, 1, kMaxChains); }

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
  clock_interval(ctx.clock, nullptr);
  const PassShape shape = prepare_chains(ctx, ev, plan, startflag);
  run_chains(ctx, ev, plan, shape, pass_threads(ctx, ev, shape.chains));
  int failed = failed_chain(ev, shape.chains);
  if (failed < 0 && !settle_first_infeasible(ctx, ev, plan, shape.chains)) failed = 0;
  startflag = ev.chains[0].startflag;
  count_work(ev, shape.chains);
  if (collecting(ev, plan)) gather_collected(ev, shape.chains);
  clock_interval(ctx.clock, &ctx.clock.subproblem);
  write_point_lines(ctx, ev, plan);
  return failed >= 0 ? report_failure(ctx, ev, failed) : kOk;
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
