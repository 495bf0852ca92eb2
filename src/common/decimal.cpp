#include "common/decimal.h"

#include <charconv>
#include <cmath>

namespace tarvo {

namespace {

// A double has at most 767 significant decimal digits, so this precision prints it exactly.
constexpr int kExactPrecision = 766;

void drop_trailing_zeros(std::string& digits) {
  while (!digits.empty() && digits.back() == '0') digits.pop_back();
}

bool round_up_at(const std::string& digits, int count) {
  if (count < 0 || count >= static_cast<int>(digits.size())) return false;
  const char first_dropped = digits[count];
  if (first_dropped != '5') return first_dropped > '5';
  // Digits carry no trailing zeros, so anything after the 5 makes it more than half.
  if (count + 1 < static_cast<int>(digits.size())) return true;
  const bool kept_is_odd = count > 0 && (digits[count - 1] - '0') % 2 == 1;
  return kept_is_odd;
}

}  // namespace

Decimal exact_decimal(double value) {
  Decimal result;
  result.negative = std::signbit(value);
  char buffer[kExactPrecision + 32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                 std::chars_format::scientific, kExactPrecision).ptr;
  const std::string text(buffer, end);  // d.ddd...e+XX
  const std::size_t e = text.find('e');
  result.digits = text.substr(0, 1) + text.substr(2, e - 2);
  int exponent = 0;
  std::from_chars(text.data() + e + (text[e + 1] == '+' ? 2 : 1), text.data() + text.size(), exponent);
  drop_trailing_zeros(result.digits);
  result.point = result.digits.empty() ? 0 : exponent + 1;
  return result;
}

Decimal round_to_digits(const Decimal& value, int count) {
  if (count >= static_cast<int>(value.digits.size())) return value;
  Decimal result;
  result.negative = value.negative;
  if (!round_up_at(value.digits, count)) {
    if (count > 0) {
      result.digits = value.digits.substr(0, count);
      drop_trailing_zeros(result.digits);
      result.point = value.point;
    }
    return result;
  }
  std::string kept = count > 0 ? value.digits.substr(0, count) : std::string();
  while (!kept.empty() && kept.back() == '9') kept.pop_back();
  if (kept.empty()) {
    // Every kept digit was 9 (or none was kept): the carry makes a new leading 1.
    result.digits = "1";
    result.point = value.point + 1;
    return result;
  }
  kept.back() = static_cast<char>(kept.back() + 1);
  result.digits = kept;
  result.point = value.point;
  return result;
}

Decimal round_to_places(const Decimal& value, int places) {
  return round_to_digits(value, value.point + places);
}

}  // namespace tarvo
