#pragma once
// A run's worth of borrowed state for sampling tests, and hand-built outcome stores.
#include <string>
#include <vector>

#include "common/units.h"
#include "sampling/evaluation.h"

namespace tarvo::sampling::testing {

struct Harness {
  Units units;
  RunParams params;
  RunClock clock;
  lp::Optimizer optimizer;
  input::Decomposition model;
  input::OutcomeStore store;
  int iteration = 0;
  std::vector<double> master_primal = std::vector<double>(2, 0.0);
  std::vector<double> master_duals = std::vector<double>(2, 0.0);
  double first_stage_cost = 0.0;
  int model_status = 0;
  int solver_status = 0;
  int log_unit = 0;

  Context context() {
    return Context{.units = units, .params = params, .clock = clock, .optimizer = optimizer,
                   .model = model, .store = store, .log_unit = log_unit, .err_unit = 0,
                   .iteration = iteration, .master_primal = master_primal,
                   .master_duals = master_duals, .first_stage_cost = first_stage_cost,
                   .model_status = model_status, .solver_status = solver_status};
  }
};

// One block per probability list, one random right-hand side per block (row b + 1) whose value
// in outcome i is values[b][i] (or i when no values are given).
inline input::OutcomeStore make_store(const std::vector<std::vector<double>>& probs,
                                      const std::vector<std::vector<double>>& values = {}) {
  input::OutcomeStore s;
  const int nb = static_cast<int>(probs.size());
  s.count = nb;
  s.nsoc.assign(nb + 1, 0);
  s.nse.assign(nb + 1, 1);
  s.entry_start.assign(nb + 2, 1);
  s.value_start.assign(nb + 2, 1);
  s.prob_start.assign(nb + 2, 1);
  s.kind.assign(1, 0);
  s.location.assign(1, 0);
  s.values.assign(1, 0.0);
  s.probs.assign(1, 0.0);
  for (int b = 1; b <= nb; ++b) {
    const int n = static_cast<int>(probs[b - 1].size());
    s.nsoc[b] = n;
    s.entry_start[b + 1] = s.entry_start[b] + 1;
    s.value_start[b + 1] = s.value_start[b] + n;
    s.prob_start[b + 1] = s.prob_start[b] + n;
    s.kind.push_back(-2);
    s.location.push_back(b + 1);
    for (int i = 0; i < n; ++i) {
      s.probs.push_back(probs[b - 1][i]);
      s.values.push_back(values.empty() ? i + 1.0 : values[b - 1][i]);
    }
  }
  s.expected.assign(nb + 1, 0.0);
  s.universe = 1.0;
  for (int b = 1; b <= nb; ++b) s.universe *= s.nsoc[b];
  return s;
}

// A model without subproblem data: n1 first-stage columns, an empty coupling matrix.
inline void set_plain_model(Harness& h, int n1) {
  h.model.n1 = n1;
  h.model.m2 = 1;
  h.model.n2 = 0;
  h.model.kb.assign(n1 + 3, 1);
  h.master_primal.assign(n1 + 2, 0.0);
  h.master_duals.assign(2, 0.0);
}

}  // namespace tarvo::sampling::testing
