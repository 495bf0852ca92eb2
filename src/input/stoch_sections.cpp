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
  if (key == "ENDA") return StochCard::endata;
  return StochCard::other;
}

bool discrete_card(const ModelRecord& record) { return record.name2() == lp::make_name("DISCRETE"); }

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
