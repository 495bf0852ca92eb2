#include "common/record_fields.h"

#include <cmath>

#include "common/decimal.h"

namespace tarvo {

namespace {

// The digit at index i of 0.digits (zero beyond the stored digits).
char digit_at(const Decimal& value, int index) {
  if (index < 0 || index >= static_cast<int>(value.digits.size())) return '0';
  return value.digits[index];
}

std::string digits_between(const Decimal& value, int first, int last) {
  std::string out;
  for (int i = first; i < last; ++i) out += digit_at(value, i);
  return out;
}

std::string right_justified(const std::string& text, int width) {
  if (width == 0) return text;
  if (static_cast<int>(text.size()) > width) return asterisks(width);
  return std::string(width - text.size(), ' ') + text;
}

std::string special_field(double value, int width) {
  if (std::isnan(value)) return right_justified("NaN", width);
  const std::string sign = value < 0 ? "-" : "";
  const std::string full = sign + "Infinity";
  if (width == 0 || static_cast<int>(full.size()) <= width) return right_justified(full, width);
  return right_justified(sign + "Inf", width);
}

// Drops the optional 0 of "0." (after any sign) when the text is wider than the field.
std::string fitted(std::string text, int width, bool optional_zero) {
  const std::size_t zero = text[0] == '-' ? 1 : 0;
  if (width > 0 && static_cast<int>(text.size()) > width && optional_zero) text.erase(zero, 1);
  return right_justified(text, width);
}

std::string exponent_text(int exponent, int exponent_digits) {
  const std::string sign = exponent < 0 ? "-" : "+";
  const std::string magnitude = std::to_string(std::abs(exponent));
  const int size = static_cast<int>(magnitude.size());
  if (exponent_digits > 0) {
    if (size > exponent_digits) return {};
    return "E" + sign + std::string(exponent_digits - size, '0') + magnitude;
  }
  if (size <= 2) return "E" + sign + std::string(2 - size, '0') + magnitude;
  if (size == 3) return sign + magnitude;
  return {};
}

}  // namespace

std::string asterisks(int width) { return std::string(width, '*'); }

std::string text_field(std::string_view text, int width) {
  if (width == 0) return std::string(text);
  std::string out(text.substr(0, width));
  out.resize(width, ' ');
  return out;
}

std::string integer_field(long long value, int width, int min_digits) {
  const unsigned long long magnitude =
      value < 0 ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
  std::string digits = (value == 0 && min_digits == 0) ? std::string() : std::to_string(magnitude);
  if (min_digits > static_cast<int>(digits.size())) digits.insert(0, min_digits - digits.size(), '0');
  return right_justified((value < 0 ? "-" : "") + digits, width);
}

std::string fixed_field(double value, int width, int decimals, int scale) {
  if (!std::isfinite(value)) return special_field(value, width);
  Decimal exact = exact_decimal(value);
  if (!exact.digits.empty()) exact.point += scale;
  const Decimal rounded = round_to_places(exact, decimals);
  const std::string integer_part = digits_between(rounded, 0, rounded.point);
  const std::string fraction = digits_between(rounded, rounded.point, rounded.point + decimals);
  const bool minus = value < 0 && !rounded.digits.empty();
  const std::string text =
      (minus ? "-" : "") + (integer_part.empty() ? "0" : integer_part) + "." + fraction;
  // Without decimals the 0 is the only digit and cannot go.
  return fitted(text, width, integer_part.empty() && decimals > 0);
}

std::string exponent_field(double value, int width, int decimals, int exponent_digits, int scale) {
  if (!std::isfinite(value)) return special_field(value, width);
  const bool scale_fits = scale <= 0 ? scale > -decimals : scale < decimals + 2;
  if (!scale_fits) return asterisks(width);
  const int significant = scale > 0 ? decimals + 1 : decimals + scale;
  const Decimal rounded = round_to_digits(exact_decimal(value), significant);
  const std::string exponent =
      exponent_text(rounded.digits.empty() ? 0 : rounded.point - scale, exponent_digits);
  if (exponent.empty()) return asterisks(width);
  const std::string mantissa =
      scale <= 0 ? "0." + std::string(-scale, '0') + digits_between(rounded, 0, significant)
                 : digits_between(rounded, 0, scale) + "." + digits_between(rounded, scale, significant);
  const bool minus = value < 0 && !rounded.digits.empty();
  return fitted((minus ? "-" : "") + mantissa + exponent, width, scale <= 0);
}

std::string logical_field(bool value, int width) {
  return std::string(width - 1, ' ') + (value ? "T" : "F");
}

}  // namespace tarvo
