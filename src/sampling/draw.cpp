#include "sampling/draw.h"

#include "sampling/rng.h"

namespace tarvo::sampling {

namespace {

// The single-precision value of 1.01: the top of every cumulative table.
constexpr double kCumulativeTop = 1.0099999904632568;

void fill_cumulative(Evaluation& ev, const input::OutcomeStore& store,
                     const std::vector<double>& probs, int b) {
  const int n = store.nsoc[b];
  const int first = store.prob_start[b];
  ev.cumulative[1] = 0.0;
  for (int i = 2; i <= n; ++i) ev.cumulative[i] = ev.cumulative[i - 1] + probs[first + i - 2];
  ev.cumulative[n + 1] = kCumulativeTop;
}

// Every interval is tested (no early exit): with importance probabilities of mixed sign the
// table need not be increasing, and then the last interval that holds u wins.
int outcome_of(const Evaluation& ev, int n, double u) {
  int chosen = 1;
  for (int i = 1; i <= n; ++i) {
    if (ev.cumulative[i] < u && u <= ev.cumulative[i + 1]) chosen = i;
  }
  return chosen;
}

}  // namespace

void drawindex(Evaluation& ev, const input::OutcomeStore& store, const std::vector<double>& probs) {
  for (int b = 1; b <= store.count; ++b) {
    fill_cumulative(ev, store, probs, b);
    const double u = rngnext(ev.rng);
    ev.index[b] = outcome_of(ev, store.nsoc[b], u);
  }
}

void outprob(Evaluation& ev, const input::OutcomeStore& store) {
  for (int b = 1; b <= store.count; ++b) {
    ev.block_prob[b] = store.probs[store.prob_start[b] + ev.index[b] - 1];
  }
}

void outval(Evaluation& ev, const input::OutcomeStore& store) {
  for (int b = 1; b <= store.count; ++b) {
    const int q = store.nse[b];
    const int from = store.value_start[b] + (ev.index[b] - 1) * q;
    const int to = store.entry_start[b];
    for (int j = 0; j < q; ++j) ev.current[to + j] = store.values[from + j];
  }
}

void expvals(Evaluation& ev, input::OutcomeStore& store) {
  for (int b = 1; b <= store.count; ++b) ev.index[b] = 1;
  for (int b = 1; b <= store.count; ++b) {
    const int first = store.entry_start[b];
    const int q = store.nse[b];
    for (int j = 0; j < q; ++j) store.expected[first + j] = 0.0;
    for (int i = 1; i <= store.nsoc[b]; ++i) {
      ev.index[b] = i;
      outprob(ev, store);
      outval(ev, store);
      for (int j = 0; j < q; ++j) store.expected[first + j] += ev.block_prob[b] * ev.current[first + j];
    }
    ev.index[b] = 1;
  }
}

}  // namespace tarvo::sampling
