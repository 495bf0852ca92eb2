// The exact decimal expansion and its rounding, which every printed real goes through.
#include <gtest/gtest.h>

#include <limits>

#include "common/decimal.h"

namespace tarvo {
namespace {

TEST(Decimal, ExactExpansionOfDoubles) {
  const struct {
    double value;
    const char* digits_prefix;
    std::size_t digit_count;
    int point;
  } cases[] = {
      {0.1, "1000000000000000055511151231257827021181583404541015625", 55, 0}, {1.5, "15", 2, 1},
      {100.0, "1", 1, 3}, {0.00125, "125000000000000002602085213965", 0, -2},
      {1.0e20f, "100000002004087734272", 21, 21},
      {std::numeric_limits<double>::denorm_min(), "4940656458412465441765687928682213723650", 751, -323},
      {std::numeric_limits<double>::max(), "17976931348623157", 309, 309},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.value);
    const Decimal d = exact_decimal(c.value);
    EXPECT_EQ(d.digits.rfind(c.digits_prefix, 0), 0u) << d.digits;
    if (c.digit_count > 0) {
      EXPECT_EQ(d.digits.size(), c.digit_count);
    }
    EXPECT_NE(d.digits.back(), '0');
    EXPECT_EQ(d.point, c.point);
    EXPECT_FALSE(d.negative);
  }
}

TEST(Decimal, RoundsToNearestWithTiesToEven) {
  const struct {
    const char* digits;
    int point;
    int count;
    const char* rounded;
    int rounded_point;
  } cases[] = {
      {"125", 0, 2, "12", 0},      // tie, kept digit even
      {"135", 0, 2, "14", 0},      // tie, kept digit odd
      {"1251", 0, 2, "13", 0},     // above the tie
      {"1249", 0, 2, "12", 0},     // below the tie
      {"999", 3, 2, "1", 4},       // carry through every digit
      {"1995", 1, 3, "2", 1},      // carry, trailing zeros dropped
      {"123", 0, 5, "123", 0},     // nothing to drop
      {"5", 0, 0, "", 0},          // tie against an implicit 0: rounds down
      {"51", 0, 0, "1", 1},        // just above half of the next place
      {"6", -2, 0, "1", -1},       // 0.0006 to the place 0.001
      {"4", 0, 0, "", 0},
      {"9", 0, -1, "", 0},         // two places above the first digit
      {"10000001", 0, 1, "1", 0},  // only zeros dropped but a 1 at the end
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.digits) + " to " + std::to_string(c.count));
    const Decimal r = round_to_digits(Decimal{c.digits, c.point, true}, c.count);
    EXPECT_EQ(r.digits, c.rounded);
    EXPECT_EQ(r.point, std::string(c.rounded).empty() ? 0 : c.rounded_point);
    EXPECT_TRUE(r.negative);
  }
}

}  // namespace
}  // namespace tarvo
