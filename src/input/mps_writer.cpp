#include "input/mps_writer.h"

#include <cstdio>
#include <string>

#include "input/messages.h"
#include "input/name_lookup.h"

namespace tarvo::input {

namespace {

// The writer's own infinity, whatever the optimizer's infinite bound.
constexpr double kWriterInfinity = 1e19;

struct WriteTarget {
  Units& units;
  int unit;
  bool named;  // false: the slot has no names and default names are printed
};

lp::Name8 variable_name(const lp::ProblemSlot& slot, const WriteTarget& to, int j) {
  return to.named ? slot.names[j] : default_name(slot, j);
}

void put(const WriteTarget& to, std::string_view edit_list, std::initializer_list<RecordItem> items) {
  write_line(to.units, to.unit, laid_out(edit_list, items));
}

void write_rows(const lp::ProblemSlot& slot, const WriteTarget& to) {
  write_line(to.units, to.unit, "ROWS");
  for (int i = 1; i <= slot.m; ++i) {
    const char letter[2] = {row_letter(lp::row_lower(slot, i), lp::row_upper(slot, i)), '\0'};
    const lp::Name8 name = variable_name(slot, to, slot.n + i);
    put(to, "(1x, a1, 2x, 2a4)",
        {std::string_view(letter, 1), lp::name_half(name, 0), lp::name_half(name, 1)});
  }
}

void write_columns(const lp::ProblemSlot& slot, const WriteTarget& to) {
  write_line(to.units, to.unit, "COLUMNS");
  for (int j = 1; j <= slot.n; ++j) {
    const lp::Name8 column = variable_name(slot, to, j);
    for (int k = slot.ka[j]; k < slot.ka[j + 1]; ++k) {
      const lp::Name8 row = variable_name(slot, to, slot.n + slot.ha[k]);
      const double v = slot.a[k];
      const bool exact = v == 0.0 || v == 1.0 || v == -1.0;
      put(to, exact ? "(4x, 2a4, 2x, 2a4, f8.0     )" : "(4x, 2a4, 2x, 2a4, 1p, e14.5)",
          {lp::name_half(column, 0), lp::name_half(column, 1), lp::name_half(row, 0),
           lp::name_half(row, 1), v});
    }
  }
}

// One RHS or RANGES line: set name, row name, value.
void write_set_entry(const WriteTarget& to, const lp::Name8& set, const lp::Name8& row, double v) {
  const bool exact = v == 1.0 || v == -1.0;
  put(to, exact ? "(4x,  a8, 2x, 2a4, f8.0     )" : "(4x,  a8, 2x, 2a4, 1p, e14.5)",
      {lp::name_view(set), lp::name_half(row, 0), lp::name_half(row, 1), v});
}

void write_rhs(const lp::ProblemSlot& slot, const MpsNames& names, const WriteTarget& to) {
  write_line(to.units, to.unit, "RHS");
  for (int i = 1; i <= slot.m; ++i) {
    const double rhs = row_rhs(lp::row_lower(slot, i), lp::row_upper(slot, i));
    if (rhs != 0.0) write_set_entry(to, names.rhs, variable_name(slot, to, slot.n + i), rhs);
  }
}

void write_ranges(const lp::ProblemSlot& slot, const MpsNames& names, const WriteTarget& to) {
  write_line(to.units, to.unit, "RANGES");
  for (int i = 1; i <= slot.m; ++i) {
    const double lower = lp::row_lower(slot, i);
    const double upper = lp::row_upper(slot, i);
    if (row_ranged(lower, upper)) {
      write_set_entry(to, names.ranges, variable_name(slot, to, slot.n + i), upper - lower);
    }
  }
}

void write_bound(const WriteTarget& to, std::string_view key, const lp::Name8& set,
                 const lp::Name8& column, double v) {
  const bool exact = v == 0.0 || v == 1.0 || v == -1.0;
  put(to, exact ? "(a4,  a8, 2x, 2a4, f8.0     )" : "(a4,  a8, 2x, 2a4, 1p, e14.5)",
      {key, lp::name_view(set), lp::name_half(column, 0), lp::name_half(column, 1), v});
}

void write_free_bound(const WriteTarget& to, std::string_view key, const lp::Name8& set,
                      const lp::Name8& column) {
  put(to, "(a4,  a8, 2x, 2a4)",
      {key, lp::name_view(set), lp::name_half(column, 0), lp::name_half(column, 1)});
}

void write_column_bounds(const lp::ProblemSlot& slot, const MpsNames& names, const WriteTarget& to,
                         int j) {
  const lp::Name8 column = variable_name(slot, to, j);
  std::array<BoundLine, 2> lines;
  const int count = bound_lines(slot.bl[j], slot.bu[j], lines);
  for (int k = 0; k < count; ++k) {
    if (lines[k].has_value) {
      write_bound(to, lines[k].key, names.bounds, column, lines[k].value);
    } else {
      write_free_bound(to, lines[k].key, names.bounds, column);
    }
  }
}

// Significant digits a double needs at most.
constexpr int kMostDigits = 17;
constexpr std::size_t kValueField = 12;

// "1.5E-07" -> "1.5E-7", "1E+20" -> "1E20", "0.25" -> ".25".
std::string compact_number(std::string text) {
  const std::size_t e = text.find('E');
  if (e != std::string::npos) {
    std::size_t digits = e + 1;
    if (text[digits] == '+') text.erase(digits, 1);
    if (text[digits] == '-') ++digits;
    while (digits + 1 < text.size() && text[digits] == '0') text.erase(digits, 1);
  }
  const std::size_t zero = text[0] == '-' ? 1 : 0;
  if (text.size() > zero + 1 && text[zero] == '0' && text[zero + 1] == '.') text.erase(zero, 1);
  return text;
}

void write_dump_header(const lp::ProblemSlot& slot, int slot_number, Units& units, int unit) {
  write_line(units, unit, "* dump of problem " + std::to_string(slot_number));
  write_line(units, unit, "* ");
  write_line(units, unit, "* ne : " + std::to_string(slot.ne));
  write_line(units, unit, "* n  : " + std::to_string(slot.n));
  write_line(units, unit, "* m  : " + std::to_string(slot.m));
  write_line(units, unit, "* nb : " + std::to_string(slot.nb));
  write_line(units, unit, "* ");
}

}  // namespace

char row_letter(double lower, double upper) {
  if (lower == upper) return 'E';
  if (lower <= -kWriterInfinity) return upper >= kWriterInfinity ? 'N' : 'L';
  return 'G';
}

double row_rhs(double lower, double upper) {
  if (lower > -kWriterInfinity) return lower;
  if (upper < kWriterInfinity) return upper;
  return 0.0;
}

bool row_ranged(double lower, double upper) {
  return lower > -kWriterInfinity && upper < kWriterInfinity && lower != upper;
}

int bound_lines(double lower, double upper, std::array<BoundLine, 2>& lines) {
  int count = 0;
  bool upper_open = true;  // FX and FR settle the upper bound themselves
  if (lower == upper) {
    lines[count++] = {" FX ", lower};
    upper_open = false;
  } else if (lower <= -kWriterInfinity) {
    upper_open = upper < kWriterInfinity;
    lines[count++] = {upper_open ? " MI " : " FR ", 0.0, false};
  } else if (lower != 0.0) {
    lines[count++] = {" LO ", lower};
  }
  if (upper_open && upper < kWriterInfinity) lines[count++] = {" UP ", upper};
  return count;
}

std::string mps_value_field(double value) {
  for (int digits = kMostDigits; digits >= 1; --digits) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*G", digits, value);
    std::string compact = compact_number(text);
    if (compact.size() <= kValueField) return compact;
  }
  return "0";
}

void write_mps(const lp::ProblemSlot& slot, const MpsNames& names, Units& units, int unit) {
  const WriteTarget to{units, unit, slot_has_names(slot)};
  put(to, "(a, 10x, a)", {"NAME", lp::name_view(slot.problem_name)});
  write_rows(slot, to);
  write_columns(slot, to);
  write_rhs(slot, names, to);
  write_ranges(slot, names, to);
  write_line(units, unit, "BOUNDS");
  for (int j = 1; j <= slot.n; ++j) write_column_bounds(slot, names, to, j);
  write_line(units, unit, "ENDATA");
}

InputStatus dump_problem(const lp::ProblemSlot& slot, int slot_number, const MpsNames& names,
                         Units& units, const std::string& file_name, int dump_unit) {
  if (!open_unit(units, dump_unit, file_name, OpenStatus::unknown)) return InputStatus::missing_file;
  write_dump_header(slot, slot_number, units, dump_unit);
  write_mps(slot, names, units, dump_unit);
  close_unit(units, dump_unit);
  return InputStatus::ok;
}

}  // namespace tarvo::input
