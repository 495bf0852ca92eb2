#pragma once
// Laid-out records described by edit lists such as "(1x,a32,1x,f15.2)":
//   nx      n blanks                      aw     text in w columns (left-justified, cut to w);
//                                                plain a: the text as it is
//   iw      integer right-justified       iw.m   at least m digits, zero-filled
//   fw.d    fixed point, d decimals       ew.d   scientific, mantissa below 1 (0.1234E+05);
//                                                ew.dEe: e exponent digits
//   kp      scale factor (1pe14.5: one digit before the point; with f it multiplies by 10^k);
//           it stays in force to the end of the record, 0p resets it
//   lw      T or F for an integer item    :      stop here when no item is left
//   'text'  literal text ("text" too)     /      a new line (n/ n new lines)
//   bn      blanks in numeric input fields are ignored
//   n(...)  repetition; nX a repeated descriptor (2a4, 3(1x,e20.4))
// Blanks inside a list and the case of its letters do not matter.
//
// Output rules. Reals are rounded correctly from their binary value (ties to even). A value too
// wide for its field fills it with asterisks; an ew.d exponent of three digits drops its E
// ("0.123+100"); the 0 before the point of f and e is dropped only when the field is too narrow for
// it. A value that rounds to zero, negative zero included, has no minus sign. Infinities print as
// "Infinity" or "Inf", NaN as "NaN". An item of the wrong kind for its descriptor (a real for i,
// text for f) fills the field with asterisks, except that an integer goes into f and e as a real.
// When the items run out, the record ends at the next data descriptor (or colon); literals and
// blanks before it are written. When items are left at the end of the list, a new line starts
// from the last top-level group (or the start of the list) until all are written.
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "common/units.h"

namespace tarvo {

using RecordItem = std::variant<long long, double, std::string_view>;

// Lays out the items; each "/" starts a new line, so the result holds one or more lines. A malformed
// list (a programming error) gives the single line "*** bad edit list <list>".
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
