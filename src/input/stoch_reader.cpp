// The full read of the stochastic file into the outcome store.
#include <algorithm>

#include "common/free_format.h"
#include "input/stoch_file.h"
#include "input/stoch_scenarios.h"
#include "input/stoch_sections.h"

namespace tarvo::input {

namespace {

struct StochRead {
  const StochContext& context;
  OutcomeStore& store;
  Units& units;
  MessageUnits to;
  int errors = 0;
  bool overflow = false;  // the file holds more than the prescan counted
  StochSection section = StochSection::none;
  bool blocks_seen = false;
  bool parameters_seen = false;  // INDEP or BLOCKS
  bool scenarios_seen = false;
  ScenarioTree tree{};
  // The parameter being read (k = store.count).
  bool open = false;
  lp::Name8 name1{};
  lp::Name8 name2{};
  char column2 = ' ';
  int values = 0;  // values stored so far, all parameters
  int probs = 0;   // probabilities stored so far
};

void report_not_matched(StochRead& r, const ModelRecord& record) {
  const lp::Name8 n1 = record.name1();
  const lp::Name8 n2 = record.name2();
  write_run_message(r.units, r.to, free_line("ERROR in .sto: ", record.bound_type(), lp::name_view(n1),
                                             lp::name_view(n2),
                                             " was not matched in first realization of block"));
}

void report_success(const OutcomeStore& store, Units& units, int log) {
  write_if_open(units, log, free_line("Successful input of stochastic file:"));
  write_if_open(units, log, free_line("independent random parameters: ", store.count));
  write_if_open(units, log, free_line("total number of outcomes     : ", store.total_outcomes));
  write_if_open(units, log, free_line("universe scenarios           : ", store.universe));
}

// The store was sized by the prescan; anything beyond it is refused, not written.
bool room(StochRead& r, int used, std::size_t size) {
  if (used + 1 < static_cast<int>(size)) return true;
  r.overflow = true;
  return false;
}

bool push_value(StochRead& r, double value) {
  if (!room(r, r.values, r.store.values.size())) return false;
  r.store.values[++r.values] = value;
  return true;
}

bool push_probability(StochRead& r, double probability) {
  if (!room(r, r.probs, r.store.probs.size())) return false;
  r.store.probs[++r.probs] = probability;
  ++r.store.nsoc[r.store.count];
  return true;
}

bool push_entry(StochRead& r, const Classification& c) {
  OutcomeStore& s = r.store;
  if (!room(r, s.entries, s.kind.size())) return false;
  ++s.entries;
  s.kind[s.entries] = c.kind;
  s.location[s.entries] = c.index;
  ++s.nse[s.count];
  if (c.result != kEntryStored) return true;
  if (c.kind <= -11) s.bound_random = true;
  if (c.kind == -1 || c.kind > 0) s.matrix_random = true;
  return true;
}

void open_parameter(StochRead& r) {
  OutcomeStore& s = r.store;
  if (!room(r, s.count + 1, s.nsoc.size())) return;  // keeps room for the closing starts
  const int k = ++s.count;
  s.nsoc[k] = 0;
  s.nse[k] = 0;
  s.entry_start[k] = s.entries + 1;
  s.value_start[k] = r.values + 1;
  s.prob_start[k] = r.probs + 1;
  r.open = true;
}

void close_parameter(StochRead& r) { r.open = false; }

void read_indep_line(StochRead& r, const ModelRecord& record) {
  const bool same = r.open && record.name1() == r.name1 && record.name2() == r.name2 &&
                    record.column2() == r.column2;
  if (!same) {
    close_parameter(r);
    open_parameter(r);
    if (r.overflow) return;
    r.name1 = record.name1();
    r.name2 = record.name2();
    r.column2 = record.column2();
    // Value 1.0 in place of the line's: in INDEP an unknown column or a missing element is
    // always an error, never a skipped zero.
    const Classification c = classify_entry(r.context, record.bound_type(), r.name1, r.name2, 1.0,
                                            r.units, r.to);
    if (c.result == kEntryError) ++r.errors;
    push_entry(r, c);
  }
  if (r.overflow) return;
  if (push_value(r, record.value1)) push_probability(r, record.value2);
}

// A BL line: a new block when the name changes; a later realization starts as a copy of the
// first one's values.
void read_realization(StochRead& r, const ModelRecord& record) {
  if (!r.open || record.name1() != r.name1) {
    close_parameter(r);
    open_parameter(r);
    if (r.overflow) return;
    r.name1 = record.name1();
  }
  OutcomeStore& s = r.store;
  const int k = s.count;
  if (!push_probability(r, record.value1)) return;
  if (s.nsoc[k] == 1) return;
  for (int e = 0; e < s.nse[k]; ++e) {
    if (!push_value(r, s.values[s.value_start[k] + e])) return;
  }
}

int first_realization_match(const OutcomeStore& s, int k, const Classification& c) {
  for (int e = 0; e < s.nse[k]; ++e) {
    const int d = s.entry_start[k] + e;
    if (s.kind[d] == c.kind && s.location[d] == c.index) return e;
  }
  return -1;
}

void read_block_entry(StochRead& r, const ModelRecord& record) {
  const Classification c = classify_entry(r.context, record.bound_type(), record.name1(),
                                          record.name2(), record.value1, r.units, r.to);
  if (c.result == kEntryError) ++r.errors;
  if (c.result != kEntryStored) return;
  OutcomeStore& s = r.store;
  const int k = s.count;
  if (s.nsoc[k] == 1) {
    if (push_entry(r, c)) push_value(r, record.value1);
    return;
  }
  const int e = first_realization_match(s, k, c);
  if (e < 0) {
    report_not_matched(r, record);
    ++r.errors;
    return;
  }
  s.values[s.value_start[k] + (s.nsoc[k] - 1) * s.nse[k] + e] = record.value1;
}

void read_scenario_entry(StochRead& r, const ModelRecord& record) {
  const Classification c = classify_entry(r.context, record.bound_type(), record.name1(),
                                          record.name2(), record.value1, r.units, r.to);
  if (c.result == kEntryError) ++r.errors;
  if (c.result == kEntryStored) add_scenario_entry(r.tree, c, record.value1);
}

// False for an entry before the first SC line.
bool read_scenarios_line(StochRead& r, const ModelRecord& record) {
  if (record.key() == kScenarioKey) {
    if (!add_scenario(r.tree, r.context, record, r.units, r.to)) ++r.errors;
    return true;
  }
  if (r.tree.scenarios.empty()) return false;
  read_scenario_entry(r, record);
  return true;
}

// The scenarios as one block: outcome s starts from its parent's values (the core's for the
// root) and takes its own changes.
void store_scenarios(StochRead& r) {
  const ScenarioTree& tree = r.tree;
  if (tree.scenarios.empty()) return;
  open_parameter(r);
  for (const Classification& c : tree.entries) {
    if (!push_entry(r, c)) return;
  }
  OutcomeStore& s = r.store;
  const int k = s.count;
  const int entries = static_cast<int>(tree.entries.size());
  std::vector<double> values(entries);
  for (const Scenario& scenario : tree.scenarios) {
    for (int e = 0; e < entries; ++e) {
      values[e] = scenario.parent == 0 ? core_value(r.context, tree.entries[e])
                                       : s.values[s.value_start[k] + (scenario.parent - 1) * entries + e];
    }
    for (const auto& [e, value] : scenario.changes) values[e] = value;
    if (!push_probability(r, scenario.probability)) return;
    for (const double value : values) {
      if (!push_value(r, value)) return;
    }
  }
}

// False for a data line outside any section or an entry before the first BL or SC line.
bool read_data_line(StochRead& r, const ModelRecord& record) {
  const bool bl = record.key() == " BL ";
  const bool needs_value2 = r.section == StochSection::indep;
  if (!record.value1_ok || (needs_value2 && !record.value2_ok)) {
    report_bad_number(r.units, r.to, record.line_number);
    ++r.errors;
    return r.section != StochSection::none;
  }
  switch (r.section) {
    case StochSection::indep: read_indep_line(r, record); return true;
    case StochSection::blocks:
      if (bl) {
        read_realization(r, record);
        return true;
      }
      if (!r.open) return false;
      read_block_entry(r, record);
      return true;
    case StochSection::scenarios: return read_scenarios_line(r, record);
    case StochSection::none: return false;
  }
  return false;
}

InputStatus open_section(StochRead& r, const ModelRecord& record) {
  const StochCard card = stoch_card(record);
  if (mixes_scenarios(card, r.scenarios_seen, r.parameters_seen)) {
    report_mixed_sections(r.units, r.to, record.line_number);
    report_stoch_failure(r.units, r.to);
    return InputStatus::bad_file;
  }
  if (card == StochCard::other || (card == StochCard::indep && r.blocks_seen)) {
    report_stoch_failure(r.units, r.to);
    return InputStatus::bad_file;
  }
  if (!discrete_card(record)) {
    report_unsupported(r.units, r.to, record);
    return InputStatus::unsupported;
  }
  close_parameter(r);
  r.section = section_of(card);
  r.blocks_seen = r.blocks_seen || card == StochCard::blocks;
  r.parameters_seen = r.parameters_seen || card != StochCard::scenarios;
  r.scenarios_seen = r.scenarios_seen || card == StochCard::scenarios;
  return InputStatus::ok;
}

void set_totals(OutcomeStore& s, int values, int probs) {
  s.entry_start[s.count + 1] = s.entries + 1;
  s.value_start[s.count + 1] = values + 1;
  s.prob_start[s.count + 1] = probs + 1;
  s.total_outcomes = 0;
  s.universe = 1.0;
  for (int k = 1; k <= s.count; ++k) {
    s.total_outcomes += s.nsoc[k];
    s.universe *= s.nsoc[k];
  }
}

InputStatus close_file(StochRead& r) {
  store_scenarios(r);
  OutcomeStore& s = r.store;
  const bool empty_last = s.count > 0 && s.nse[s.count] == 0;
  close_parameter(r);
  if (empty_last || r.errors > 0 || r.overflow) {
    report_stoch_failure(r.units, r.to);
    return r.overflow ? InputStatus::storage : InputStatus::bad_file;
  }
  set_totals(s, r.values, r.probs);
  report_success(s, r.units, r.to.log);
  return InputStatus::ok;
}

InputStatus read_records(StochRead& r, LineReader& reader, int echo_unit) {
  ModelRecord record;
  if (!next_model_record(reader, record, r.units, echo_unit)) {
    report_no_endata(r.units, r.to);
    return InputStatus::bad_file;
  }
  while (next_model_record(reader, record, r.units, echo_unit)) {
    if (record.card()) {
      if (stoch_card(record) == StochCard::endata) return close_file(r);
      const InputStatus status = open_section(r, record);
      if (failed(status)) return status;
    } else if (!read_data_line(r, record)) {
      report_stoch_failure(r.units, r.to);
      return InputStatus::bad_file;
    }
  }
  report_no_endata(r.units, r.to);
  return InputStatus::bad_file;
}

void clear_store(OutcomeStore& s) {
  s.count = 0;
  s.entries = 0;
  s.matrix_random = false;
  s.bound_random = false;
  s.total_outcomes = 0;
  s.universe = 1.0;
}

}  // namespace

InputStatus read_stoch_file(Units& units, const std::string& file_name, int unit, int echo_unit,
                            const MessageUnits& to, const StochContext& context,
                            OutcomeStore& store) {
  if (!open_unit(units, unit, file_name, OpenStatus::old_file)) {
    report_no_file(units, to, file_name);
    return InputStatus::missing_file;
  }
  clear_store(store);
  if (store.nsoc.empty()) allocate_outcome_store(store);
  StochRead r{context, store, units, to};
  LineReader reader{unit_stream(units, unit)};
  const InputStatus status = read_records(r, reader, echo_unit);
  close_unit(units, unit);
  return status;
}

}  // namespace tarvo::input
