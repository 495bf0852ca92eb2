#include "lp/options_record.h"

#include <cmath>
#include <cstdlib>

namespace tarvo::lp {

namespace {

// A value this large or larger carries no integer (an int32 option could not hold it faithfully).
constexpr double kIntegerLimit = 1.0e8;

bool is_blank(char c) { return c == ' ' || c == '\t'; }

char upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Skips the digits at `pos`; returns how many there were.
std::size_t skip_digits(std::string_view word, std::size_t& pos) {
  const std::size_t start = pos;
  while (pos < word.size() && is_digit(word[pos])) ++pos;
  return pos - start;
}

bool has_number_shape(std::string_view word) {
  std::size_t pos = 0;
  if (pos < word.size() && (word[pos] == '+' || word[pos] == '-')) ++pos;
  std::size_t digits = skip_digits(word, pos);
  if (pos < word.size() && word[pos] == '.') {
    ++pos;
    digits += skip_digits(word, pos);
  }
  if (digits == 0) return false;
  if (pos < word.size() && (word[pos] == 'E' || word[pos] == 'D')) {
    ++pos;
    if (pos < word.size() && (word[pos] == '+' || word[pos] == '-')) ++pos;
    if (skip_digits(word, pos) == 0) return false;
  }
  return pos == word.size();
}

}  // namespace

std::string_view record_columns(std::string_view line) { return line.substr(0, kRecordColumns); }

std::string_view trim_record(std::string_view record) {
  std::size_t end = record.size();
  while (end > 0 && is_blank(record[end - 1])) --end;
  return record.substr(0, end);
}

std::string_view strip_comment(std::string_view record) {
  return record.substr(0, record.find('*'));
}

std::vector<std::string> split_words(std::string_view text) {
  std::vector<std::string> words;
  std::size_t pos = 0;
  while (pos < text.size()) {
    while (pos < text.size() && is_blank(text[pos])) ++pos;
    if (pos == text.size()) break;
    std::string word;
    for (; pos < text.size() && !is_blank(text[pos]); ++pos) {
      if (word.size() < kWordLength) word.push_back(upper(text[pos]));
    }
    words.push_back(std::move(word));
  }
  return words;
}

std::vector<std::string> record_words(std::string_view line) {
  return split_words(strip_comment(record_columns(line)));
}

bool read_number(std::string_view word, double& value) {
  if (!has_number_shape(word)) return false;
  std::string text(word);
  for (char& c : text) {
    if (c == 'D') c = 'E';
  }
  const double parsed = std::strtod(text.c_str(), nullptr);
  if (!std::isfinite(parsed)) return false;
  value = parsed;
  return true;
}

int integer_value(double value) {
  return std::fabs(value) < kIntegerLimit ? static_cast<int>(std::trunc(value)) : 0;
}

PhraseValue phrase_value(const std::vector<std::string>& words, std::size_t first) {
  PhraseValue result;
  for (std::size_t i = first; i < words.size(); ++i) {
    if (read_number(words[i], result.real)) {
      result.integer = integer_value(result.real);
      break;
    }
  }
  return result;
}

}  // namespace tarvo::lp
