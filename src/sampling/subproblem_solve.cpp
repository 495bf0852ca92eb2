#include <string>

#include "common/free_format.h"
#include "lp/optimizer.h"
#include "sampling/coupling.h"
#include "sampling/draw.h"
#include "sampling/sample_tables.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

constexpr int kColdStart = 0;
constexpr int kWarmStart = 1;
constexpr int kWithProbability = 3;
constexpr int kInfeasible = 1;

void write_index_trace(const Context& ctx, const Evaluation& ev, const SolveWork& work) {
  std::string line = free_line("index: ");
  for (int b = 1; b <= ev.nblocks; ++b) append_free(line, static_cast<long long>(work.index[b]));
  write_line(ctx.units, ctx.log_unit, line);
}

double scenario_probability(const Evaluation& ev, const SolveWork& work) {
  double p = 1.0;
  for (int b = 1; b <= ev.nblocks; ++b) p *= work.block_prob[b];
  return p;
}

}  // namespace

ChainLp chain_lp(const Context& ctx, Evaluation& ev, int c) {
  if (c == 0) {
    lp::Optimizer& opt = ctx.optimizer;
    return {opt.slot[lp::kSubproblemSlot], opt.solver[lp::kSubproblemSlot], opt.options};
  }
  lp::HeldProblem& held = ev.chains[c].held;
  return {held.slot, held.solver, held.options};
}

int solve_outcome(const Context& ctx, const Evaluation& ev, Chain& chain, const ChainLp& lp) {
  SolveWork& work = chain.work;
  if (!subsetup(ctx, ev, work, lp.slot, chain.bad_kind)) return kBadKind;
  if (ctx.params.ibug >= 6 && ctx.iteration == 0) {
    dump_slot(ctx, lp.slot, lp::kSubproblemSlot, "MODEL.S02");
  }
  int start = kWarmStart;
  if (chain.startflag == 0) {
    start = kColdStart;
    chain.startflag = 1;
  }
  // The cut needs the row duals; the rest of the solution only when it is collected.
  const lp::SolutionCopy copy = ev.collect == 1 ? lp::SolutionCopy::full : lp::SolutionCopy::row_duals;
  const int inform = lp::solve_quietly(lp.slot, lp.solver, lp.options, ctx.optimizer, ctx.units,
                                       start, copy, work.z, work.duals, work.primal);
  ++chain.solves;
  chain.pivots += lp.solver.counters.iterations;
  return inform;
}

int solve_row(const Context& ctx, const Evaluation& ev, Chain& chain, const ChainLp& lp, int k,
              int mode) {
  SolveWork& work = chain.work;
  for (int b = 1; b <= ev.nblocks; ++b) work.index[b] = table_entry(ev, k, b);
  if (ctx.params.ibug >= 8) write_index_trace(ctx, ev, work);
  if (mode == kWithProbability) {
    outprob(work, ctx.store);
    work.scenario_prob = scenario_probability(ev, work);
  }
  outval(work, ctx.store);
  const int status = solve_outcome(ctx, ev, chain, lp);
  if (status == 0 || status == kInfeasible) dual_product(ctx, ev, work);
  return status;
}

int subsolve(const Context& ctx, Evaluation& ev, int& startflag, int& status) {
  Chain& chain = ev.chains[0];
  const ChainLp lp = chain_lp(ctx, ev, 0);
  chain.startflag = startflag;
  chain.solves = chain.pivots = 0;
  clock_interval(ctx.clock, nullptr);
  status = solve_outcome(ctx, ev, chain, lp);
  clock_interval(ctx.clock, &ctx.clock.subproblem);
  startflag = chain.startflag;
  ev.lp_solves += chain.solves;
  ev.lp_pivots += chain.pivots;
  if (status == kBadKind) {
    write_bogus_kind(ctx, chain.bad_kind);
    return kErrorExit;
  }
  lp::report_solve_status(ctx.units, ctx.log_unit, status);
  if (status == 0 || status == kInfeasible) return kOk;
  return dumpbad(ctx, lp::kSubproblemSlot, status, lp.slot);
}

}  // namespace tarvo::sampling
