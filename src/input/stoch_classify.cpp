// Classifying a stochastic entry: which datum of the subproblem (or of B) it makes random.
#include <algorithm>

#include "common/free_format.h"
#include "input/name_lookup.h"
#include "input/stoch_file.h"

namespace tarvo::input {

namespace {

constexpr Classification kError{0, 0, kEntryError};
constexpr Classification kSkipped{0, 0, kEntrySkipped};

void say(Units& units, const MessageUnits& to, const std::string& line) {
  write_run_message(units, to, line);
}

Classification col_not_found(Units& units, const MessageUnits& to, const lp::Name8& column) {
  say(units, to, free_line("ERROR in .sto: col not found  ", lp::name_view(column)));
  return kError;
}

Classification bound_in_master(Units& units, const MessageUnits& to, const lp::Name8& column) {
  say(units, to, free_line("ERROR in .sto: stochastic bound in master, col  ", lp::name_view(column)));
  return kError;
}

Classification invalid_bound_type(Units& units, const MessageUnits& to, std::string_view type,
                                  const lp::Name8& column) {
  say(units, to, free_line("ERROR in .sto: invalid bound type (", type, ") for col  ",
                           lp::name_view(column)));
  return kError;
}

// "<what>col/row = <column> / <row>"
Classification master_entry(Units& units, const MessageUnits& to, std::string_view what,
                            const lp::Name8& column, const lp::Name8& row) {
  say(units, to, free_line(what, "col/row = ", lp::name_view(column), " / ", lp::name_view(row)));
  return kError;
}

Classification value_in_master_row(Units& units, const MessageUnits& to, const lp::Name8& column,
                                   const lp::Name8& row) {
  return master_entry(units, to, "ERROR in .sto: stochastic value in master row. ", column, row);
}

Classification rhs_for_objective(Units& units, const MessageUnits& to, const lp::Name8& row) {
  say(units, to, free_line("ERROR in .sto: stochastic RHS for objective, row  ", lp::name_view(row)));
  return kError;
}

Classification objective_in_master(Units& units, const MessageUnits& to, const lp::Name8& column,
                                   const lp::Name8& row) {
  return master_entry(units, to, "ERROR in .sto: stochastic obj in master col. ", column, row);
}

// A random element that is not stored: a zero is nothing to change, anything else an error.
Classification no_nonzero(Units& units, const MessageUnits& to, const char* matrix,
                          const lp::Name8& column, const lp::Name8& row, double value) {
  if (value == 0.0) return kSkipped;
  say(units, to, free_line("ERROR in .sto: no nonzero found (in ", matrix, " matrix) for col/row  ( ",
                           lp::name_view(column), " , ", lp::name_view(row), " )"));
  return kError;
}

Classification invalid_combination(Units& units, const MessageUnits& to, const lp::Name8& column,
                                   const lp::Name8& row) {
  say(units, to, free_line("ERROR in .sto: invalid col/row combination  ", "( ", lp::name_view(column),
                           " , ", lp::name_view(row), " )"));
  return kError;
}

int bound_kind(std::string_view type) {
  if (type == "UP" || type == "up") return -11;
  if (type == "LO" || type == "lo") return -12;
  if (type == "FX" || type == "fx") return -13;
  return 0;
}

Classification classify_bound(const StochContext& c, std::string_view type, const lp::Name8& column,
                              Units& units, const MessageUnits& to) {
  int where = 0;
  const int j = staged_lookup(c.master, c.sub, NameKind::column, column, where);
  if (j == kNotFound) return col_not_found(units, to, column);
  if (where == lp::kMasterSlot) return bound_in_master(units, to, column);
  const int kind = bound_kind(type);
  if (kind == 0) return invalid_bound_type(units, to, type, column);
  return {kind, j, kEntryStored};
}

// Position of B's element of master column j in row i, or kNotFound.
int b_entry(const Decomposition& dec, int j, int i) {
  if (j < 1 || j > dec.n1) return kNotFound;
  const int end = std::min(dec.kb[j + 1], dec.b_nonzeros + 1);
  for (int p = dec.kb[j]; p < end; ++p) {
    if (dec.hb[p] == i) return p;
  }
  return kNotFound;
}

lp::Name8 objective_name(const StochContext& c) { return c.master.names[c.master.n + 1]; }

}  // namespace

Classification classify_entry(const StochContext& c, std::string_view bound_type,
                              const lp::Name8& name1, const lp::Name8& name2, double value,
                              Units& units, const MessageUnits& to) {
  if (bound_type != "  ") return classify_bound(c, bound_type, name2, units, to);

  const bool objective = name2 == objective_name(c);
  int row = 1;
  if (!objective) {
    int where = 0;
    row = staged_lookup(c.master, c.sub, NameKind::row, name2, where);
    if (where != lp::kSubproblemSlot) return value_in_master_row(units, to, name1, name2);
  }
  if (name1 == c.rhs_set) {
    if (objective) return rhs_for_objective(units, to, name2);
    return {-2, row, kEntryStored};
  }

  int where = 0;
  const int j = staged_lookup(c.master, c.sub, NameKind::column, name1, where);
  if (j == kNotFound) {
    if (value == 0.0) return kSkipped;
    return col_not_found(units, to, name1);
  }
  if (objective && where == lp::kMasterSlot) return objective_in_master(units, to, name1, name2);
  if (objective) {
    const int p = matrix_entry(c.sub, j, -1);
    if (p == kNotFound) return no_nonzero(units, to, "D", name1, name2, value);
    return {-1, p, kEntryStored};
  }
  if (where == lp::kMasterSlot) {
    const int p = b_entry(c.dec, j, row);
    if (p == kNotFound) return no_nonzero(units, to, "B", name1, name2, value);
    return {-3, p, kEntryStored};
  }
  if (where == lp::kSubproblemSlot) {
    const int p = matrix_entry(c.sub, j, row);
    if (p == kNotFound) return no_nonzero(units, to, "D", name1, name2, value);
    return {row, p, kEntryStored};
  }
  return invalid_combination(units, to, name1, name2);
}

}  // namespace tarvo::input
