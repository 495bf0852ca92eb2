// The outcome store's sizing, expected values and debug listing.
#include <algorithm>

#include "common/free_format.h"
#include "input/stoch_file.h"

namespace tarvo::input {

void allocate_outcome_store(OutcomeStore& store) {
  const std::size_t blocks = static_cast<std::size_t>(std::max(store.jele, 0)) + 2;
  const std::size_t values = static_cast<std::size_t>(std::max(store.itele, 0)) + 1;
  const std::size_t probs = static_cast<std::size_t>(std::max(store.jsum, 0)) + 1;
  store.nsoc.assign(blocks, 0);
  store.nse.assign(blocks, 0);
  store.entry_start.assign(blocks, 1);
  store.value_start.assign(blocks, 1);
  store.prob_start.assign(blocks, 1);
  // Every block has at least one outcome, so its entries never outnumber its values.
  store.kind.assign(values, 0);
  store.location.assign(values, 0);
  store.expected.assign(values, 0.0);
  store.values.assign(values, 0.0);
  store.probs.assign(probs, 0.0);
}

void compute_expected_values(OutcomeStore& store) {
  for (int k = 1; k <= store.count; ++k) {
    const int entries = store.nse[k];
    for (int e = 0; e < entries; ++e) {
      double sum = 0.0;
      for (int o = 0; o < store.nsoc[k]; ++o) {
        sum += store.probs[store.prob_start[k] + o] * store.values[store.value_start[k] + o * entries + e];
      }
      store.expected[store.entry_start[k] + e] = sum;
    }
  }
}

void write_outcome_dump(const OutcomeStore& store, Units& units, int unit) {
  write_line(units, unit, free_line("rvs ", store.count));
  for (int k = 1; k <= store.count; ++k) {
    write_line(units, unit, free_line("rv ", k, " nsoc ", store.nsoc[k], " nse ", store.nse[k]));
    for (int o = 0; o < store.nsoc[k]; ++o) {
      for (int e = 0; e < store.nse[k]; ++e) {
        const int d = store.entry_start[k] + e;
        write_line(units, unit, free_line("   ", store.kind[d], store.location[d],
                                          store.values[store.value_start[k] + o * store.nse[k] + e]));
      }
    }
  }
}

}  // namespace tarvo::input
