#include "input/model_record.h"

#include <algorithm>

#include "common/free_format.h"
#include "common/record_format.h"

namespace tarvo::input {

namespace {

constexpr std::size_t kRecordColumns = 80;

void echo_record(const ModelRecord& r, Units& units, int echo_unit) {
  if (!unit_is_open(units, echo_unit)) return;
  const lp::Name8 n1 = r.name1();
  const lp::Name8 n2 = r.name2();
  const lp::Name8 n3 = r.name3();
  write_if_open(units, echo_unit,
                laid_out("(i6,2x,a4,a8,2x,a8,2x,1pe12.5,3x,a8,2x,1pe12.5)",
                         {r.line_number, r.key(), lp::name_view(n1), lp::name_view(n2), r.value1,
                          lp::name_view(n3), r.value2}));
}

}  // namespace

bool next_model_record(LineReader& reader, ModelRecord& record, Units& units, int echo_unit) {
  std::string raw;
  while (next_line(reader, raw)) {
    if (!raw.empty() && raw[0] == '*') {
      write_if_open(units, echo_unit, raw);  // a comment is echoed as it stands
      continue;
    }
    record.line_number = reader.line_number;
    record.text.assign(raw, 0, std::min(raw.size(), kRecordColumns));
    record.text.resize(kRecordColumns, ' ');
    const std::string_view text = record.text;
    record.value1_ok = read_real_field(text.substr(24, 12), record.value1);
    record.value2_ok = read_real_field(text.substr(49, 12), record.value2);
    if (!record.value1_ok) record.value1 = 0.0;
    if (!record.value2_ok) record.value2 = 0.0;
    echo_record(record, units, echo_unit);
    return true;
  }
  return false;
}

void report_no_endata(Units& units, const MessageUnits& to) {
  write_run_message(units, to, free_line("file ends... ", "no endata found!"));
}

}  // namespace tarvo::input
