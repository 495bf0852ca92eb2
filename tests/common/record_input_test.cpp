// Fixed-column input records, as the MPS, time and stochastic readers cut their lines.
#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "common/record_format.h"

namespace tarvo {
namespace {

constexpr const char* kMpsList = "(a4,2a4,2x,2a4,2x,bn,e12.0,3x,2a4,2x,e12.0)";

// A line with each text placed at its 1-based column.
std::string at_columns(std::initializer_list<std::pair<int, const char*>> fields) {
  std::string line;
  for (const auto& [column, text] : fields) {
    const std::string piece(text);
    if (line.size() < column - 1 + piece.size()) line.resize(column - 1 + piece.size(), ' ');
    line.replace(column - 1, piece.size(), piece);
  }
  return line;
}

// Items rendered compactly: text in [], integers and reals by value, joined by |.
std::string rendered(const InputRecord& record) {
  std::string out;
  for (const RecordItem& item : record.items) {
    if (!out.empty()) out += '|';
    if (const auto* text = std::get_if<std::string_view>(&item)) {
      out += "[" + std::string(*text) + "]";
    } else if (const auto* integer = std::get_if<long long>(&item)) {
      out += "i" + std::to_string(*integer);
    } else {
      char buffer[40];
      std::snprintf(buffer, sizeof buffer, "%.17g", std::get<double>(item));
      out += buffer;
    }
  }
  return out;
}

TEST(RecordInput, ReadsFixedColumns) {
  const struct {
    const char* list;
    std::string line;
    const char* items;
  } cases[] = {
      {kMpsList, at_columns({{2, "UP"}, {5, "BND"}, {15, "X1"}, {25, "  1.5e3"}, {40, "ROW2"}, {50, "-2"}}),
       "[ UP ]|[BND ]|[    ]|[X1  ]|[    ]|1500|[ROW2]|[    ]|-2"},
      {kMpsList, " N  COST", "[ N  ]|[COST]|[    ]|[    ]|[    ]|0|[    ]|[    ]|0"},
      {kMpsList, "", "[    ]|[    ]|[    ]|[    ]|[    ]|0|[    ]|[    ]|0"},
      {kMpsList, at_columns({{5, "LONGCOLUMNNAME"}, {25, "1 2 3 . 5"}, {50, "123456789012345"}}),
       "[    ]|[LONG]|[COLU]|[NAME]|[    ]|123.5|[    ]|[    ]|123456789012"},
      {kMpsList, at_columns({{25, "1.5+3"}, {50, "1.0D-2"}}),
       "[    ]|[    ]|[    ]|[    ]|[    ]|1500|[    ]|[    ]|0.01"},
      {"(bn,a4,a8,2x,a8,2x,e12.0,3x,a8,2x,e12.0)", at_columns({{1, "*ab"}, {5, "PERIOD2"}, {25, "7"}}),
       "[*ab ]|[PERIOD2 ]|[        ]|7|[        ]|0"},
      {"((a))", "eval", "[eval]"}, {"(a2,a)", "abcdef", "[ab]|[cdef]"}, {"(a8)", "ab", "[ab      ]"},
      {"(4x,a4)", "1234ABCD", "[ABCD]"}, {"(a4,/,a4)", "ABCDEFGH", "[ABCD]|[    ]"},
      {"(a2,'xyz',a2)", "ab---cd", "[ab]|[cd]"}, {"(i5,i3)", "  -42 4 ", "i-42|i4"}, {"(i5)", " 4 2 ", "i42"},
      {"(2(i2,1x))", " 1  2 ", "i1|i2"},
      {"(f5.2)", "  123", "1.23"},       // no point: the last d digits are decimals
      {"(f5.2)", " 1.5 ", "1.5"},
      {"(1p,f6.2)", "  1234", "1.234"},   // and the scale factor divides
      {"(1p,e10.0)", "  2.5E+01", "25"},  // but not when an exponent is given
      {"(bn, e16.0)", "1e30", "1e+30"},
      {"(l2,l2,l3)", " T.f   ", "i1|i0|i0"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.list) + " on [" + c.line + "]");
    InputRecord record;
    ASSERT_TRUE(read_record(c.list, c.line, record));
    EXPECT_EQ(rendered(record), c.items);
  }
}

TEST(RecordInput, FieldsThatAreNoNumbersFail) {
  const struct {
    const char* list;
    std::string line;
  } cases[] = {
      {kMpsList, at_columns({{25, "abc"}})}, {kMpsList, at_columns({{50, "1.5e"}})},
      {kMpsList, at_columns({{25, "1e999"}})}, {"(i5)", "  4.2"}, {"(i3)", "1e2"}, {"(l2)", " x"},
      {"(f5.2)", "1,5"}, {"(q5)", "12345"},
  };
  for (const auto& c : cases) {
    InputRecord record;
    EXPECT_FALSE(read_record(c.list, c.line, record)) << c.list << " on [" << c.line << "]";
  }
}

TEST(RecordInput, ItemsStayValidWhenTheRecordIsMoved) {
  InputRecord record;
  ASSERT_TRUE(read_record("(20a1)", "abcdefghijklmnopqrst", record));
  const InputRecord moved = std::move(record);
  EXPECT_EQ(rendered(moved),
            "[a]|[b]|[c]|[d]|[e]|[f]|[g]|[h]|[i]|[j]|[k]|[l]|[m]|[n]|[o]|[p]|[q]|[r]|[s]|[t]");
}

TEST(RecordInput, RealFields) {
  const struct {
    const char* field;
    bool ok;
    double value;
  } cases[] = {
      {"", true, 0.0}, {"            ", true, 0.0}, {"1.5", true, 1.5}, {" 1 . 5 ", true, 1.5},
      {"  -3", true, -3.0}, {"1e3", true, 1000.0}, {"1E3", true, 1000.0}, {"1d3", true, 1000.0},
      {"1 D 3", true, 1000.0}, {"1.5+3", true, 1500.0}, {"1.5-3", true, 0.0015}, {"+.5", true, 0.5},
      {"1e-400", true, 0.0}, {"abc", false, 0.0}, {"1e", false, 0.0}, {"--1", false, 0.0},
      {"1.5E3X", false, 0.0}, {"1e400", false, 0.0}, {"1,5", false, 0.0}, {".", false, 0.0},
      {"-", false, 0.0}, {"\t1", false, 0.0},
  };
  for (const auto& c : cases) {
    double value = -99.0;
    EXPECT_EQ(read_real_field(c.field, value), c.ok) << c.field;
    EXPECT_EQ(value, c.ok ? c.value : -99.0) << c.field;
  }
}

TEST(RecordInput, IntegerFields) {
  const struct {
    const char* field;
    bool ok;
    long long value;
  } cases[] = {
      {"", true, 0}, {"    ", true, 0}, {" 12 ", true, 12}, {"1 2", true, 12}, {"-5", true, -5},
      {"- 5", true, -5}, {"1.0", false, 0}, {"x", false, 0}, {"99999999999999999999", false, 0},
  };
  for (const auto& c : cases) {
    long long value = -99;
    EXPECT_EQ(read_integer_field(c.field, value), c.ok) << c.field;
    EXPECT_EQ(value, c.ok ? c.value : -99) << c.field;
  }
}

}  // namespace
}  // namespace tarvo
