#pragma once
// The state of the sampling and evaluation subsystem: one plain struct sized once after the model
// has been read, and the context of what it borrows from the rest of the run.
//
// Arrays are 1-based like the model's (element 0 unused). Two-dimensional tables are held row by
// row: row k of the sample table is itab[(k - 1) * nblocks + b] for block b, and the dual product
// of sample point k is point_u[(k - 1) * n1 + j] for first-stage column j.
#include <cstdint>
#include <vector>

#include "common/clock.h"
#include "common/run_params.h"
#include "common/units.h"
#include "input/model.h"
#include "lp/optimizer.h"

namespace tarvo::sampling {

// What a call hands back: 0 to go on, otherwise the code of the error exit the driver takes
// (every message has been written by then).
inline constexpr int kOk = 0;
inline constexpr int kErrorExit = 1;

// 1.0E+20 in single precision widened to double: the expected cost of an infeasible evaluation
// and the start value of the best total cost.
inline constexpr double kInfiniteCost = 1.0000000200408773e20;

// The minimal-standard generator's state.
struct Generator {
  std::int32_t x = 0;
};

// What every evaluation leaves behind for the Benders loop and the master's cut rows.
struct CutRecord {
  std::vector<double> gus;  // [1..n1+1]: gradient on the first-stage columns, then THETA's entry
  double gls = 0.0;         // the cut reads THETA + sum gus_j x_j >= gls
  double objs = 0.0;        // estimate of the expected second-stage cost at the proposal
  double variance = 0.0;    // variance of that estimate
};

// The cut split by groups of points, for a master with a THETA column per group: the points of
// the table fall into fixed groups of consecutive rows, and each group's share of the estimate
// gives a cut of its own. A single group is the single cut of ev.cut alone.
struct CutGroups {
  int count = 1;
  std::vector<int> end;          // [0..count] group g holds points end[g-1]+1..end[g]; end[0] = 0
  std::vector<double> objs;      // [1..count] the group's share of objs
  std::vector<double> gls;       // [1..count] constant of the group's cut
  std::vector<double> variance;  // [1..count] the group's share of the variance of objs
  std::vector<double> gus;       // count rows x n1: gradient of each group's cut
};

// The additive approximation of the second-stage cost (importance sampling, control variables).
struct Approximation {
  std::vector<double> deltabar;  // [1..nblocks] expected marginal value of each block
  std::vector<double> gamma;     // marginal value of every outcome, laid out like the probabilities
  std::vector<double> q;         // importance probabilities, same layout
  double z0 = 0.0;               // base-case cost
};

// What a subproblem solve works with besides its LP: the outcome put into the subproblem, the
// proposal's right-hand side and what the solve leaves. Each chain has its own, so that chains
// can be solved side by side.
struct SolveWork {
  std::vector<int> index;          // [1..nblocks] current outcome of every block
  std::vector<double> block_prob;  // [1..nblocks] probability of the current outcome per block
  std::vector<double> current;     // [1..nentries] current value of every random parameter
  double scenario_prob = 0.0;      // product of block_prob (solve_row with mode 3)
  std::vector<double> b_work;      // [1..B nonzeros] coupling values of the outcome
  std::vector<double> rhs_work;    // [1..m2] right-hand sides of the outcome
  std::vector<double> coupled;     // [1..m2] C x-hat, then the full right-hand side r
  std::vector<double> primal;      // [1..n2+m2] last collected solve: columns, then row activities
  std::vector<double> duals;       // [1..m2+n2] last solve: row duals; reduced costs when collected
  std::vector<double> u;           // [1..n1] C' pi of the last solve
  double z = 0.0;  // objective of the last solve (sum of infeasibilities if infeasible)
};

// A warm-start chain: a fixed stretch of a pass's solve order, solved point after point on the
// chain's own subproblem, so that its warm starts do not depend on which thread runs it or on how
// many threads there are. Chain 0 solves on the optimizer's subproblem slot, every other chain on
// a copy it holds.
struct Chain {
  lp::HeldProblem held;  // chains 1, 2, ...: the subproblem, its basis, factors and options
  SolveWork work;
  std::vector<double> acc_primal;  // [1..n2+m2] the chain's share of the report accumulators
  std::vector<double> acc_duals;   // [1..m2+n2]
  int startflag = 0;     // 0 until the chain's first solve, which then starts cold
  int first = 0;         // positions first..last of ev.order in this pass
  int last = 0;
  // How the chain's part of the pass ended: at point stop_point with optimizer status
  // stop_status (1 infeasible, other nonzero values failures, kBadKind an unknown parameter
  // kind), or ran through (stop_point 0).
  int stop_point = 0;
  int stop_status = 0;
  int bad_kind = 0;
  long long solves = 0;  // work of the pass, added to the evaluation's counters afterwards
  long long pivots = 0;
  long long reused = 0;
};

// Largest sample table this build agrees to hold (rows x (blocks + first-stage columns)); the
// universe strategies refuse a universe beyond it.
inline constexpr double kMaxTableWords = 2.0e8;

struct Evaluation {
  Generator rng;

  // Sizes taken from the model by allocate_evaluation.
  int nblocks = 0;
  int nentries = 0;   // random parameters over all blocks
  int n1 = 0;         // first-stage columns (THETA is n1 + 1)
  int n2 = 0;         // subproblem columns
  int m2 = 0;         // subproblem rows, objective included
  int capacity = 0;   // rows of the sample table and of the per-point arrays
  int nmarg = 0;      // rows of the marginal table

  int nsamples = 0;   // working sample size N (the universe sets it to its number of points)

  // Drawing.
  std::vector<int> index;          // [1..nblocks] outcome of every block just drawn
  std::vector<double> cumulative;  // [1..largest outcome count + 1]
  std::vector<double> draw_probs;  // per-outcome probabilities for a mixed draw (importance)

  // The warm-start chains of the solve passes; chain 0 also serves every single solve.
  std::vector<Chain> chains;
  int nthreads = 1;                // threads a pass may use

  // Sample table and per-point results.
  std::vector<int> itab;           // capacity rows x nblocks
  std::vector<double> costs;       // [1..capacity+1] per-sample costs (position 1 holds z0 when
                                   // the approximation is used; the points follow from 2)
  std::vector<double> point_u;     // capacity rows x n1: C' pi of every point
  std::vector<int> order;          // [1..capacity] the order in which points are solved
  // The next reordered pass runs its order backwards: it then starts at the outcome the last pass
  // ended on, whose basis the warm start holds, instead of at the far end of the order.
  bool visit_backwards = false;
  std::vector<int> visit_step;     // [1..nblocks] scratch of the serpentine order
  std::vector<char> solved;        // [1..capacity] point already solved in this pass
  std::vector<signed char> point_status;  // [1..capacity] 0 optimal, 1 infeasible (solved points)
  // Universe passes: the optimal basis (slot states, n2 + m2 per point) each point last had, and
  // whether a pass restarts each point from its own basis. Outcomes far apart cost many pivots
  // from one another's bases, while a point's own basis stays near optimal as the proposals
  // converge. Empty when the universe is too large to keep a basis per point.
  std::vector<signed char> point_basis;
  std::vector<char> point_basis_kept;  // [1..capacity]
  bool restart_from_point_bases = false;
  double neighbour_pivots = 0.0;  // pivots per solve of the last pass started from neighbours
  int infeasible_point = 0;        // the point whose infeasibility ended the last pass, or 0

  CutRecord cut;
  CutGroups groups;

  // Approximation: working, last and best copies, and the working block statistics.
  Approximation approx;
  Approximation last_approx;
  Approximation best_approx;
  std::vector<double> approx_variance;  // [1..nblocks] variance of each block's marginal value
  double expected_gamma = 0.0;          // E[Gamma] = sum of deltabar
  std::vector<double> u0;               // [1..n1] C' pi of the base case

  // Importance sampling: the sample's division among blocks and the per-block statistics.
  std::vector<int> counts;              // [1..nblocks] points given to each block
  std::vector<int> share_end;           // [1..nblocks] running sum of counts
  std::vector<double> remainders;       // [1..nblocks] scratch for the division
  std::vector<double> block_mean;       // [1..nblocks]
  std::vector<double> block_variance;   // [1..nblocks]

  // Report accumulators of the final re-evaluation.
  int collect = 0;
  std::vector<double> acc_primal;  // [1..n2+m2]
  std::vector<double> acc_duals;   // [1..m2+n2]

  int start_flag = 0;  // 0 until the first subproblem solve of the run, which starts cold

  // Work counters for the run's statistics: subproblem solves and their pivots, and points that
  // took the results of an identical point solved just before them.
  long long lp_solves = 0;
  long long lp_pivots = 0;  // simplex iterations over all subproblem solves
  long long reused_points = 0;

  // Best (lowest) total cost and the proposal that gave it.
  double current_total = 0.0;
  double best_total = kInfiniteCost;
  double best_variance = 0.0;
  std::vector<double> best_master_primal;
  std::vector<double> best_master_duals;
  double best_first_stage_cost = 0.0;
};

// What the subsystem borrows from the run. The master's vectors are the Benders loop's copies of
// the last master solve (1-based): x-hat is master_primal[1..n1].
struct Context {
  Units& units;
  const RunParams& params;
  RunClock& clock;
  lp::Optimizer& optimizer;
  const input::Decomposition& model;
  const input::OutcomeStore& store;
  int log_unit;                         // screen log: traces and strategy messages
  int err_unit;                         // MODEL.ERR
  const int& iteration;                 // Benders iteration count
  std::vector<double>& master_primal;   // master column values, then row activities
  std::vector<double>& master_duals;    // master row duals, then reduced costs
  double& first_stage_cost;             // c' x-hat of the proposal
  int& model_status;                    // for the status file
  int& solver_status;
};

// Sets the generator's state from iseed; done once, right after the run parameters are read.
void seed_generator(Evaluation& ev, int iseed);

// Sizes every array of the subsystem from the model, once, after the stochastic file has been
// read (the universe table only when istrat asks for the universe); the master's vectors in the
// context must already have their final sizes (the incumbent's copies take them). Sets the
// working sample size to nsamples and the best total cost to kInfiniteCost. Writes a message to
// MODEL.ERR and returns kErrorExit when the sample table would be too large.
int allocate_evaluation(Evaluation& ev, const Context& ctx);

}  // namespace tarvo::sampling
