#pragma once
// Solving the points of the sample table for one evaluation.
//
// The estimators are sums over the points in table order; the solves need not be. The points are
// solved in an order in which consecutive outcomes differ little, so that the warm starts are
// short: a sample in lexicographic order of its rows (a point whose row equals the one solved just
// before takes that point's results without a solve), the universe in serpentine order (every step
// changes one block by one outcome); each such pass runs its order the other way from the pass
// before, so it starts on the outcome the last one ended on. The order is cut into fixed chains of
// consecutive points, each solved one point after the other on its own subproblem; chains run on
// as many threads as the run allows, and since neither the chains nor their warm starts depend on
// the thread count, neither do the results. Every point's cost and dual product are stored, and
// the estimators then run in table order. The second-stage solution that the final
// re-evaluation collects for the report is summed per chain, then chain after chain.
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// How a point's solution enters the report accumulators when ev.collect is 1.
enum class CollectRule {
  none,
  mean,        // weight 1/rows
  scenario,    // weight = the scenario probability
  importance,  // weight deltabar_b / N_b of the point's block, none when Gamma(omega) is 0
  base_copy,   // point 1 is copied
};

enum class Visit {
  table,       // rows 1, 2, ... as they stand
  sorted,      // lexicographic order of the rows
  serpentine,  // the universe table (all combinations, last block fastest) in reflected order
};

struct PassPlan {
  int rows = 0;         // points 1..rows of the sample table
  int cost_offset = 0;  // the cost of point k goes to ev.costs[k + cost_offset]
  int mode = 1;         // solve_row mode (3: with the scenario probability)
  Visit visit = Visit::table;
  CollectRule collect = CollectRule::none;
  bool point_bases = false;  // keep each point's optimal basis (ev.point_basis) and restart from it
};

// Chains a pass over this many points is cut into: one per kChainPoints points, at most
// kMaxChains.
inline constexpr int kChainPoints = 64;
inline constexpr int kMaxChains = 32;
int chain_count(int rows);

// Solves the plan's points, storing costs and dual products (point_u); `startflag` is chain 0's
// (0: its first solve is cold). When a point is infeasible the pass stops; ev.infeasible_point is
// then the lowest-numbered infeasible point (points before it that the chains had not reached are
// solved to find it), else 0. The status lines of the solves and, with ibug >= 2, one line per
// point go to the screen log in table order. The pass's time goes to the subproblem phase.
int solve_points(const Context& ctx, Evaluation& ev, const PassPlan& plan, int& startflag);

// ev.order[1..plan.rows] := the order in which a pass that may reorder visits the points.
void order_points(const Context& ctx, Evaluation& ev, const PassPlan& plan);

// Zeroes the report accumulators.
void clear_accumulators(Evaluation& ev);

// After a pass that stopped on an infeasible point: writes "sub infeasible" and leaves the
// feasibility cut of that point.
void end_on_infeasible(const Context& ctx, Evaluation& ev, const PassPlan& plan);

}  // namespace tarvo::sampling
