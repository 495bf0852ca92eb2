#include "input/name_lookup.h"

#include <algorithm>
#include <string>

#include "input/messages.h"

namespace tarvo::input {

namespace {

int scan(const std::vector<lp::Name8>& names, int from, int to, const lp::Name8& name) {
  for (int p = from; p <= to; ++p) {
    if (names[p] == name) return p;
  }
  return 0;
}

void report_name_not_found(Units& units, int print_unit, int line_number, const lp::Name8& name) {
  write_if_open(units, print_unit,
                laid_out("(a, i7, a, 8x, a)", {" XXX  Line", line_number, "  --  name not found:",
                                             lp::name_view(name)}));
}

}  // namespace

int cursor_search(const std::vector<lp::Name8>& names, int first, int last, const lp::Name8& name,
                  NameCursor& cursor) {
  last = std::min(last, static_cast<int>(names.size()) - 1);
  if (first < 1) first = 1;
  if (cursor.cursor < first || cursor.cursor > last) cursor.cursor = first;
  int found = scan(names, cursor.cursor, last, name);
  if (found == 0) found = scan(names, first, cursor.cursor - 1, name);
  if (found != 0) {
    cursor.cursor = found;
    return found;
  }
  cursor.cursor = first;
  ++cursor.errors;
  return 0;
}

int cursor_search_reported(const std::vector<lp::Name8>& names, int first, int last,
                           const lp::Name8& name, NameCursor& cursor, Units& units,
                           int print_unit, int line_number, int message_limit) {
  const int found = cursor_search(names, first, last, name, cursor);
  if (found == 0 && cursor.errors <= message_limit) {
    report_name_not_found(units, print_unit, line_number, name);
  }
  return found;
}

int find_column(const lp::ProblemSlot& slot, const lp::Name8& name, int first) {
  NameCursor cursor;
  const int found = cursor_search(slot.names, first, slot.n, name, cursor);
  return found == 0 ? kNotFound : found;
}

int find_row(const lp::ProblemSlot& slot, const lp::Name8& name, int first) {
  NameCursor cursor;
  const int found = cursor_search(slot.names, slot.n + first, slot.n + slot.m, name, cursor);
  return found == 0 ? kNotFound : found - slot.n;
}

int staged_lookup(const lp::ProblemSlot& master, const lp::ProblemSlot& sub, NameKind kind,
                  const lp::Name8& name, int& where) {
  const auto look = [&](const lp::ProblemSlot& slot) {
    return kind == NameKind::row ? find_row(slot, name) : find_column(slot, name);
  };
  const int requested = where;
  if (requested == 0 || requested == lp::kSubproblemSlot) {
    const int found = look(sub);
    if (found != kNotFound) {
      where = lp::kSubproblemSlot;
      return found;
    }
  }
  if (requested == 0 || requested == lp::kMasterSlot) {
    const int found = look(master);
    if (found != kNotFound) {
      where = lp::kMasterSlot;
      return found;
    }
  }
  if (requested == 0) where = kNotFound;
  return kNotFound;
}

int matrix_entry(const lp::ProblemSlot& slot, int j, int i) {
  if (j < 1 || j > slot.n) return kNotFound;
  const int row = i == -1 ? slot.iobj : i;
  for (int k = slot.ka[j]; k < slot.ka[j + 1]; ++k) {
    if (slot.ha[k] == row) return k;
  }
  return kNotFound;
}

lp::Name8 default_name(const lp::ProblemSlot& slot, int j) {
  const bool column = j <= slot.n;
  std::string text = laid_out("(a1, i7)", {column ? "x" : "r", column ? j : j - slot.n});
  std::replace(text.begin(), text.end(), ' ', '.');
  return lp::make_name(text);
}

bool slot_has_names(const lp::ProblemSlot& slot) {
  const int last = std::min(slot.nb, static_cast<int>(slot.names.size()) - 1);
  for (int j = 1; j <= last; ++j) {
    if (slot.names[j] != lp::Name8{}) return true;
  }
  return false;
}

}  // namespace tarvo::input
