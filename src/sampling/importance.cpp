#include "sampling/importance.h"

#include <cmath>

#include "sampling/allocate.h"
#include "sampling/draw.h"
#include "sampling/sample_tables.h"

namespace tarvo::sampling {

namespace {

constexpr double kNegligibleChange = 1e-5;

void marginal_values(const Context& ctx, Evaluation& ev, int b) {
  const input::OutcomeStore& store = ctx.store;
  const int first = store.prob_start[b];
  ev.approx.gamma[first] = 0.0;
  for (int i = 2; i <= store.nsoc[b]; ++i) {
    const double change = ev.costs[marginal_row(store, b, i)] - ev.approx.z0;
    ev.approx.gamma[first + i - 1] = std::fabs(change) <= kNegligibleChange ? 0.0 : change;
  }
}

void block_moments(const Context& ctx, Evaluation& ev, int b) {
  const input::OutcomeStore& store = ctx.store;
  const int first = store.prob_start[b];
  double mean = 0.0;
  for (int i = 0; i < store.nsoc[b]; ++i) mean += store.probs[first + i] * ev.approx.gamma[first + i];
  double variance = 0.0;
  for (int i = 0; i < store.nsoc[b]; ++i) {
    variance += store.probs[first + i] * std::pow(ev.approx.gamma[first + i] - mean, 2.0);
  }
  ev.approx.deltabar[b] = mean;
  ev.approx_variance[b] = variance;
}

void importance_probabilities(const Context& ctx, Evaluation& ev, int b) {
  const input::OutcomeStore& store = ctx.store;
  const int first = store.prob_start[b];
  const double weight = ev.approx.deltabar[b];
  for (int i = 0; i < store.nsoc[b]; ++i) {
    const double p = store.probs[first + i];
    ev.approx.q[first + i] = weight != 0.0 ? p * ev.approx.gamma[first + i] / weight : p;
  }
}

// draw_probs := the store's probabilities, except block c which takes its importance ones.
void mixed_probabilities(const Context& ctx, Evaluation& ev, int c) {
  const input::OutcomeStore& store = ctx.store;
  for (int b = 1; b <= store.count; ++b) {
    const std::vector<double>& from = b == c ? ev.approx.q : store.probs;
    const int first = store.prob_start[b];
    for (int i = 0; i < store.nsoc[b]; ++i) ev.draw_probs[first + i] = from[first + i];
  }
}

}  // namespace

void approx(const Context& ctx, Evaluation& ev) {
  ev.approx.z0 = ev.costs[1];
  ev.expected_gamma = 0.0;
  for (int b = 1; b <= ev.nblocks; ++b) {
    marginal_values(ctx, ev, b);
    block_moments(ctx, ev, b);
    ev.expected_gamma += ev.approx.deltabar[b];
    importance_probabilities(ctx, ev, b);
  }
}

void sampis(const Context& ctx, Evaluation& ev) {
  allocate(ev.approx.deltabar, ev.nsamples, ev.nblocks, ev.counts, ev.remainders);
  int running = 0;
  for (int b = 1; b <= ev.nblocks; ++b) {
    running += ev.counts[b];
    ev.share_end[b] = running;
  }
  int c = 1;
  bool share_starts = true;
  for (int k = 1; k <= running; ++k) {
    if (share_starts) mixed_probabilities(ctx, ev, c);
    drawindex(ev, ctx.store, ev.draw_probs);
    for (int b = 1; b <= ev.nblocks; ++b) table_entry(ev, k, b) = ev.index[b];
    share_starts = k == ev.share_end[c];
    if (share_starts) ++c;
  }
  if (ctx.params.ibug >= 11) write_table_rows(ctx, ev, running);
}

double approximation_of_row(const Context& ctx, const Evaluation& ev, int k) {
  double sum = 0.0;
  for (int b = 1; b <= ev.nblocks; ++b) {
    sum += ev.approx.gamma[ctx.store.prob_start[b] + table_entry(ev, k, b) - 1];
  }
  return sum;
}

}  // namespace tarvo::sampling
