#pragma once
// Drawing one outcome per block, and turning the current outcome indices into probabilities and
// parameter values.
#include <vector>

#include "input/model.h"
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// For every block in order, one generator step: index(b) := the outcome whose cumulative interval
// (c_i, c_{i+1}] holds u. `probs` is laid out like store.probs (the store's own probabilities or
// importance probabilities). The top of the cumulative table is the sentinel 1.01, so the last
// outcome absorbs any shortfall of the probabilities; a u in no interval leaves outcome 1.
void drawindex(Evaluation& ev, const input::OutcomeStore& store, const std::vector<double>& probs);

// work.block_prob(b) := probability of the current outcome work.index(b) of block b.
void outprob(SolveWork& work, const input::OutcomeStore& store);

// work.current(e) := value of parameter e in the current outcome of its block, for every
// parameter.
void outval(SolveWork& work, const input::OutcomeStore& store);

// store.expected := the expected value of every random parameter (chain 0's work serves as
// scratch). Leaves every index at 1.
void expvals(Evaluation& ev, input::OutcomeStore& store);

}  // namespace tarvo::sampling
