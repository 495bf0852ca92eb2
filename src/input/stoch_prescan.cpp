// The prescan of the stochastic file: counts random parameters, outcomes and entries so that the
// outcome store can be sized once.
#include <algorithm>
#include <set>
#include <string>

#include "common/free_format.h"
#include "input/stoch_file.h"
#include "input/stoch_sections.h"

namespace tarvo::input {

namespace {

struct Prescan {
  OutcomeStore& store;
  Units& units;
  int debug_unit;
  StochSection section = StochSection::none;
  bool blocks_seen = false;
  bool parameters_seen = false;  // INDEP or BLOCKS
  bool scenarios_seen = false;
  // The parameter being counted.
  bool open = false;
  lp::Name8 name1{};
  lp::Name8 name2{};
  char column2 = ' ';
  int outcomes = 0;  // INDEP lines or BL realizations
  int entries = 0;   // entries of the first realization (1 for INDEP)
  std::set<std::string> scenario_entries{};  // every entry a scenario names, by bound type and names
};

void list_parameter(Prescan& scan) {
  write_if_open(scan.units, scan.debug_unit,
                free_line("prescan: parameter", scan.store.jele, " outcomes", scan.outcomes,
                          " entries", scan.entries));
}

void close_parameter(Prescan& scan) {
  if (!scan.open) return;
  if (scan.section == StochSection::scenarios) scan.entries = static_cast<int>(scan.scenario_entries.size());
  OutcomeStore& store = scan.store;
  ++store.jele;
  store.jsum += scan.outcomes;
  store.itele += scan.outcomes * scan.entries;
  store.itoc = std::max(store.itoc, scan.outcomes);
  list_parameter(scan);
  scan.open = false;
}

void count_indep_line(Prescan& scan, const ModelRecord& record) {
  const bool same = scan.open && record.name1() == scan.name1 && record.name2() == scan.name2 &&
                    record.column2() == scan.column2;
  if (!same) {
    close_parameter(scan);
    scan.open = true;
    scan.name1 = record.name1();
    scan.name2 = record.name2();
    scan.column2 = record.column2();
    scan.outcomes = 0;
    scan.entries = 1;
  }
  ++scan.outcomes;
}

// False for an entry line that belongs to no block.
bool count_blocks_line(Prescan& scan, const ModelRecord& record) {
  if (record.key() == " BL ") {
    if (!scan.open || record.name1() != scan.name1) {
      close_parameter(scan);
      scan.open = true;
      scan.name1 = record.name1();
      scan.outcomes = 0;
      scan.entries = 0;
    }
    ++scan.outcomes;
    return true;
  }
  if (!scan.open) return false;
  if (scan.outcomes == 1) ++scan.entries;
  return true;
}

// All scenarios form one block; its entries are those any scenario names. False for an entry
// before the first SC line.
bool count_scenarios_line(Prescan& scan, const ModelRecord& record) {
  if (record.key() == kScenarioKey) {
    scan.open = true;
    ++scan.outcomes;
    return true;
  }
  if (!scan.open) return false;
  scan.scenario_entries.insert(record.text.substr(1, 2) + record.text.substr(4, 8) + record.text.substr(14, 8));
  return true;
}

// False for a data line outside any section or an entry before the first BL or SC line.
bool count_data_line(Prescan& scan, const ModelRecord& record) {
  switch (scan.section) {
    case StochSection::indep: count_indep_line(scan, record); return true;
    case StochSection::blocks: return count_blocks_line(scan, record);
    case StochSection::scenarios: return count_scenarios_line(scan, record);
    case StochSection::none: return false;
  }
  return false;
}

// Handles a section card; the result is ok to go on, or the failure (messages written).
InputStatus open_section(Prescan& scan, const ModelRecord& record, const MessageUnits& to) {
  const StochCard card = stoch_card(record);
  if (mixes_scenarios(card, scan.scenarios_seen, scan.parameters_seen)) {
    report_mixed_sections(scan.units, to, record.line_number);
    report_stoch_failure(scan.units, to);
    return InputStatus::bad_file;
  }
  if (card == StochCard::other || (card == StochCard::indep && scan.blocks_seen)) {
    report_stoch_failure(scan.units, to);
    return InputStatus::bad_file;
  }
  if (!discrete_card(record)) {
    report_unsupported(scan.units, to, record);
    return InputStatus::unsupported;
  }
  // A further SCENARIOS card continues the same scenarios.
  if (card != StochCard::scenarios) close_parameter(scan);
  scan.section = section_of(card);
  scan.blocks_seen = scan.blocks_seen || card == StochCard::blocks;
  scan.parameters_seen = scan.parameters_seen || card != StochCard::scenarios;
  scan.scenarios_seen = scan.scenarios_seen || card == StochCard::scenarios;
  return InputStatus::ok;
}

// At ENDATA: a last block (or scenarios) without entries makes the file faulty.
InputStatus close_file(Prescan& scan, const MessageUnits& to) {
  const bool counting = scan.open;
  close_parameter(scan);
  const bool empty_block = counting && scan.section != StochSection::indep && scan.entries == 0;
  if (!empty_block) return InputStatus::ok;
  report_stoch_failure(scan.units, to);
  return InputStatus::bad_file;
}

InputStatus scan_records(Prescan& scan, LineReader& reader, const MessageUnits& to) {
  ModelRecord record;
  if (!next_model_record(reader, record, scan.units, scan.debug_unit)) {
    report_no_endata(scan.units, to);
    return InputStatus::bad_file;
  }
  while (next_model_record(reader, record, scan.units, scan.debug_unit)) {
    if (record.card()) {
      if (stoch_card(record) == StochCard::endata) return close_file(scan, to);
      const InputStatus status = open_section(scan, record, to);
      if (failed(status)) return status;
      continue;
    }
    if (!count_data_line(scan, record)) {
      report_stoch_failure(scan.units, to);
      return InputStatus::bad_file;
    }
  }
  report_no_endata(scan.units, to);
  return InputStatus::bad_file;
}

}  // namespace

InputStatus prescan_stoch_file(Units& units, int sto_unit, int debug_unit, const MessageUnits& to,
                               OutcomeStore& store) {
  store.jele = store.jsum = store.itoc = store.itele = 0;
  Prescan scan{store, units, debug_unit};
  LineReader reader{unit_stream(units, sto_unit)};
  return scan_records(scan, reader, to);
}

}  // namespace tarvo::input
