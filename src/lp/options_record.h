#pragma once
// One record of the options file (or one phrase given at run time) taken apart: the columns that
// count, the comment cut off, the words, and the number the phrase carries.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::lp {

inline constexpr std::size_t kRecordColumns = 72;
inline constexpr std::size_t kWordLength = 16;

// The columns of a line that are read; the rest of a longer line is ignored.
std::string_view record_columns(std::string_view line);
// The record without trailing blanks (as echoed).
std::string_view trim_record(std::string_view record);
// Everything before the first "*".
std::string_view strip_comment(std::string_view record);
// Blank-separated words (a tab counts as a blank), each upper-cased and cut to 16 characters.
std::vector<std::string> split_words(std::string_view text);
// The words of a record that count: its columns, without the comment.
std::vector<std::string> record_words(std::string_view line);

// A word that reads as a number under "(bn, e16.0)": optional sign, digits with at most one
// decimal point, optional exponent E or D with optional sign and digits.
bool read_number(std::string_view word, double& value);
// The integer a real value carries: truncated toward zero below 1.0e8 in magnitude, else 0.
int integer_value(double value);

struct PhraseValue {
  double real = 0.0;
  int integer = 0;
};
// The first word from index `first` on that reads as a number (0.0 and 0 when there is none).
PhraseValue phrase_value(const std::vector<std::string>& words, std::size_t first);

}  // namespace tarvo::lp
