#include "input/stoch_sections.h"

#include "common/free_format.h"

namespace tarvo::input {

namespace {

void report_program_terminated(Units& units, const MessageUnits& to) {
  write_run_message(units, to, free_line("program terminated."));
}

}  // namespace

StochCard stoch_card(const ModelRecord& record) {
  const std::string_view key = record.key();
  if (key == "INDE") return StochCard::indep;
  if (key == "BLOC") return StochCard::blocks;
  if (key == "SCEN") return StochCard::scenarios;
  if (key == "ENDA") return StochCard::endata;
  return StochCard::other;
}

bool discrete_card(const ModelRecord& record) { return record.name2() == lp::make_name("DISCRETE"); }

StochSection section_of(StochCard card) {
  switch (card) {
    case StochCard::indep: return StochSection::indep;
    case StochCard::blocks: return StochSection::blocks;
    case StochCard::scenarios: return StochSection::scenarios;
    default: return StochSection::none;
  }
}

bool mixes_scenarios(StochCard card, bool scenarios_seen, bool parameters_seen) {
  if (card == StochCard::scenarios) return parameters_seen;
  return (card == StochCard::indep || card == StochCard::blocks) && scenarios_seen;
}

void report_mixed_sections(Units& units, const MessageUnits& to, int line_number) {
  write_run_message(units, to, free_line("ERROR in .sto: line", line_number,
                                         ": SCENARIOS cannot be mixed with INDEP or BLOCKS sections"));
}

void report_unsupported(Units& units, const MessageUnits& to, const ModelRecord& record) {
  const lp::Name8 name1 = record.name1();
  const lp::Name8 name2 = record.name2();
  write_run_message(units, to, free_line("Option ", lp::name_view(name1), " ", lp::name_view(name2),
                                         " not supported!"));
  report_program_terminated(units, to);
}

void report_stoch_failure(Units& units, const MessageUnits& to) {
  write_run_message(units, to, free_line("error(s) in stoch file!"));
  report_program_terminated(units, to);
}

void report_bad_number(Units& units, const MessageUnits& to, int line_number) {
  write_run_message(units, to, free_line("ERROR in .sto: bad number in line ", line_number));
}

}  // namespace tarvo::input
