#pragma once
// The deterministic equivalent of the two-stage model: one LP that holds the first stage once and
// the second stage once per scenario, each scenario's second-stage costs weighted by its
// probability. Its scenarios are every outcome combination (the universe) or a seeded sample.
// Written as a fixed-column MPS file, so that any LP solver can check an optimum of TARVO's.
#include <string>
#include <vector>

#include "common/units.h"
#include "input/model.h"
#include "lp/problem_slot.h"

namespace tarvo::sampling {

struct ScenarioSet {
  int blocks = 0;
  std::vector<int> outcome;         // outcome of block b (1-based) in scenario s (0-based):
                                    // outcome[s * blocks + b - 1]
  std::vector<double> probability;  // [s]
  int draws = 0;                    // the sample's size; 0 for the universe
  int seed = 0;                     // the sample's seed
};

inline int scenario_count(const ScenarioSet& set) { return static_cast<int>(set.probability.size()); }

// Every outcome combination, the last block varying fastest, with the product of its blocks'
// probabilities. False when there are more than `limit` of them.
bool universe_scenarios(const input::OutcomeStore& store, double limit, ScenarioSet& set);

// `draws` outcomes drawn as crude Monte Carlo draws them, from the generator seeded with `seed`,
// each of probability 1/draws; equal draws are one scenario with their probabilities summed, in
// the order first drawn.
void sampled_scenarios(const input::OutcomeStore& store, int draws, int seed, ScenarioSet& set);

// What the equivalent is built from (the model as decomposed, with its outcome store). The
// subproblem slot takes each scenario's outcome in turn.
struct TwoStageModel {
  const lp::ProblemSlot& master;
  lp::ProblemSlot& sub;
  const input::Decomposition& model;
  const input::OutcomeStore& store;
};

// Scenarios the equivalent can name: its scenario rows and columns are named by one letter and
// seven digits.
double scenario_limit(const TwoStageModel& m);

struct DepSizes {
  long long rows = 0;  // the objective included
  long long columns = 0;
  long long entries = 0;
};

// Writes the equivalent to `unit`. First-stage rows and columns keep their names; scenario rows
// and columns are numbered on from scenario to scenario (comment lines say which belong to which
// scenario). A second-stage row keeps the width of its range, moved with its right-hand side.
// False (with the reason in `error`) when the scenarios need more names than there are.
bool write_deterministic_equivalent(const TwoStageModel& m, const ScenarioSet& set, Units& units,
                                    int unit, DepSizes& sizes, std::string& error);

}  // namespace tarvo::sampling
