// A core written by the MPS writer reads back into the same slot; values other than 0 and +-1 are
// written with six significant digits.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "common/record_format.h"
#include "input/mps_writer.h"
#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

bool close(double a, double b) {
  if (std::fabs(a) >= 1e19 || std::fabs(b) >= 1e19) return a == b;
  return std::fabs(a - b) <= 5e-6 * std::max(std::fabs(a), std::fabs(b));
}

void expect_same_slot(const lp::ProblemSlot& x, const lp::ProblemSlot& y) {
  ASSERT_EQ(x.m, y.m);
  ASSERT_EQ(x.n, y.n);
  ASSERT_EQ(x.ne, y.ne);
  EXPECT_EQ(x.problem_name, y.problem_name);
  for (int j = 1; j <= x.nb; ++j) {
    EXPECT_EQ(x.names[j], y.names[j]) << j;
    EXPECT_TRUE(close(x.bl[j], y.bl[j])) << j << " lower " << x.bl[j] << " " << y.bl[j];
    EXPECT_TRUE(close(x.bu[j], y.bu[j])) << j << " upper " << x.bu[j] << " " << y.bu[j];
  }
  for (int j = 1; j <= x.n + 1; ++j) EXPECT_EQ(x.ka[j], y.ka[j]) << j;
  for (int k = 1; k <= x.ne; ++k) {
    EXPECT_EQ(x.ha[k], y.ha[k]) << k;
    EXPECT_TRUE(close(x.a[k], y.a[k])) << k << " " << x.a[k] << " " << y.a[k];
  }
}

// Reads `file`, dumps it, reads the dump; returns the dump's text.
std::string round_trip(const std::string& file, lp::ProblemSlot& first, lp::ProblemSlot& second) {
  TempDir dir("roundtrip");
  Units units;
  const lp::Options options = default_options();
  const MpsReadResult read = read_mps_file(first, options, units, file, kCorUnit, 0, 0);
  EXPECT_EQ(read.status, InputStatus::ok);
  EXPECT_EQ(dump_problem(first, lp::kCoreSlot, read.names, units, dir.file("MODEL.P00"), 27), InputStatus::ok);
  const MpsReadResult again = read_mps_file(second, options, units, dir.file("MODEL.P00"), kCorUnit, 0, 0);
  EXPECT_EQ(again.status, InputStatus::ok);
  EXPECT_EQ(again.errors, 0);
  return read_file(dir.file("MODEL.P00"));
}

class RoundTrip : public ::testing::TestWithParam<std::string> {};

TEST_P(RoundTrip, DumpReadsBackIntoTheSameSlot) {
  lp::ProblemSlot first = make_slot(), second = make_slot();
  const std::string text = round_trip(GetParam(), first, second);
  EXPECT_EQ(text.rfind("* dump of problem", 0), 0u);
  expect_same_slot(first, second);
}

std::vector<std::string> round_trip_files() {
  std::vector<std::string> files;
  for (const auto& p : example_problems()) files.push_back(example_file(p, "MODEL.COR"));
  for (const char* lp : {"chem-dep.mps", "env-aggr-dep.mps", "fxm2-6-dep.mps"}) {
    files.push_back(std::string(TARVO_SOURCE_DIR) + "/tests/data/lp/" + lp);
  }
  return files;
}

INSTANTIATE_TEST_SUITE_P(Files, RoundTrip, ::testing::ValuesIn(round_trip_files()));

// Ranged rows, every bound kind and a slot without names survive the trip.
TEST(RoundTrip, RangesBoundsAndDefaultNames) {
  TempDir dir("ranges");
  dir.write("r.mps",
            "NAME          RANGED\nROWS\n N  COST\n G  LIM1\n L  LIM2\n E  LIM3\n E  LIM4\nCOLUMNS\n"
            "    X         COST      1.5            LIM1      2.0\n"
            "    X         LIM2      -1.0           LIM3      1.0\n"
            "    Y         COST      -3.25          LIM4      7.0\n"
            "    Z         LIM1      1.0\n"
            "RHS\n    RHS       LIM1      1.0            LIM2      4.0\n"
            "    RHS       LIM3      2.0            LIM4      -6.0\n"
            "RANGES\n    RNG       LIM1      3.0            LIM2      2.5\n"
            "    RNG       LIM3      -1.5           LIM4      0.5\n"
            "BOUNDS\n UP BND       X         4.0\n MI BND       Y\n LO BND       Z         -2.0\n"
            "ENDATA\n");
  lp::ProblemSlot first = make_slot(), second = make_slot();
  round_trip(dir.file("r.mps"), first, second);
  expect_same_slot(first, second);
  EXPECT_EQ(second.problem_name, lp::make_name("RANGED"));
  EXPECT_EQ(lp::row_lower(first, 5), -6.0);
  EXPECT_EQ(lp::row_upper(first, 5), -5.5);

  for (int j = 1; j <= first.nb; ++j) first.names[j] = lp::Name8{};
  Units units;
  dump_problem(first, 3, {}, units, dir.file("noname"), 27);
  const std::string text = read_file(dir.file("noname"));
  EXPECT_NE(text.find("x......1  r......1"), std::string::npos) << text;
  EXPECT_NE(text.find(" MI           x......2"), std::string::npos) << text;
}

// Values for the 12-column fields of a written file read back with as many digits as fit: at
// least 9 significant digits for magnitudes from 1e-2 to 1e9, at least 5 for any other.
TEST(RoundTrip, ValueFieldsKeepTheDigitsThatFit) {
  std::mt19937_64 rng(11);
  std::uniform_real_distribution<double> mantissa(1.0, 10.0), exponent(-40.0, 40.0);
  for (int k = 0; k < 20000; ++k) {
    const double v = (k % 2 ? -1 : 1) * mantissa(rng) * std::pow(10.0, std::floor(exponent(rng)));
    const std::string text = mps_value_field(v);
    double back = 0.0;
    ASSERT_LE(text.size(), 12u) << text;
    ASSERT_TRUE(read_real_field(text, back)) << text;
    const bool plain = std::fabs(v) >= 1e-2 && std::fabs(v) < 1e9;
    EXPECT_LE(std::fabs(back - v), (plain ? 5e-9 : 5e-5) * std::fabs(v)) << v << " " << text;
  }
  for (const auto& [v, text] : {std::pair{0.0, "0"}, {-0.25, "-.25"}, {1e20, "1E20"}, {-1.5e-7, "-1.5E-7"},
                                {123456789012.0, "123456789012"}, {1.0 / 3, ".33333333333"}}) {
    EXPECT_EQ(mps_value_field(v), text);
  }
}

// Each RANGES entry counts from the limits the RHS section (1.0) left, however many came before.
TEST(RoundTrip, RangesCountFromTheRightHandSide) {
  const struct {
    char type;
    std::vector<const char*> ranges;
    double lower, upper;
  } cases[] = {
      {'G', {"-2.0"}, 1, 3},        {'L', {"2.0"}, -1, 1},        {'E', {"2.0"}, 1, 3},
      {'E', {"-1.0"}, 0, 1},        {'E', {"0.0"}, 1, 1},         {'E', {"2.0", "-1.0"}, 0, 1},
      {'E', {"-1.0", "2.0"}, 1, 3}, {'E', {"2.0", "0.0"}, 1, 1},  {'G', {"5.0", "2.0"}, 1, 3},
  };
  TempDir dir("ranges");
  for (const auto& c : cases) {
    std::string text = std::string("NAME\nROWS\n N  COST\n ") + c.type + "  DEMAND1\nCOLUMNS\n"
                       "    X         DEMAND1   1.0\nRHS\n    RHS       DEMAND1   1.0\nRANGES\n";
    for (const char* r : c.ranges) text += "    RNG       DEMAND1   " + std::string(r) + "\n";
    dir.write("r.mps", text + "ENDATA\n");
    SCOPED_TRACE(text);
    lp::ProblemSlot slot = make_slot(10, 10, 10);
    Units units;
    ASSERT_EQ(read_mps_file(slot, default_options(), units, dir.file("r.mps"), kCorUnit, 0, 0).status,
              InputStatus::ok);
    EXPECT_EQ(lp::row_lower(slot, 2), c.lower);
    EXPECT_EQ(lp::row_upper(slot, 2), c.upper);
  }
}

}  // namespace
}  // namespace tarvo::input::testing
