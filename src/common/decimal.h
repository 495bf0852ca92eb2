#pragma once
// The exact decimal value of a double and its correct rounding. Every real that TARVO writes,
// free-form or laid out, is rounded here, so that the last digit is always the nearest one to the
// binary value (ties to even, as printf rounds).
#include <string>

namespace tarvo {

// value = 0.digits x 10^point, e.g. 123.45 is {"12345", 3} and 0.00123 is {"123", -2}.
struct Decimal {
  std::string digits;  // significant digits, no leading or trailing zeros; empty for zero
  int point = 0;
  bool negative = false;
};

// The exact expansion of a finite double (every double is a finite decimal fraction).
Decimal exact_decimal(double value);

// Keeps the first `count` significant digits, rounded to nearest with ties to even. A count of zero
// or less rounds to zero or, when the value is large enough, up to one unit of the next place
// (0.7 kept to 0 digits is 1 = {"1", 1}).
Decimal round_to_digits(const Decimal& value, int count);

// Rounds to `places` digits after the decimal point.
Decimal round_to_places(const Decimal& value, int places);

}  // namespace tarvo
