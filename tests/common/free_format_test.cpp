// Free-form lines as every report and parameter file uses them.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "common/free_format.h"

namespace tarvo {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(FreeOutput, RealDigits) {
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {0.0, "0."}, {-0.0, "0."}, {0.5, ".5"}, {3.0, "3."}, {-3.0, "3."}, {12.5, "12.5"}, {0.1, ".1"},
      {1.0 / 3.0, ".333333333"}, {2.0 / 3.0, ".666666667"}, {9.99999999, "9.99999999"},
      {9.9999999995, "10."},            // carry out of the ninth digit
      {123456789.4, "123456789."},
      {123456788.5, "123456788."},      // exact tie, even digit kept
      {123456789.5, "123456790."},      // exact tie, odd digit rounded up
      {999999999.5, "1.E+09"},          // tie carries into a tenth digit
      {1234567890.0, "1234567890."},    // ten digits plainly are shorter than the exponent form
      {1234567891.0, "1234567890."},    // the tenth digit is not significant
      {1000.0, "1000."},
      {10000.0, "10000."},              // both forms six characters: plain
      {1.0e5, "1.E+05"}, {123456.0, "123456."}, {345600.0, "345600."}, {1.0e9, "1.E+09"}, {0.001, ".001"},
      {1.0e-5, ".00001"},               // both forms six characters: plain
      {1.5e-5, ".000015"}, {1.0e-6, "1.E-06"}, {1.5e-6, "1.5E-06"}, {1.5e-7, "1.5E-07"},
      {1.23456789e-5, ".0000123456789"}, {1.0e20, "1.E+20"},
      {1.0e20f, "1.00000002E+20"},      // the single-precision infinity as stored
      {1.65f, "1.64999998"}, {1.0e300, "1.E+300"}, {1.0e-300, "1.E-300"},
      {std::numeric_limits<double>::max(), "1.79769313E+308"},
      {std::numeric_limits<double>::denorm_min(), "4.94065646E-324"}, {std::nan(""), "NaN"},
      {kInf, "Infinity"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(free_real_digits(c.value), c.text) << c.value;
  }
}

TEST(FreeOutput, Lines) {
  const struct {
    std::string line;
    const char* expected;
  } cases[] = {
      {free_line(), " "}, {free_line("rows:    ", 100), " rows:     100"},
      {free_line("ibug      = ", -2), " ibug      =  -2"},
      {free_line("rho       = ", 1000.0), " rho       =   1000."}, {free_line("x", -2.5), " x -2.5"},
      {free_line(-0.0), "   0."}, {free_line(0.5, 7, "t", 8LL), "   .5 7t 8"},
      {free_line(std::nan("")), "   NaN"}, {free_line(-kInf), "  -Infinity"},
      {free_line(1.0e20f), "   1.00000002E+20"},
      {free_line(static_cast<short>(-5), static_cast<unsigned char>(9)), "  -5 9"},
      {free_line(std::string("owned "), std::string_view("view")), " owned view"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.line, c.expected);
}

// Items rendered compactly: bare text as is, quoted text in '', a null item as ~, joined by |.
std::string rendered(const std::vector<FreeItem>& items) {
  std::string out;
  for (const FreeItem& item : items) {
    if (!out.empty()) out += '|';
    out += item.null ? "~" : item.quoted ? "'" + item.text + "'" : item.text;
  }
  return out;
}

TEST(FreeInput, SplitsItems) {
  const struct {
    const char* line;
    const char* items;
    bool ended;
    std::size_t wanted = static_cast<std::size_t>(-1);  // a read of a short list stops early
  } cases[] = {
      {"3 istrat", "3|istrat", false}, {"  4,'maxit'  ", "4|'maxit'", false},
      {"6, \"NZROWS\"", "6|'NZROWS'", false}, {"\t7\tx", "7|x", false}, {"a,b , c", "a|b|c", false},
      {"5 ,6", "5|6", false}, {"1,,2", "1|~|2", false}, {"1, ,2", "1|~|2", false}, {",5", "~|5", false},
      {"5,", "5", false}, {"3*7 x", "7|7|7|x", false}, {"2* 5", "~|~|5", false}, {"2*,5", "~|~|5", false},
      {"2*'a b'", "'a b'|'a b'", false}, {"a*b x2*3 *", "a*b|x2*3|*", false}, {"1 2 / 3", "1|2", true},
      {"1 2/3", "1|2", true}, {"/", "", true}, {"'a/b' c", "'a/b'|c", false}, {"'it''s'", "'it's'", false},
      {"\"say \"\"hi\"\"\"", "'say \"hi\"'", false}, {"'mixed \" quote'", "'mixed \" quote'", false},
      {"'' x", "''|x", false}, {"", "", false}, {"   ", "", false},
      {"3 istrat 'unterminated", "3|istrat", false, 2}, {"100000*7 x", "7|7", false, 2},
      {"2*,5", "~", false, 1}, {"1,,2", "1|~", false, 2}, {"'a' 0*1 /", "'a'", false, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line);
    std::vector<FreeItem> items{FreeItem{"stale", false, false}};
    bool ended = !c.ended;
    ASSERT_TRUE(split_free_items(c.line, items, ended, c.wanted));
    EXPECT_EQ(rendered(items), c.items);
    EXPECT_EQ(ended, c.ended);
  }
}

// Repeat counts run from 1 to 100000.
TEST(FreeInput, RejectsMalformedLines) {
  std::vector<FreeItem> items;
  bool ended = false;
  for (const char* line : {"'abc", "x \"abc", "'ab'cd", "0*5", "100001*1", "99999999999999999999*1"}) {
    EXPECT_FALSE(split_free_items(line, items, ended)) << line;
  }
  ASSERT_TRUE(split_free_items("100000*1", items, ended));
  EXPECT_EQ(items.size(), 100000u);
}

TEST(FreeInput, ParsesRealsAndRejectsNonReals) {
  const struct {
    const char* text;
    double value;
  } cases[] = {
      {"3", 3.0}, {"-3", -3.0}, {"+3", 3.0}, {".5", 0.5}, {"5.", 5.0}, {"-.5", -0.5}, {"007.25", 7.25},
      {"1.0d-7", 1.0e-7}, {"1.0D-7", 1.0e-7}, {"2.5E3", 2500.0}, {"2.5e+3", 2500.0}, {"1.5+3", 1500.0},
      {"1.5-3", 0.0015}, {"0.1", 0.1}, {"123456789012345678901234567890", 123456789012345678901234567890.0},
      {"1e300", 1.0e300}, {"1.7976931348623157e308", std::numeric_limits<double>::max()},
      {"4.9406564584124654e-324", std::numeric_limits<double>::denorm_min()}, {"1e-400", 0.0},
      {"1e-99999999999999999999", 0.0}, {"0.000000000000000000000000000001e30", 1.0},
  };
  for (const auto& c : cases) {
    double value = -99.0;
    EXPECT_TRUE(parse_free_real(c.text, value)) << c.text;
    EXPECT_EQ(value, c.value) << c.text;
  }
  double negative_zero = 1.0;
  ASSERT_TRUE(parse_free_real("-1e-400", negative_zero));
  EXPECT_TRUE(negative_zero == 0.0 && std::signbit(negative_zero));
  for (const char* text : {"", "abc", "1e", "1e+", "1d", "1.5.5", ".", "-", "+", "e5", ".e5", "5x",
                           " 5", "5 ", "inf", "nan", "0x10", "1_000", "--1", "1e309", "-1e309",
                           "1.8e308", "1e99999999999999999999"}) {
    double value = -99.0;
    EXPECT_FALSE(parse_free_real(text, value)) << text;
    EXPECT_EQ(value, -99.0) << text;
  }
}

TEST(FreeInput, ParsesIntegers) {
  const struct {
    const char* text;
    bool ok;
    long long value;
  } cases[] = {
      {"0", true, 0}, {"-7", true, -7}, {"+42", true, 42}, {"007", true, 7},
      {"9223372036854775807", true, std::numeric_limits<long long>::max()},
      {"-9223372036854775808", true, std::numeric_limits<long long>::min()},
      {"9223372036854775808", false, 0}, {"-9223372036854775809", false, 0}, {"3.", false, 0},
      {"1e2", false, 0}, {"", false, 0}, {"-", false, 0}, {"12a", false, 0},
  };
  for (const auto& c : cases) {
    long long value = -99;
    EXPECT_EQ(parse_free_integer(c.text, value), c.ok) << c.text;
    EXPECT_EQ(value, c.ok ? c.value : -99) << c.text;
  }
}

}  // namespace
}  // namespace tarvo
