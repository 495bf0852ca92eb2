#include "sampling/evaluation.h"

#include <algorithm>
#include <climits>

#include "common/free_format.h"
#include "sampling/sample_tables.h"
#include "sampling/solve_pass.h"

namespace tarvo::sampling {

namespace {

bool enumerates_universe(int istrat) { return istrat == 4 || istrat == 5; }

// A basis per universe point is kept up to this size.
constexpr double kMaxPointBasisBytes = 64.0 * 1024 * 1024;

int count_entries(const input::OutcomeStore& store) {
  if (store.count == 0 || static_cast<int>(store.entry_start.size()) <= store.count + 1) return 0;
  return store.entry_start[store.count + 1] - 1;
}

int largest_outcome_count(const input::OutcomeStore& store) {
  int most = 1;
  for (int b = 1; b <= store.count; ++b) most = std::max(most, store.nsoc[b]);
  return most;
}

int marginal_rows(const input::OutcomeStore& store) {
  int rows = 1;
  for (int b = 1; b <= store.count; ++b) rows += store.nsoc[b] - 1;
  return rows;
}

// Rows the sample table needs: the sample (one point per block at least, for the importance
// sample), the marginal table, and the universe when the strategy enumerates it.
double table_rows(const Context& ctx, int nmarg) {
  double rows = std::max({ctx.params.nsamples, nmarg, ctx.store.count, 1});
  if (enumerates_universe(ctx.params.istrat)) rows = std::max(rows, universe_points(ctx.store));
  return rows;
}

void size_approximation(Approximation& a, int nblocks, std::size_t outcomes) {
  a.deltabar.assign(nblocks + 1, 0.0);
  a.gamma.assign(outcomes, 0.0);
  a.q.assign(outcomes, 0.0);
  a.z0 = 0.0;
}

void size_outcome_arrays(Evaluation& ev, const input::OutcomeStore& store) {
  const int nb = ev.nblocks;
  ev.index.assign(nb + 1, 1);
  ev.visit_step.assign(nb + 1, 1);
  ev.cumulative.assign(largest_outcome_count(store) + 2, 0.0);
  ev.draw_probs.assign(store.probs.size(), 0.0);
  size_approximation(ev.approx, nb, store.probs.size());
  size_approximation(ev.last_approx, nb, store.probs.size());
  size_approximation(ev.best_approx, nb, store.probs.size());
  ev.approx_variance.assign(nb + 1, 0.0);
  ev.counts.assign(nb + 1, 0);
  ev.share_end.assign(nb + 1, 0);
  ev.remainders.assign(nb + 1, 0.0);
  ev.block_mean.assign(nb + 1, 0.0);
  ev.block_variance.assign(nb + 1, 0.0);
}

void size_work(SolveWork& w, const Evaluation& ev, const input::Decomposition& model) {
  w.index.assign(ev.nblocks + 1, 1);
  w.block_prob.assign(ev.nblocks + 1, 0.0);
  w.current.assign(ev.nentries + 1, 0.0);
  w.b_work.assign(model.b_nonzeros + 1, 0.0);
  w.rhs_work.assign(ev.m2 + 1, 0.0);
  w.coupled.assign(ev.m2 + 1, 0.0);
  w.primal.assign(ev.n2 + ev.m2 + 1, 0.0);
  w.duals.assign(ev.n2 + ev.m2 + 1, 0.0);
  w.u.assign(ev.n1 + 1, 0.0);
}

// As many chains as the largest pass can use, each with its own copy of the subproblem (chain 0
// solves on the optimizer's slot), so that no pass allocates.
void size_chains(Evaluation& ev, const Context& ctx) {
  const int count = chain_count(ev.capacity);
  ev.chains.resize(count);
  for (int c = 0; c < count; ++c) {
    Chain& chain = ev.chains[c];
    size_work(chain.work, ev, ctx.model);
    chain.acc_primal.assign(ev.n2 + ev.m2 + 1, 0.0);
    chain.acc_duals.assign(ev.n2 + ev.m2 + 1, 0.0);
    if (c > 0) lp::hold_problem(chain.held, ctx.optimizer.slot[lp::kSubproblemSlot]);
    chain.startflag = 0;
  }
  ev.nthreads = std::clamp(ctx.params.nthreads, 1, count);
}

void size_subproblem_arrays(Evaluation& ev) {
  ev.u0.assign(ev.n1 + 1, 0.0);
  ev.cut.gus.assign(ev.n1 + 2, 0.0);
  ev.acc_primal.assign(ev.n2 + ev.m2 + 1, 0.0);
  ev.acc_duals.assign(ev.n2 + ev.m2 + 1, 0.0);
}

void size_point_arrays(Evaluation& ev) {
  const std::size_t rows = static_cast<std::size_t>(ev.capacity);
  ev.itab.assign(rows * ev.nblocks + 1, 1);
  ev.costs.assign(rows + 2, 0.0);
  ev.point_u.assign(rows * ev.n1 + 1, 0.0);
  ev.order.assign(rows + 1, 0);
  ev.solved.assign(rows + 1, 0);
  ev.point_status.assign(rows + 1, 0);
}

}  // namespace

void seed_generator(Evaluation& ev, int iseed) { ev.rng.x = iseed; }

int allocate_evaluation(Evaluation& ev, const Context& ctx) {
  const input::OutcomeStore& store = ctx.store;
  ev.nblocks = store.count;
  ev.nentries = count_entries(store);
  ev.n1 = ctx.model.n1;
  ev.n2 = ctx.model.n2;
  ev.m2 = ctx.model.m2;
  ev.nmarg = marginal_rows(store);
  const double rows = table_rows(ctx, ev.nmarg);
  if (rows > INT_MAX || rows * (ev.nblocks + ev.n1 + 2) > kMaxTableWords) {
    write_free(ctx.units, ctx.err_unit, "error: sample table of ", rows, " rows too large");
    return kErrorExit;
  }
  ev.capacity = static_cast<int>(rows);
  ev.nsamples = ctx.params.nsamples;
  size_outcome_arrays(ev, store);
  size_subproblem_arrays(ev);
  size_point_arrays(ev);
  size_chains(ev, ctx);
  const double basis_bytes = rows * (ev.n2 + ev.m2);
  if (enumerates_universe(ctx.params.istrat) && basis_bytes <= kMaxPointBasisBytes) {
    ev.point_basis.assign(static_cast<std::size_t>(basis_bytes), 0);
    ev.point_basis_kept.assign(ev.capacity + 1, 0);
  }
  ev.best_master_primal.assign(ctx.master_primal.size(), 0.0);
  ev.best_master_duals.assign(ctx.master_duals.size(), 0.0);
  ev.collect = 0;
  ev.best_total = kInfiniteCost;
  return kOk;
}

}  // namespace tarvo::sampling
