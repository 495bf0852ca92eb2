// The COLUMNS section of an MPS file: one column per run of lines with the same column name.
#include "input/mps_read_state.h"

namespace tarvo::input::mps {

namespace {

const lp::Name8 kMarker = lp::make_name("'MARKER'");
const lp::Name8 kIntegerStart = lp::make_name("'INTORG'");
const lp::Name8 kIntegerEnd = lp::make_name("'INTEND'");
const lp::Name8 kIntegerEndShort = lp::make_name("'END'");

struct ColumnInProgress {
  bool open = false;
  lp::Name8 name;
  int valid_entries = 0;
  int last_line = 0;
};

bool column_stored(const ReadState& state) { return state.columns <= state.slot.nmax; }

void report_duplicate_entry(ReadState& state, const lp::Name8& column, const lp::Name8& row,
                            double value) {
  if (!count_fault(state, kDuplicateEntry)) return;
  fault_message(state, laid_out("(a, a, a, a, a)", {" XXXX  Column  ", lp::name_view(column),
                                                   "  has more than one entry", " in row  ",
                                                   lp::name_view(row)}));
  fault_message(state, laid_out("(a, 1p, e15.6, a, i7)", {" XXXX  Coefficient", value,
                                                        "  ignored in line", state.line.number}));
}

void report_empty_column(ReadState& state, const ColumnInProgress& column) {
  fault_message(state, laid_out("(a, a, a, i7)", {" XXXX  No valid row entries in column  ",
                                                 lp::name_view(column.name), "   after line",
                                                 column.last_line}));
}

void report_too_many_columns(ReadState& state) {
  report_over_capacity(state, " XXXX  Too many columns.   The limit was", state.slot.nmax, state.columns);
}

void report_too_many_elements(ReadState& state) {
  report_over_capacity(state, " XXXX  Too many elements.  The limit was", state.slot.nemax, state.elements);
}

void report_column_counts(ReadState& state) {
  line_message(state, laid_out("(a, i8)", {" Columns", state.columns}));
  line_message(state, laid_out("(a, i8)", {" Elements", state.elements}));
}

// Appends an element; past a capacity it is only counted.
void store_element(ReadState& state, int row, double value) {
  ++state.elements;
  if (state.elements > state.slot.nemax || !column_stored(state)) return;
  state.slot.a[state.elements] = value;
  state.slot.ha[state.elements] = row;
}

void start_column(ReadState& state, ColumnInProgress& column, const lp::Name8& name) {
  column = {true, name, 0, state.line.number};
  ++state.columns;
  if (!column_stored(state)) return;
  lp::ProblemSlot& slot = state.slot;
  const int j = state.columns;
  slot.ka[j] = state.elements + 1;
  slot.names[j] = name;
  slot.bl[j] = state.settings.lower_default;
  slot.bu[j] = state.settings.upper_default;
  slot.reader_work[j] = state.integer_section ? 1 : 0;
  if (state.integer_section) ++state.result.integer_columns;
}

// A column left without any valid entry keeps a single zero in row 1.
void finish_column(ReadState& state, ColumnInProgress& column) {
  if (!column.open) return;
  if (column.valid_entries == 0) {
    report_empty_column(state, column);
    store_element(state, 1, 0.0);
  }
  column.open = false;
}

void add_entry(ReadState& state, ColumnInProgress& column, const lp::Name8& row_name,
               double value) {
  const HashProbe probe = hash_lookup(state.hash, state.row_names, row_name, kHashSearch);
  if (!probe.found) {
    report_unknown_row(state, row_name);
    return;
  }
  if (state.row_mark[probe.row] == state.columns) {
    report_duplicate_entry(state, column.name, row_name, value);
    return;
  }
  state.row_mark[probe.row] = state.columns;
  store_element(state, probe.row, value);
  ++column.valid_entries;
}

void read_marker(ReadState& state) {
  const lp::Name8 kind = state.line.name3();
  if (kind == kIntegerStart) state.integer_section = true;
  if (kind == kIntegerEnd || kind == kIntegerEndShort) state.integer_section = false;
}

void read_column_line(ReadState& state, ColumnInProgress& column) {
  const MpsLine& line = state.line;
  if (line.name2() == kMarker) {
    read_marker(state);
    return;
  }
  const lp::Name8 name = line.name1();
  if (!column.open || name != column.name) {
    finish_column(state, column);
    start_column(state, column, name);
  }
  column.last_line = line.number;
  const bool second = !is_blank(line.name3());
  double value1 = 0.0;
  double value2 = 0.0;
  if (!read_value(state, line.value1_field(), value1)) return;
  if (second && !read_value(state, line.value2_field(), value2)) return;
  add_entry(state, column, line.name2(), value1);
  if (second) add_entry(state, column, line.name3(), value2);
}

}  // namespace

void read_columns_section(ReadState& state) {
  if (!card_is(state, "COLU")) return;
  state.row_mark.assign(static_cast<std::size_t>(state.rows) + 1, 0);
  ColumnInProgress column;
  while (next_data_line(state)) read_column_line(state, column);
  finish_column(state, column);
  if (column_stored(state)) state.slot.ka[state.columns + 1] = std::min(state.elements, state.slot.nemax) + 1;
}

void check_columns(ReadState& state) {
  if (state.columns > state.slot.nmax) {
    report_too_many_columns(state);
    state.storage = true;
  }
  if (state.elements > state.slot.nemax) {
    report_too_many_elements(state);
    state.storage = true;
  }
  if (!state.storage) report_column_counts(state);
}

}  // namespace tarvo::input::mps
