// Lines of an MPS file: reading, listing and cutting into fields.
#include <algorithm>

#include "common/record_format.h"
#include "input/mps_read_state.h"

namespace tarvo::input::mps {

namespace {

int int_option(const lp::Options& options, lp::IntOption option, int unset_value) {
  const int value = options.ival[option];
  return value == lp::kUnsetInt ? unset_value : value;
}

double real_option(const lp::Options& options, lp::RealOption option, double unset_value) {
  const double value = options.rval[option];
  return value == lp::kUnsetReal ? unset_value : value;
}

// The listing echoes the first five lines, every comment and card, and data lines within the
// list limit.
void list_line(ReadState& state) {
  const MpsLine& line = state.line;
  if (!unit_is_open(state.units, state.print_unit)) return;
  if (!(line.comment || line.card || line.number <= 5 || line.number <= state.settings.list_limit)) {
    return;
  }
  const std::size_t last = line.text.find_last_not_of(' ');
  const std::string_view shown =
      last == std::string::npos ? std::string_view() : std::string_view(line.text).substr(0, last + 1);
  write_if_open(state.units, state.print_unit, laid_out("(i7,4x,a)", {line.number, shown}));
}

void report_bad_number(ReadState& state) {
  if (!count_fault(state, kBadNumber)) return;
  fault_message(state, laid_out("(a, i7)", {" XXXX  Field is not a number -- entry ignored in line",
                                           state.line.number}));
}

}  // namespace

ReaderSettings reader_settings(const lp::Options& options) {
  ReaderSettings settings;
  settings.message_limit = int_option(options, lp::kErrorMessageLimit, 10);
  settings.list_limit = int_option(options, lp::kListLimit, 0);
  settings.lower_default = as_bound(real_option(options, lp::kLowerBoundDefault, 0.0));
  settings.upper_default = as_bound(real_option(options, lp::kUpperBoundDefault, lp::kInfiniteBound));
  if (settings.upper_default < settings.lower_default) {
    std::swap(settings.lower_default, settings.upper_default);
  }
  settings.nonlinear_constraints = std::max(int_option(options, lp::kNonlinearConstraints, 0), 0);
  // The counts the options file gives, not those of the problem last solved.
  settings.nonlinear_variables = int_option(options, lp::kNonlinearObjectiveVars, 0) > 0 ||
                                 int_option(options, lp::kNonlinearJacobianVars, 0) > 0;
  settings.maximize = int_option(options, lp::kObjectiveSense, 1) == -1;
  settings.objective = options.objective_name;
  settings.rhs = options.rhs_name;
  settings.ranges = options.ranges_name;
  settings.bounds = options.bounds_name;
  return settings;
}

bool read_line(ReadState& state) {
  MpsLine& line = state.line;
  std::string raw;
  if (!next_line(state.reader, raw)) {
    line.text.assign(kMpsColumns, ' ');
    line.end_of_file = true;
    line.comment = false;
    line.card = false;
    return false;
  }
  line.number = state.reader.line_number;
  line.text.assign(raw, 0, std::min(raw.size(), kMpsColumns));
  line.text.resize(kMpsColumns, ' ');
  line.comment = line.text[0] == '*';
  line.card = line.text[0] != ' ';
  list_line(state);
  return true;
}

bool next_data_line(ReadState& state) {
  while (read_line(state)) {
    if (state.line.comment) continue;
    return !state.line.card;
  }
  return false;
}

void skip_to_card(ReadState& state) {
  while (next_data_line(state)) {
  }
}

bool card_is(const ReadState& state, std::string_view key) {
  return state.line.card && !state.line.comment && state.line.key() == key;
}

double as_bound(double value) {
  if (value >= lp::kInfiniteBound) return lp::kInfiniteBound;
  if (value <= -lp::kInfiniteBound) return -lp::kInfiniteBound;
  return value;
}

bool is_blank(const lp::Name8& name) { return name == lp::Name8{}; }

bool in_chosen_set(const ReadState& state, SetChoice& set, const lp::Name8& wanted) {
  if (!set.chosen) {
    set.chosen = true;
    set.name = is_blank(wanted) ? state.line.name1() : wanted;
  }
  return state.line.name1() == set.name;
}

bool read_value(ReadState& state, std::string_view field, double& value) {
  if (read_real_field(field, value)) return true;
  report_bad_number(state);
  return false;
}

}  // namespace tarvo::input::mps
