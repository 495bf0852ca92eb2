#include <string>
#include <string_view>
#include <vector>

#include "common/line_reader.h"
#include "common/record_format.h"
#include "lp/options.h"
#include "lp/options_phrase.h"
#include "lp/options_record.h"

namespace tarvo::lp {

namespace {

constexpr int kLowestUnit = 0;
constexpr int kHighestUnit = 99;
constexpr int kTitleRuleWidth = 30;
constexpr std::string_view kTitle = " TARVO simplex optimizer options";

struct FileUnits {
  int specs;
  int print;
  int summary;
};

bool next_record(LineReader& reader, std::string& line) {
  return reader.file != nullptr && next_line(reader, line);
}

std::string unit_field(std::string_view edit, int unit) {
  const RecordItem item = static_cast<long long>(unit);
  return format_record(edit, {&item, 1}).front();
}

void write_both(Units& units, const FileUnits& u, std::string_view text) {
  write_line(units, u.print, text);
  write_line(units, u.summary, text);
}

void echo_both(Units& units, const FileUnits& u, std::string_view record) {
  echo_record(units, u.print, record, kPrintEchoIndent);
  echo_record(units, u.summary, record, kSummaryEchoIndent);
}

// Written once, for the first record before BEGIN that is none of BEGIN, SKIP, ENDRUN.
void write_no_begin_found(Units& units, const FileUnits& u, std::string_view record) {
  write_both(units, u, "");
  write_both(units, u, "");
  write_both(units, u,
             " XXX  Error while looking for a SPECS file on unit" + unit_field("(i7)", u.specs));
  write_both(units, u, " XXX  The file should start with Begin, Skip or Endrun");
  write_both(units, u, " XXX  but the first record found was the following:");
  write_both(units, u, "");
  write_both(units, u, " ---->" + std::string(trim_record(record)));
  write_both(units, u, "");
  write_both(units, u, " XXX  Continuing to look for SPECS file...");
}

void write_end_of_file(Units& units, const FileUnits& u, std::string_view while_doing) {
  write_both(units, u, "");
  write_both(units, u, "");
  write_both(units, u,
             std::string(while_doing) + " a SPECS file on unit" + unit_field("(i6)", u.specs));
}

// Reads up to the BEGIN record. Returns kOptionsRead when found, or the status that ends the read.
int find_begin(LineReader& reader, Units& units, const FileUnits& u, std::string& record) {
  bool skipping = false;
  bool complained = false;
  while (next_record(reader, record)) {
    record = std::string(record_columns(record));
    const std::vector<std::string> words = record_words(record);
    if (words.empty()) continue;
    const std::string& first = words.front();
    if (first == "BEGIN") return kOptionsRead;
    // Once skipping, only BEGIN counts: an ENDRUN among skipped records is skipped with them.
    if (skipping) continue;
    if (first == "ENDRUN") {
      echo_both(units, u, record);
      return kOptionsEndRun;
    }
    if (first != "SKIP" && !complained) {
      write_no_begin_found(units, u, record);
      complained = true;
    }
    skipping = true;
  }
  write_end_of_file(units, u, " XXX  End-of-file encountered while looking for");
  return kOptionsEndOfFileBeforeBegin;
}

void begin_set(Options& options, Units& units, const FileUnits& u, std::string_view record) {
  write_line(units, u.print, "");  // a new page of the print file
  const std::string rule = " " + std::string(kTitleRuleWidth, '=');
  write_both(units, u, rule);
  write_both(units, u, kTitle);
  write_both(units, u, rule);
  echo_both(units, u, record);
  apply_defaults(options, units, 1);
}

// Hands each record to the phrase handler up to END; returns the number of phrase errors.
int read_set(Options& options, LineReader& reader, Units& units, const FileUnits& u) {
  int errors = 0;
  std::string record;
  while (next_record(reader, record)) {
    const PhraseOutcome outcome = handle_phrase(options, units, record, u.print, u.summary);
    errors += outcome.errors;
    if (outcome.end_of_set) return errors;
  }
  write_end_of_file(units, u, " XXX  End-of-file encountered while processing");
  return kOptionsEndOfFileInSet;
}

}  // namespace

int read_specs(Options& options, Units& units, int specs_unit, int print_unit, int summary_unit,
               int nwcore) {
  if (specs_unit < kLowestUnit || specs_unit > kHighestUnit) return kOptionsBadUnit;
  options.ival[kSpecsFile] = specs_unit;
  options.ival[kPrintFile] = print_unit;
  options.ival[kSummaryFile] = summary_unit;
  options.ival[kWorkspaceUser] = 0;
  options.ival[kWorkspaceTotal] = nwcore;
  if (specs_unit == 0) {
    apply_defaults(options, units, 1);
    return kOptionsRead;
  }
  const FileUnits u{specs_unit, print_unit, summary_unit};
  LineReader reader{.file = unit_stream(units, specs_unit), .line_number = 0,
                    .max_length = kRecordColumns};
  std::string record;
  const int status = find_begin(reader, units, u, record);
  if (status != kOptionsRead) return status;
  begin_set(options, units, u, record);
  return read_set(options, reader, units, u);
}

}  // namespace tarvo::lp
