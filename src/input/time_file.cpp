#include "input/time_file.h"

#include "common/free_format.h"
#include "input/model_record.h"

namespace tarvo::input {

namespace {

void report_bad_time_file(Units& units, const MessageUnits& to) {
  write_run_message(units, to, free_line("error in TIME file!"));
}

bool blank_key(const ModelRecord& record) { return record.key() == "    "; }

// Checks record k (1-based, comments not counted) against the accepted layout.
// The name records must have numbers (or blanks) in their value columns.
bool record_fits(const ModelRecord& record, int k) {
  switch (k) {
    case 2: return record.key() == "PERI";
    case 3:
    case 4: return blank_key(record) && record.value1_ok && record.value2_ok;
    case 5: return record.key() == "ENDA";
    default: return true;
  }
}

InputStatus read_records(LineReader& reader, Units& units, int echo_unit, const MessageUnits& to,
                         StageNames& names) {
  ModelRecord record;
  for (int k = 1; k <= 5; ++k) {
    if (!next_model_record(reader, record, units, echo_unit)) {
      report_no_endata(units, to);
      return InputStatus::bad_file;
    }
    if (!record_fits(record, k)) {
      report_bad_time_file(units, to);
      return InputStatus::bad_file;
    }
    if (k == 3) {
      names.stage1_column = record.name1();
      names.stage1_row = record.name2();
      names.stage1_period = record.name3();
    } else if (k == 4) {
      names.stage2_column = record.name1();
      names.stage2_row = record.name2();
      names.stage2_period = record.name3();
    }
  }
  return InputStatus::ok;
}

}  // namespace

InputStatus read_time_file(Units& units, const std::string& file_name, int unit, int echo_unit,
                           const MessageUnits& to, StageNames& names) {
  if (!open_unit(units, unit, file_name, OpenStatus::old_file)) {
    report_no_file(units, to, file_name);
    return InputStatus::missing_file;
  }
  LineReader reader{unit_stream(units, unit)};
  const InputStatus status = read_records(reader, units, echo_unit, to, names);
  close_unit(units, unit);
  return status;
}

}  // namespace tarvo::input
