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

void outprob(SolveWork& work, const input::OutcomeStore& store) {
  for (int b = 1; b <= store.count; ++b) {
    work.block_prob[b] = store.probs[store.prob_start[b] + work.index[b] - 1];
  }
}

void outval(SolveWork& work, const input::OutcomeStore& store) {
  for (int b = 1; b <= store.count; ++b) {
    const int q = store.nse[b];
    const int from = store.value_start[b] + (work.index[b] - 1) * q;
    const int to = store.entry_start[b];
    for (int j = 0; j < q; ++j) work.current[to + j] = store.values[from + j];
  }
}

void expvals(Evaluation& ev, input::OutcomeStore& store) {
  SolveWork& w = ev.chains[0].work;
  for (int b = 1; b <= store.count; ++b) w.index[b] = 1;
  for (int b = 1; b <= store.count; ++b) {
    const int first = store.entry_start[b];
    const int q = store.nse[b];
    for (int j = 0; j < q; ++j) store.expected[first + j] = 0.0;
    for (int i = 1; i <= store.nsoc[b]; ++i) {
      w.index[b] = i;
      outprob(w, store);
      outval(w, store);
      for (int j = 0; j < q; ++j) store.expected[first + j] += w.block_prob[b] * w.current[first + j];
    }
    w.index[b] = 1;
  }
}

}  // namespace tarvo::sampling
