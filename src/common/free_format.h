#pragma once
// Free-form lines, written and read.
//
// Output: a line begins with one blank; text items stand as they are, one after the other; an
// integer is one blank and its digits; a real is one blank, a sign place (blank or minus) and the
// value with 9 significant digits in the shorter of plain and exponent form (".5", "3.", "0.",
// "1.5E-07"). Every write ends its line.
//
// Input: items separated by blanks or commas, text bare or quoted, numbers in integer, fixed or
// exponent (E or D) form; "r*value" repeats, a slash ends the record.
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "common/units.h"

namespace tarvo {

// The text of one real item, without the leading blank and sign place: "3.", ".5", "1.5E-07".
std::string free_real_digits(double value);

void append_free(std::string& line, std::string_view text);
void append_free(std::string& line, long long value);
void append_free(std::string& line, double value);

template <typename T>
void append_free_item(std::string& line, const T& item) {
  if constexpr (std::is_same_v<T, bool>) {
    static_assert(!std::is_same_v<T, bool>, "write flags as integers");
  } else if constexpr (std::is_integral_v<T>) {
    append_free(line, static_cast<long long>(item));
  } else if constexpr (std::is_floating_point_v<T>) {
    append_free(line, static_cast<double>(item));
  } else {
    append_free(line, std::string_view(item));
  }
}

// free_line("rows:    ", 100) == " rows:     100"
template <typename... Items>
std::string free_line(const Items&... items) {
  std::string line = " ";
  (append_free_item(line, items), ...);
  return line;
}

template <typename... Items>
void write_free(Units& units, int unit, const Items&... items) {
  write_line(units, unit, free_line(items...));
}

// One item of a free-form input record.
struct FreeItem {
  std::string text;     // the item without quotes
  bool quoted = false;  // stood in quotes
  bool null = false;    // an empty item between two commas: leaves its target unchanged
};

// Splits one line into items. `ended` is set when a slash ended the record. Returns false for a
// malformed line (an unterminated quote, a bad repeat count).
bool split_free_items(std::string_view line, std::vector<FreeItem>& items, bool& ended);

// Number items: integer, fixed or exponent form with E or D; false when the text is no number.
bool parse_free_real(std::string_view text, double& value);
bool parse_free_integer(std::string_view text, long long& value);

}  // namespace tarvo
