#pragma once
// The scenarios of a SCENARIOS section: an SC line names a scenario, its parent ('ROOT' for one
// that starts from the core), its probability and the period where it branches; the entries
// below it are the values that differ from its parent. Gathered while the file is read, they
// become one block of the outcome store at its end, so every strategy sees them as outcomes.
#include <map>
#include <utility>
#include <vector>

#include "input/model_record.h"
#include "input/stoch_file.h"

namespace tarvo::input {

struct Scenario {
  lp::Name8 name;
  int parent = 0;  // an earlier scenario (1-based), or 0 for the root: the core's values
  double probability = 0.0;
  std::vector<std::pair<int, double>> changes;  // (entry, value) in the order read; the last counts
};

struct ScenarioTree {
  std::vector<Scenario> scenarios;
  std::vector<Classification> entries;  // every location a scenario changes
  std::map<std::pair<int, int>, int> entry_at;  // (kind, index) -> entry
  std::vector<lp::Name8> periods;       // the distinct periods of the SC lines
};

// An SC line opens a scenario. A parent that is no scenario above it, or a period that makes the
// tree multistage, is reported with the line number and false is returned; the scenario is kept
// all the same so that the lines below it are still checked.
bool add_scenario(ScenarioTree& tree, const StochContext& context, const ModelRecord& record,
                  Units& units, const MessageUnits& to);

// A stored entry of the last scenario.
void add_scenario_entry(ScenarioTree& tree, const Classification& entry, double value);

// The value the core model holds at the entry's location.
double core_value(const StochContext& context, const Classification& entry);

}  // namespace tarvo::input
