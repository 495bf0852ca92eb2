#pragma once
// Numbers written as text, as the model, option and parameter files hold them. One syntax serves
// free-form items and fixed-column fields:
//   [sign] digits [. digits] [exponent]      at least one mantissa digit ("5.", ".5", "+3")
//   exponent = (E|e|D|d) [sign] digits  or  sign digits  ("1.5E+3", "1.0d-7", "1.5+3")
// Anything else (words, "1e", "inf", trailing text) is not a number.
#include <string>
#include <string_view>

namespace tarvo {

struct NumberText {
  bool negative = false;
  std::string digits;      // mantissa digits with the point removed
  long long exponent = 0;  // value = digits x 10^exponent (saturates far beyond any double)
  bool has_point = false;
  bool has_exponent = false;
};

bool parse_number_text(std::string_view text, NumberText& number);

// The double nearest to the number. False when it overflows; values below the smallest denormal
// become zero of the number's sign.
bool number_to_double(const NumberText& number, double& value);

// [sign] digits within the range of long long.
bool parse_integer_text(std::string_view text, long long& value);

}  // namespace tarvo
