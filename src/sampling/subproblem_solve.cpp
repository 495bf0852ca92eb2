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

void write_index_trace(const Context& ctx, const Evaluation& ev) {
  std::string line = free_line("index: ");
  for (int b = 1; b <= ev.nblocks; ++b) append_free(line, static_cast<long long>(ev.index[b]));
  write_line(ctx.units, ctx.log_unit, line);
}

void write_solve_trace(const Context& ctx, const Evaluation& ev, int k, int mode) {
  if (mode == kWithProbability) {
    write_free(ctx.units, ctx.log_unit, "   sub ", k, " : obj ", ev.z, "  prob ", ev.scenario_prob);
  } else {
    write_free(ctx.units, ctx.log_unit, "   sub ", k, " : obj ", ev.z);
  }
}

double scenario_probability(const Evaluation& ev) {
  double p = 1.0;
  for (int b = 1; b <= ev.nblocks; ++b) p *= ev.block_prob[b];
  return p;
}

}  // namespace

int subsolve(const Context& ctx, Evaluation& ev, int& startflag, int& status) {
  if (subsetup(ctx, ev) != kOk) return kErrorExit;
  if (ctx.params.ibug >= 6 && ctx.iteration == 0) dump_slot(ctx, lp::kSubproblemSlot, "MODEL.S02");
  int start = kWarmStart;
  if (startflag == 0) {
    start = kColdStart;
    startflag = 1;
  }
  clock_interval(ctx.clock, nullptr);
  int inform = 0;
  double spare = 0.0;
  lp::solve_problem(ctx.optimizer, ctx.units, ctx.log_unit, inform, start, ev.z, spare, ev.duals,
                    spare, ev.primal);
  clock_interval(ctx.clock, &ctx.clock.subproblem);
  ++ev.lp_solves;
  ev.lp_pivots += ctx.optimizer.solver[lp::kSubproblemSlot].counters.iterations;
  status = inform;
  if (inform == 0 || inform == 1) return kOk;
  return dumpbad(ctx, lp::kSubproblemSlot, inform);
}

int subeval(const Context& ctx, Evaluation& ev, int k, int mode, int& startflag, int& status) {
  for (int b = 1; b <= ev.nblocks; ++b) ev.index[b] = table_entry(ev, k, b);
  if (ctx.params.ibug >= 8) write_index_trace(ctx, ev);
  if (mode == kWithProbability) {
    outprob(ev, ctx.store);
    ev.scenario_prob = scenario_probability(ev);
  }
  outval(ev, ctx.store);
  if (subsolve(ctx, ev, startflag, status) != kOk) return kErrorExit;
  dual_product(ctx, ev, ev.duals, ev.u);
  if (ctx.params.ibug >= 2) write_solve_trace(ctx, ev, k, mode);
  return kOk;
}

}  // namespace tarvo::sampling
