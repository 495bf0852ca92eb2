#include "common/number_text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace tarvo {

namespace {

// Exponents are kept far beyond every double's range but small enough that adding a digit count
// never overflows.
constexpr long long kExponentLimit = 1'000'000'000;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool is_exponent_letter(char c) { return c == 'E' || c == 'e' || c == 'D' || c == 'd'; }

std::size_t read_sign(std::string_view text, std::size_t pos, bool& negative) {
  negative = false;
  if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) {
    negative = text[pos] == '-';
    return pos + 1;
  }
  return pos;
}

std::size_t read_digits(std::string_view text, std::size_t pos, std::string& digits) {
  while (pos < text.size() && is_digit(text[pos])) digits += text[pos++];
  return pos;
}

bool read_exponent(std::string_view text, std::size_t pos, long long& exponent) {
  bool negative = false;
  pos = read_sign(text, pos, negative);
  if (pos == text.size()) return false;
  long long magnitude = 0;
  for (; pos < text.size(); ++pos) {
    if (!is_digit(text[pos])) return false;
    if (magnitude < kExponentLimit) magnitude = magnitude * 10 + (text[pos] - '0');
  }
  exponent = negative ? -magnitude : magnitude;
  return true;
}

}  // namespace

bool parse_number_text(std::string_view text, NumberText& number) {
  number = NumberText{};
  std::size_t pos = read_sign(text, 0, number.negative);
  pos = read_digits(text, pos, number.digits);
  if (pos < text.size() && text[pos] == '.') {
    number.has_point = true;
    const std::size_t integer_digits = number.digits.size();
    pos = read_digits(text, pos + 1, number.digits);
    number.exponent = -static_cast<long long>(number.digits.size() - integer_digits);
  }
  if (number.digits.empty()) return false;
  if (pos == text.size()) return true;
  if (is_exponent_letter(text[pos])) {
    ++pos;
  } else if (text[pos] != '+' && text[pos] != '-') {
    return false;
  }
  long long exponent = 0;
  if (!read_exponent(text, pos, exponent)) return false;
  number.has_exponent = true;
  number.exponent += exponent;
  return true;
}

bool number_to_double(const NumberText& number, double& value) {
  const std::size_t first = number.digits.find_first_not_of('0');
  if (first == std::string::npos) {
    value = number.negative ? -0.0 : 0.0;
    return true;
  }
  long long exponent = number.exponent;
  if (exponent > kExponentLimit) exponent = kExponentLimit;
  if (exponent < -kExponentLimit) exponent = -kExponentLimit;
  const std::string text = number.digits.substr(first) + "e" + std::to_string(exponent);
  double magnitude = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), magnitude);
  if (error == std::errc::result_out_of_range) {
    // The order of magnitude tells overflow from underflow.
    const long long order = static_cast<long long>(number.digits.size() - first) + exponent;
    if (order > 0) return false;
    magnitude = 0.0;
  } else if (error != std::errc() || end != text.data() + text.size() || std::isinf(magnitude)) {
    return false;
  }
  value = number.negative ? -magnitude : magnitude;
  return true;
}

bool parse_integer_text(std::string_view text, long long& value) {
  bool negative = false;
  std::size_t pos = read_sign(text, 0, negative);
  if (pos == text.size()) return false;
  // Accumulate the magnitude as unsigned so that the most negative value fits.
  const unsigned long long limit =
      negative ? static_cast<unsigned long long>(std::numeric_limits<long long>::max()) + 1
               : static_cast<unsigned long long>(std::numeric_limits<long long>::max());
  unsigned long long magnitude = 0;
  for (; pos < text.size(); ++pos) {
    if (!is_digit(text[pos])) return false;
    const unsigned digit = static_cast<unsigned>(text[pos] - '0');
    if (magnitude > (limit - digit) / 10) return false;
    magnitude = magnitude * 10 + digit;
  }
  value = negative ? static_cast<long long>(0 - magnitude) : static_cast<long long>(magnitude);
  return true;
}

}  // namespace tarvo
