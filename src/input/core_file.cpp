#include "input/core_file.h"

#include "common/free_format.h"
#include "input/mps_writer.h"

namespace tarvo::input {

namespace {

constexpr int kCoreUnit = 24;
constexpr int kDumpUnit = 27;
constexpr int kDumpLevel = 6;

void report_read_failure(Units& units, const MessageUnits& to, const std::string& file_name) {
  write_run_message(units, to, free_line("ERROR: reading MPS file ", file_name));
}

void report_not_free(Units& units, const MessageUnits& to, int slot_number) {
  write_run_message(units, to, free_line("ERROR: row 1 of problem ", slot_number, " is not a free row"));
}

bool row_one_is_free(const lp::ProblemSlot& slot) {
  if (slot.m < 1) return false;
  return lp::row_lower(slot, 1) == -lp::kInfiniteBound && lp::row_upper(slot, 1) == lp::kInfiniteBound;
}

}  // namespace

InputStatus check_core_problem(lp::ProblemSlot& slot, int slot_number, const MpsReadResult& read,
                               const std::string& file_name, Units& units,
                               const MessageUnits& to) {
  slot.loaded = false;
  if (read.status != InputStatus::ok || read.errors > 0) {
    report_read_failure(units, to, file_name);
    return read.status == InputStatus::ok ? InputStatus::bad_file : read.status;
  }
  if (!row_one_is_free(slot)) {
    report_not_free(units, to, slot_number);
    return InputStatus::ok;
  }
  slot.loaded = true;
  return InputStatus::ok;
}

InputStatus read_core_problem(lp::ProblemSlot& core, const lp::Options& options, Units& units,
                              int print_unit, int summary_unit, const MessageUnits& to,
                              int iwrite, MpsReadResult& read, const std::string& file_name) {
  read = read_mps_file(core, options, units, file_name, kCoreUnit, print_unit, summary_unit,
                       to.err);
  if (read.status == InputStatus::missing_file) report_no_file(units, to, file_name);
  const InputStatus status = check_core_problem(core, lp::kCoreSlot, read, file_name, units, to);
  if (!failed(status) && iwrite >= kDumpLevel) {
    dump_problem(core, lp::kCoreSlot, read.names, units, "MODEL.P00", kDumpUnit);
  }
  return status;
}

}  // namespace tarvo::input
