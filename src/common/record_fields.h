#pragma once
// One output field of a laid-out record. A value that does not fit its width gives a field of
// asterisks; infinities print as "Infinity" (or "Inf" when narrower), NaN as "NaN", right-justified.
// A value that rounds to zero, negative zero included, prints without a minus sign.
#include <string>
#include <string_view>

namespace tarvo {

std::string asterisks(int width);

// aw: left-justified, blank-filled, cut to w; width 0 (plain a) gives the text as it is.
std::string text_field(std::string_view text, int width);

// iw.m: right-justified with at least m digits (m = -1: none asked). Zero with m = 0 is all blank.
std::string integer_field(long long value, int width, int min_digits);

// kp fw.d: the value times 10^k with d decimals. The 0 before the point is dropped only when the
// field is too narrow for it (".50" in f3.2, "0.50" in f4.2).
std::string fixed_field(double value, int width, int decimals, int scale);

// kp ew.d[Ee]: k = 0 gives 0.ddddE+xx; k > 0 gives k digits before the point. Without Ee an exponent
// of three digits drops the letter ("0.12+100").
std::string exponent_field(double value, int width, int decimals, int exponent_digits, int scale);

// lw: T or F, right-justified.
std::string logical_field(bool value, int width);

}  // namespace tarvo
