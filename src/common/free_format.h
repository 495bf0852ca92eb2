#pragma once
// Free-form lines, written and read.
//
// Output: a line begins with one blank; text items stand as they are, one after the other; an
// integer is one blank and its digits, a negative one with its minus sign (" 7", " -7"); a real
// is one blank, a sign place (blank or minus) and the value with 9 significant digits in the shorter of plain and exponent form, the plain one when both are as long (".5",
// "3.", "0.", "123456789.", "1.E+05", "1.5E-07"; the exponent has at least two digits). Zero and
// negative zero print "0." with a blank sign place; NaN prints "NaN", infinities "Infinity" after
// their sign place. Every write ends its line.
//
// Input: items separated by blanks (or tabs) or commas, text bare or quoted ('it''s' is it's),
// numbers in integer, fixed or exponent (E or D) form; "r*value" repeats, "r*" alone gives r null
// items, a slash outside quotes ends the record. A comma at the start of a line or right after
// another comma stands for a null item; a comma at the end of a line adds none.
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
// malformed line: an unterminated quote, text glued to a closing quote, a repeat count of 0 or
// above 100000. A read stops at `wanted` items, as a read of a list takes no more than the list
// holds: the rest of the line is neither looked at nor expanded.
bool split_free_items(std::string_view line, std::vector<FreeItem>& items, bool& ended,
                      std::size_t wanted = static_cast<std::size_t>(-1));

// Number items: integer, fixed or exponent form with E, e, D or d, or a bare signed exponent
// ("1.5+3"); false when the text is no number or overflows (values below the smallest denormal
// read as zero). Integers take no point or exponent and must fit in long long.
bool parse_free_real(std::string_view text, double& value);
bool parse_free_integer(std::string_view text, long long& value);

}  // namespace tarvo
