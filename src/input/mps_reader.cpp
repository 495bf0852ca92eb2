// Reading an MPS file into a problem slot: the order of the sections, the rows' final place in
// the slot, and the closing report.
#include "input/mps_reader.h"

#include "input/mps_read_state.h"

namespace tarvo::input {

namespace mps {

namespace {

void prepare(ReadState& state) {
  lp::ProblemSlot& slot = state.slot;
  slot.m = slot.n = slot.nb = slot.ne = 0;
  slot.iobj = 1;
  slot.objadd = 0.0;
  slot.loaded = false;
  slot.problem_name = lp::Name8{};
  const std::size_t rows = static_cast<std::size_t>(std::max(slot.mmax, 0)) + 1;
  state.row_names.assign(rows, lp::Name8{});
  state.row_type.assign(rows, lp::kRowN);
  state.row_lower.assign(rows, 0.0);
  state.row_upper.assign(rows, 0.0);
  state.row_rhs.assign(rows, 0.0);
  reset_name_hash(state.hash, slot.mmax);
}

void report_endata_missing(ReadState& state) {
  ++state.result.errors;
  section_fault(state, " XXXX  ENDATA card not found");
}

void report_back_to_front(ReadState& state, int j) {
  if (!count_fault(state, kBackToFront)) return;
  section_fault(state, laid_out("(a, i7, a, 1p, 2e15.6)", {" XXXX  Bounds back to front on column",
                                                           j, " :", state.slot.bl[j],
                                                           state.slot.bu[j]}));
}

void report_error_total(ReadState& state) {
  section_fault(state, laid_out("(a, i8)", {" XXXX  Total no. of errors in MPS file",
                                            state.result.errors}));
}

void report_names_selected(ReadState& state) {
  const MpsReadResult& r = state.result;
  line_message(state, " Names selected");
  line_message(state, " --------------");
  line_message(state, laid_out("(a, 4x, a, 2x, a, i8)", {" Objective", lp::name_view(r.names.objective),
                                                         state.settings.maximize ? "(MAX)" : "(MIN)",
                                                         state.objective_row}));
  line_message(state, laid_out("(a, 4x, a, i8)", {" RHS      ", lp::name_view(r.names.rhs), r.rhs_entries}));
  line_message(state, laid_out("(a, 4x, a, i8)", {" RANGES   ", lp::name_view(r.names.ranges),
                                                  r.ranges_entries}));
  line_message(state, laid_out("(a, 4x, a, i8)", {" BOUNDS   ", lp::name_view(r.names.bounds),
                                                  r.bounds_entries}));
  line_message(state, laid_out("(a, i8)", {" Length of row-name hash table  ", state.hash.length}));
  line_message(state, laid_out("(a, i8)", {" Collisions during table lookup ", state.hash.collisions}));
}

void report_fatal_exit(ReadState& state) {
  section_fault(state, " EXIT -- fatal errors in the MPS file");
}

void report_storage_exit(ReadState& state) {
  section_fault(state, " EXIT -- not enough storage to read the MPS file");
}

// Rows were kept aside while the number of columns was unknown; they follow the columns.
void store_rows(ReadState& state) {
  lp::ProblemSlot& slot = state.slot;
  slot.n = state.columns;
  slot.m = state.rows;
  slot.nb = slot.n + slot.m;
  slot.ne = state.elements;
  slot.iobj = state.objective_row > 0 ? state.objective_row : 1;
  for (int i = 1; i <= slot.m; ++i) {
    slot.names[slot.n + i] = state.row_names[i];
    slot.row_type[i] = state.row_type[i];
    slot.bl[slot.n + i] = -state.row_upper[i];
    slot.bu[slot.n + i] = -state.row_lower[i];
  }
  for (int j = 1; j <= slot.nb; ++j) {
    slot.hs[j] = 0;
    slot.xn[j] = 0.0;
  }
  if (state.objective_row > 0) state.result.names.objective = state.row_names[state.objective_row];
}

int first_marked_integer(const ReadState& state) {
  for (int j = 1; j <= state.slot.n; ++j) {
    if (state.slot.reader_work[j] != 0) return j;
  }
  return 0;
}

void check_bound_order(ReadState& state) {
  for (int j = 1; j <= state.columns; ++j) {
    if (state.slot.bl[j] > state.slot.bu[j]) report_back_to_front(state, j);
  }
}

// A failed read leaves an empty slot, so that nothing of it can be used.
void finish(ReadState& state) {
  MpsReadResult& result = state.result;
  result.hash_length = state.hash.length;
  result.collisions = state.hash.collisions;
  if (state.storage) {
    report_storage_exit(state);
    result.status = InputStatus::storage;
  } else if (state.fatal || result.errors > 0) {
    report_fatal_exit(state);
    result.status = InputStatus::bad_file;
  }
  if (result.status != InputStatus::ok) {
    result.errors = std::max(result.errors, 1);
    state.slot.m = state.slot.n = state.slot.nb = state.slot.ne = 0;
  }
}

bool stopped(const ReadState& state) { return state.fatal || state.storage; }

void read_sections(ReadState& state) {
  read_name_card(state);
  read_rows_section(state);
  check_rows(state);
  if (stopped(state)) return;
  read_columns_section(state);
  check_columns(state);
  if (stopped(state)) return;
  read_rhs_section(state);
  read_ranges_section(state);
  read_bounds_section(state);
  if (!card_is(state, "ENDA")) report_endata_missing(state);
  check_bound_order(state);
  store_rows(state);
  state.result.first_integer_column = first_marked_integer(state);
  if (state.result.errors > 0) report_error_total(state);
  report_names_selected(state);
}

}  // namespace

}  // namespace mps

MpsReadResult read_mps_file(lp::ProblemSlot& slot, const lp::Options& options, Units& units,
                            const std::string& file_name, int mps_unit, int print_unit,
                            int summary_unit, int error_unit) {
  if (!open_unit(units, mps_unit, file_name, OpenStatus::old_file)) {
    MpsReadResult missing;
    missing.status = InputStatus::missing_file;
    missing.errors = 1;
    return missing;
  }
  mps::ReadState state{.slot = slot, .units = units, .print_unit = print_unit,
                       .summary_unit = summary_unit, .error_unit = error_unit,
                       .settings = mps::reader_settings(options)};
  state.reader.file = unit_stream(units, mps_unit);
  mps::prepare(state);
  mps::read_sections(state);
  mps::finish(state);
  close_unit(units, mps_unit);
  return state.result;
}

}  // namespace tarvo::input
