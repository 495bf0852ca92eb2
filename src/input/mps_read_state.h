#pragma once
// The MPS reader's working state, shared by the files that read its sections.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "common/line_reader.h"
#include "input/messages.h"
#include "input/mps_reader.h"
#include "input/name_hash.h"
#include "input/name_lookup.h"

namespace tarvo::input::mps {

// Only the first 61 columns of a line are read.
inline constexpr std::size_t kMpsColumns = 61;

// One line cut by "(a4,2a4,2x,2a4,2x,bn,e12.0,3x,2a4,2x,e12.0)".
struct MpsLine {
  std::string text;  // the first 61 columns, blank-padded
  int number = 0;
  bool end_of_file = false;
  bool comment = false;  // "*" in column 1
  bool card = false;     // column 1 not blank
  std::string_view key() const { return std::string_view(text).substr(0, 4); }
  lp::Name8 name1() const { return lp::make_name(std::string_view(text).substr(4, 8)); }
  lp::Name8 name2() const { return lp::make_name(std::string_view(text).substr(14, 8)); }
  lp::Name8 name3() const { return lp::make_name(std::string_view(text).substr(39, 8)); }
  std::string_view value1_field() const { return std::string_view(text).substr(24, 12); }
  std::string_view value2_field() const { return std::string_view(text).substr(49, 12); }
};

// The options the reader uses, with unset options replaced by their defaults.
struct ReaderSettings {
  int message_limit = 10;
  int list_limit = 0;
  double lower_default = 0.0;
  double upper_default = lp::kInfiniteBound;
  int nonlinear_constraints = 0;
  bool nonlinear_variables = false;
  bool maximize = false;
  lp::Name8 objective;
  lp::Name8 rhs;
  lp::Name8 ranges;
  lp::Name8 bounds;
};

// Kinds of faulty lines; each kind prints only its first `message_limit` messages.
enum LineFault {
  kIllegalRowType,
  kDuplicateRow,
  kUnknownRow,
  kDuplicateEntry,
  kUnknownColumn,
  kIllegalBoundType,
  kBadNumber,
  kBackToFront,
  kLineFaultCount
};

struct ReadState {
  lp::ProblemSlot& slot;
  Units& units;
  int print_unit = 0;
  int summary_unit = 0;
  int error_unit = 0;  // the run's error file: faults are echoed there
  ReaderSettings settings{};
  LineReader reader{};
  MpsLine line{};
  MpsReadResult result{};

  std::array<int, kLineFaultCount> faults{};
  bool fatal = false;    // no rows, objective out of place
  bool storage = false;  // a capacity was exceeded

  // Rows as read (counted beyond the capacity, stored up to it).
  int rows = 0;
  int objective_row = 0;
  std::vector<lp::Name8> row_names{};  // [1..mmax]
  std::vector<int> row_type{};
  std::vector<double> row_lower{};
  std::vector<double> row_upper{};
  std::vector<double> row_rhs{};  // what the RHS section gave; ranges count from it
  NameHash hash{};

  // Columns as read.
  int columns = 0;
  int elements = 0;
  bool integer_section = false;
  std::vector<int> row_mark{};  // column that last had an entry in row i
  NameCursor column_cursor{};
};

// Line handling (mps_line.cpp).
ReaderSettings reader_settings(const lp::Options& options);
bool read_line(ReadState& state);       // next line into state.line, listed; false at end
bool next_data_line(ReadState& state);  // skips comments; false at a card or the end
void skip_to_card(ReadState& state);
bool card_is(const ReadState& state, std::string_view key);
double as_bound(double value);          // magnitudes at the infinite bound become exactly it
bool is_blank(const lp::Name8& name);
bool read_value(ReadState& state, std::string_view field, double& value);

// Settles the set a section uses: the options' name, else the first data line's. True when the
// current line belongs to it.
struct SetChoice {
  bool chosen = false;
  lp::Name8 name;
};
bool in_chosen_set(const ReadState& state, SetChoice& set, const lp::Name8& wanted);

// Messages (mps_messages.cpp). Section-level ones go to the print and summary files, the listing
// to the print file; faults, which fail the read, also to the error file.
void section_message(ReadState& state, std::string_view text);
void line_message(ReadState& state, std::string_view text);
void fault_message(ReadState& state, std::string_view text);
void section_fault(ReadState& state, std::string_view text);
bool count_fault(ReadState& state, LineFault fault);  // counts; true while messages may print
void report_unknown_row(ReadState& state, const lp::Name8& name);
void report_unknown_name(ReadState& state, LineFault fault, std::string_view what, const lp::Name8& name);
// " XXXX  Too many ...  Limit was <limit>  Actual number is <actual>"; counted.
void report_over_capacity(ReadState& state, std::string_view what, int limit, int actual);

// Sections.
void read_name_card(ReadState& state);
void read_rows_section(ReadState& state);
void check_rows(ReadState& state);
void read_columns_section(ReadState& state);
void check_columns(ReadState& state);
void read_rhs_section(ReadState& state);
void read_ranges_section(ReadState& state);
void read_bounds_section(ReadState& state);
void check_endata(ReadState& state);

}  // namespace tarvo::input::mps
