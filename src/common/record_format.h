#pragma once
// Laid-out records described by edit lists such as "(1x,a32,1x,f15.2)":
//   nx      n blanks                      aw     text in w columns (left-justified, cut to w)
//   iw      integer right-justified       iw.m   at least m digits, zero-filled
//   fw.d    fixed point, d decimals       ew.d   scientific, mantissa below 1 (0.1234E+05)
//   kp      scale factor (1pe14.5: one digit before the point; with f it multiplies by 10^k)
//   'text'  literal text                  /      a new line
//   bn      blanks in numeric input fields are ignored
//   n(...)  repetition; nX a repeated descriptor (2a4, 3(1x,e20.4))
// A value too wide for its field fills the field with asterisks.
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "common/units.h"

namespace tarvo {

using RecordItem = std::variant<long long, double, std::string_view>;

// Lays out the items; each "/" starts a new line, so the result holds one or more lines.
std::vector<std::string> format_record(std::string_view edit_list, std::span<const RecordItem> items);

// Writes every line of the record to the unit.
void write_record(Units& units, int unit, std::string_view edit_list,
                  std::initializer_list<RecordItem> items);

// Reads a fixed-column input record: each a/i/f/e descriptor takes its columns of the line (a line
// shorter than the list reads as if padded with blanks; a plain "a" takes the rest of the line;
// fields after a "/" read as blank). Text items are returned as owned strings in `texts` and as
// string_views into them in `items`, so a copy of an InputRecord must not use its items (a move
// keeps them valid). Returns false when a numeric field is not a number or the list is malformed.
struct InputRecord {
  std::vector<std::string> texts;
  std::vector<RecordItem> items;
};
bool read_record(std::string_view edit_list, std::string_view line, InputRecord& record);

// A numeric field read with "e<w>.0" under bn: blanks are ignored, an all-blank field is zero,
// a field without a decimal point is an integer value, the exponent takes E, e, D or d or stands
// as a bare sign and digits ("1.5+3" is 1500). False when the field is not a number or overflows.
bool read_real_field(std::string_view field, double& value);
bool read_integer_field(std::string_view field, long long& value);

}  // namespace tarvo
