// Units, the line reader and the run clock: the program's contact with files and time.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/clock.h"
#include "common/free_format.h"
#include "common/line_reader.h"
#include "common/record_format.h"
#include "common/units.h"
#include "run_in_dir.h"

namespace tarvo {
namespace {

namespace fs = std::filesystem;
using testing::read_file;
using testing::write_file;

class UnitsTest : public ::testing::Test {  // each test in a fresh working directory of its own
  testing::WorkDir dir_{"common"};
};
using LineReaderTest = UnitsTest;

// Records and free lines reach an opened unit, whatever its number; an unopened one writes to
// fort.<unit>, and writes to no file or to standard input leave no file behind.
TEST_F(UnitsTest, WritesReachTheirFiles) {
  Units units;
  ASSERT_TRUE(open_unit(units, 16, "MODEL.SOL", OpenStatus::unknown));
  write_record(units, 16, "(i2/1x,a)", {1LL, std::string_view("two")});
  write_free(units, 16, "objval  = ", -2.5);
  write_free(units, 16);
  write_line(units, 15, "   12  1.50000E+00");
  write_line(units, 15, "second");
  for (int unit : {0, -1, -48, kStdinUnit}) write_line(units, unit, "dropped");
  for (int unit : {0, -3, kStdinUnit}) {
    const std::string name = "on-" + std::to_string(unit);
    ASSERT_TRUE(open_unit(units, unit, name, OpenStatus::unknown));
    write_line(units, unit, "kept");
    close_unit(units, unit);
    EXPECT_EQ(read_file(name), "kept\n") << unit;
    fs::remove(name);
  }
  close_all_units(units);
  EXPECT_EQ(read_file("MODEL.SOL"), " 1\n two\n objval  =  -2.5\n \n");
  EXPECT_EQ(read_file("fort.15"), "   12  1.50000E+00\nsecond\n");
  EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 2);
}

TEST_F(UnitsTest, OpenStatuses) {
  Units units;
  EXPECT_FALSE(open_unit(units, 19, "MODEL.INP", OpenStatus::old_file));
  EXPECT_FALSE(unit_is_open(units, 19));
  EXPECT_FALSE(fs::exists("MODEL.INP"));

  write_file("MODEL.SOL", "old contents that must go\n");
  ASSERT_TRUE(open_unit(units, 16, "MODEL.SOL", OpenStatus::unknown));
  write_line(units, 16, "new");
  close_unit(units, 16);
  EXPECT_FALSE(unit_is_open(units, 16));
  EXPECT_EQ(read_file("MODEL.SOL"), "new\n");

  ASSERT_TRUE(open_unit(units, 19, "MODEL.SOL", OpenStatus::old_file));
  LineReader reader{.file = unit_stream(units, 19)};
  std::string line;
  ASSERT_TRUE(next_line(reader, line));
  EXPECT_EQ(line, "new");
  close_all_units(units);
  EXPECT_TRUE(units.open.empty());
}

TEST_F(UnitsTest, AFileOnTheConsoleUnitReplacesItUntilClosed) {
  Units units;
  ASSERT_TRUE(open_unit(units, kConsoleUnit, "console", OpenStatus::unknown));
  write_line(units, kConsoleUnit, "to the file");
  close_unit(units, kConsoleUnit);
  EXPECT_EQ(unit_stream(units, kConsoleUnit), stdout);
  EXPECT_EQ(read_file("console"), "to the file\n");
}

std::vector<std::string> all_lines(const std::string& name, std::size_t max_length, int& count) {
  std::FILE* file = std::fopen(name.c_str(), "rb");
  LineReader reader{.file = file, .line_number = 0, .max_length = max_length};
  std::vector<std::string> lines;
  for (std::string line; next_line(reader, line);) lines.push_back(line);
  count = reader.line_number;
  std::fclose(file);
  return lines;
}

TEST_F(LineReaderTest, ReturnsEveryLineWhateverItsBytes) {
  using namespace std::string_literals;
  const struct {
    const char* name;
    std::string bytes;
    std::size_t max_length;
    std::vector<std::string> lines;
  } cases[] = {
      {"empty file", "", 80, {}}, {"plain lines", "a\nb\n", 80, {"a", "b"}},
      {"no final newline", "a\nlast", 80, {"a", "last"}}, {"empty lines", "\n\n", 80, {"", ""}},
      {"CR-LF", "abc\r\n\r\nde\r\n", 80, {"abc", "", "de"}}, {"only one CR dropped", "a\r\r\n", 80, {"a\r"}},
      {"CR not at the end kept", "a\rb\n", 80, {"a\rb"}},
      {"NUL and binary bytes", "de\0f\n\xff\xfe\x01\n"s, 80, {"de\0f"s, "\xff\xfe\x01"}},
      {"overlong line cut", std::string(100000, 'x') + "\r\nnext\n", 8, {"xxxxxxxx", "next"}},
      {"limit reached exactly", "abcdefgh\r\nabcdefg\r\n", 8, {"abcdefgh", "abcdefg"}},
      {"overlong last line", "ab\n" + std::string(5000, 'y'), 4, {"ab", "yyyy"}},
      {"zero limit", "abc\n\n", 0, {"", ""}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    write_file("input", c.bytes);
    int count = -1;
    EXPECT_EQ(all_lines("input", c.max_length, count), c.lines);
    EXPECT_EQ(count, static_cast<int>(c.lines.size()));
  }
}

TEST(Clock, DifferenceAddsADayWhenNegative) {
  const struct {
    long long previous, now, difference;
  } cases[] = {
      {100, 250, 150}, {0, 0, 0}, {250, 100, 8'639'850}, {8'639'999, 0, 1}, {1, 0, 8'639'999},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(clock_difference(c.previous, c.now), c.difference) << c.previous << " " << c.now;
  }
}

TEST(Clock, IntervalsAccumulateInSeconds) {
  RunClock clock{.previous = -1, .execution = 5, .setup = 5, .master = 5, .subproblem = 5, .last = 5};
  clock_start(clock);
  EXPECT_GE(clock.previous, 0);
  EXPECT_EQ(clock.execution + clock.setup + clock.master + clock.subproblem + clock.last, 0.0);

  // A previous reading one second ahead of now: the difference is negative, so a day is added.
  clock.previous = clock_read() + 100;
  clock_interval(clock, &clock.master);
  EXPECT_GE(clock.last, 86399.0 - 1e-9);
  EXPECT_LT(clock.last, 86400.0);
  EXPECT_EQ(clock.master, clock.last);
  EXPECT_EQ(clock.execution, clock.last);

  const double master = clock.master;
  clock_interval(clock, nullptr);
  EXPECT_GE(clock.last, 0.0);
  EXPECT_LT(clock.last, 60.0);
  EXPECT_EQ(clock.execution, master + clock.last);
  EXPECT_EQ(clock.master, master);
  EXPECT_EQ(clock.setup, 0.0);
}

}  // namespace
}  // namespace tarvo
