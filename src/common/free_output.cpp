// Free-form output: items appended to a line that begins with one blank.
#include <cmath>
#include <cstdlib>

#include "common/decimal.h"
#include "common/free_format.h"

namespace tarvo {

namespace {

constexpr int kFreeDigits = 9;

std::string plain_form(const Decimal& value) {
  const int size = static_cast<int>(value.digits.size());
  if (value.point <= 0) return "." + std::string(-value.point, '0') + value.digits;
  if (value.point >= size) return value.digits + std::string(value.point - size, '0') + ".";
  return value.digits.substr(0, value.point) + "." + value.digits.substr(value.point);
}

std::string exponent_form(const Decimal& value) {
  const int exponent = value.point - 1;
  std::string magnitude = std::to_string(std::abs(exponent));
  if (magnitude.size() < 2) magnitude.insert(0, "0");
  return value.digits.substr(0, 1) + "." + value.digits.substr(1) + "E" +
         (exponent < 0 ? "-" : "+") + magnitude;
}

}  // namespace

std::string free_real_digits(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return "Infinity";
  const Decimal rounded = round_to_digits(exact_decimal(value), kFreeDigits);
  if (rounded.digits.empty()) return "0.";
  std::string plain = plain_form(rounded);
  std::string exponent = exponent_form(rounded);
  return plain.size() <= exponent.size() ? plain : exponent;
}

void append_free(std::string& line, std::string_view text) { line += text; }

// The minus sign of a negative integer takes the place of its blank.
void append_free(std::string& line, long long value) {
  line += ' ';
  line += std::to_string(value);
}

void append_free(std::string& line, double value) {
  // Zero, negative zero included, and NaN keep a blank sign place.
  const bool minus = value < 0.0;
  line += minus ? " -" : "  ";
  line += free_real_digits(value);
}

}  // namespace tarvo
