// What the readers list: the MPS listing rule, the per-kind message limit and the prescan's
// debug listing.
#include <gtest/gtest.h>

#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

using tarvo::testing::count_of;

// Lines the listing must hold: the first five, comments and cards, data lines within the limit.
int listed_lines(const std::string& file, int list_limit) {
  std::istringstream in(read_file(file));
  int number = 0, listed = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (number <= 5 || number <= list_limit || (!line.empty() && line[0] != ' ')) ++listed;
    if (line.rfind("ENDATA", 0) == 0) break;
  }
  return listed;
}

std::string read_listing(const std::string& file, int list_limit, int message_limit,
                         lp::ProblemSlot slot = make_slot(), InputStatus* status = nullptr) {
  TempDir dir("listing");
  Units units;
  open_unit(units, 23, dir.file("print"), OpenStatus::unknown);
  lp::Options options = default_options();
  options.ival[lp::kListLimit] = list_limit;
  options.ival[lp::kErrorMessageLimit] = message_limit;
  const MpsReadResult read = read_mps_file(slot, options, units, file, kCorUnit, 23, 0);
  if (status != nullptr) *status = read.status;
  close_unit(units, 23);
  return read_file(dir.file("print"));
}

TEST(Listing, FirstLinesCardsAndDataWithinTheListLimit) {
  const std::string file = example_file("chem", "MODEL.COR");
  for (int limit : {0, 3, 40, 100000}) {
    const std::string listing = read_listing(file, limit, 10);
    int echoed = 0;
    std::istringstream in(listing);
    for (std::string line; std::getline(in, line);) {
      const std::string number = line.substr(0, 7);  // "(i7,4x,a)": a line number, four blanks
      const std::size_t digits = number.find_first_not_of(' ');
      echoed += line.size() > 11 && digits != std::string::npos &&
                number.find_first_not_of("0123456789", digits) == std::string::npos && line.substr(7, 4) == "    ";
    }
    EXPECT_EQ(echoed, listed_lines(file, limit)) << limit;
  }
}

TEST(Listing, MessagesStopAtTheLimitButAllErrorsCount) {
  TempDir dir("limit");
  std::string core = read_file(example_file("lands3", "MODEL.COR"));
  std::string bad;
  for (int k = 0; k < 15; ++k) bad += "    X1        NOROW" + std::to_string(k) + "    1.0\n";
  core.insert(core.find("    X2"), bad);
  dir.write("core", core);
  const std::string listing = read_listing(dir.file("core"), 0, 4);
  EXPECT_EQ(count_of(listing, "Non-existent row"), 4);
  EXPECT_NE(listing.find(" XXXX  Total no. of errors in MPS file      15"), std::string::npos) << listing;
  EXPECT_NE(listing.find(" EXIT -- fatal errors in the MPS file"), std::string::npos);
}

TEST(Listing, CapacityOverflowsAreStorageFailures) {
  struct Case {
    int rows, columns, elements;
    const char* message;
  };
  const Case cases[] = {{5, 20, 100, " XXXX  Too many rows.  Limit was       5  Actual number is      10"},
                        {20, 5, 100, " XXXX  Too many columns.   The limit was       5  Actual number is      16"},
                        {20, 20, 10, " XXXX  Too many elements.  The limit was      10  Actual number is      52"}};
  for (const Case& c : cases) {
    InputStatus status = InputStatus::ok;
    const std::string listing = read_listing(example_file("lands3", "MODEL.COR"), 0, 10,
                                             make_slot(c.rows, c.columns, c.elements), &status);
    EXPECT_EQ(status, InputStatus::storage);
    EXPECT_NE(listing.find(std::string(c.message) + "\n EXIT -- not enough storage to read the MPS file"),
              std::string::npos) << listing;
  }
}

TEST(Listing, PrescanListsRecordsAndParameters) {
  TempDir dir("spr");
  Units units;
  open_unit(units, 7, dir.file("MODEL.SPR"), OpenStatus::unknown);
  open_unit(units, 8, example_file("lands-1e6", "MODEL.STO"), OpenStatus::old_file);
  OutcomeStore store;
  EXPECT_EQ(prescan_stoch_file(units, 8, 7, {}, store), InputStatus::ok);
  close_unit(units, 7);
  const std::string spr = read_file(dir.file("MODEL.SPR"));
  EXPECT_EQ(count_of(spr, "prescan: parameter"), store.jele);
  EXPECT_EQ(count_of(spr, "\n"), listed_lines(example_file("lands-1e6", "MODEL.STO"), 1 << 30) + store.jele);
}

// Options as the options file leaves them before any solve: most still unset.
TEST(Listing, OptionsAsTheOptionsFileLeavesThem) {
  Units units;
  lp::Options options;
  ASSERT_TRUE(open_unit(units, 4, example_file("chem", "SIMPLEX.SPC"), OpenStatus::old_file));
  ASSERT_EQ(lp::read_specs(options, units, 4, 0, 0, 240000), lp::kOptionsRead);
  close_unit(units, 4);
  options.rval[lp::kLowerBoundDefault] = 2.0;
  lp::ProblemSlot slot = make_slot();
  const MpsReadResult read = read_mps_file(slot, options, units, example_file("chem", "MODEL.COR"), kCorUnit, 0, 0);
  ASSERT_EQ(read.status, InputStatus::ok);
  EXPECT_EQ(slot.bl[1], 2.0);
  EXPECT_EQ(slot.bu[1], lp::kInfiniteBound);
}

}  // namespace
}  // namespace tarvo::input::testing
