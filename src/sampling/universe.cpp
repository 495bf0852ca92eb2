#include "sampling/cut.h"
#include "sampling/cut_groups.h"
#include "sampling/sample_tables.h"
#include "sampling/solve_pass.h"
#include "sampling/strategies.h"

namespace tarvo::sampling {

namespace {

// Pivots per solve of a universe pass warm started from the neighbouring points above which the
// next pass tries restarting each point from the basis it last had; it keeps doing so while that
// costs fewer pivots per solve than the neighbours did, by the factorization each restart needs
// (counted in pivots).
constexpr double kPointBasisPivots = 10.0;
constexpr double kRestartCost = 5.0;

// Whether the next pass restarts each point from its own basis, after a pass that took `average`
// pivots per solve.
void choose_restart(Evaluation& ev, double average) {
  if (ev.restart_from_point_bases) {
    ev.restart_from_point_bases = average + kRestartCost < ev.neighbour_pivots;
  } else {
    ev.neighbour_pivots = average;
    ev.restart_from_point_bases = average > kPointBasisPivots;
  }
}

}  // namespace

void estimate_universe(const Context& ctx, Evaluation& ev) {
  clear_cut(ev);
  const bool by_groups = grouped(ev, ev.nsamples);
  if (by_groups) clear_groups(ev);
  for (int k = 1; k <= ev.nsamples; ++k) {
    const double p = row_probability(ctx, ev, k);
    ev.cut.objs += p * ev.costs[k];
    const double* u = point_u(ev, k);
    for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] -= p * u[j];
    if (by_groups) add_to_group(ev, k, p, ev.costs[k], u);
  }
  close_cut(ctx, ev);
  if (by_groups) close_groups(ctx, ev);
}

int evaluniv(const Context& ctx, Evaluation& ev, int& startflag) {
  clear_cut(ev);
  if (ev.collect == 1) clear_accumulators(ev);
  const PassPlan plan{.rows = ev.nsamples, .cost_offset = 0, .mode = 3, .visit = Visit::serpentine,
                      .collect = CollectRule::scenario, .point_bases = true};
  // The pass holding the run's cold start says nothing about warm starts.
  const bool warm_pass = startflag != 0;
  const long long solves = ev.lp_solves;
  const long long pivots = ev.lp_pivots;
  if (solve_points(ctx, ev, plan, startflag) != kOk) return kErrorExit;
  const long long solved = ev.lp_solves - solves;
  if (warm_pass && solved > 0) choose_restart(ev, static_cast<double>(ev.lp_pivots - pivots) / solved);
  if (ev.infeasible_point != 0) {
    end_on_infeasible(ctx, ev, plan);
    return kOk;
  }
  estimate_universe(ctx, ev);
  return kOk;
}

}  // namespace tarvo::sampling
