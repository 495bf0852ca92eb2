// Expected values of the random entries: probability-weighted sums per block.
#include <gtest/gtest.h>

#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

void load_example(Model& model, const std::string& problem) {
  load_model(model, example_dir(problem));
  ASSERT_EQ(model.status, InputStatus::ok) << model.failed_step;
  compute_expected_values(model.store);
}

TEST(ExpectedValues, Lands3IndepAndBlocksAgree) {
  Model indep, blocks;
  load_example(indep, "lands3");
  load_example(blocks, "lands3-blocks");
  ASSERT_EQ(indep.store.entries, 1);
  ASSERT_EQ(blocks.store.entries, 1);
  EXPECT_EQ(indep.store.kind[1], blocks.store.kind[1]);
  EXPECT_EQ(indep.store.location[1], blocks.store.location[1]);
  EXPECT_DOUBLE_EQ(indep.store.expected[1], 0.3 * 3.0 + 0.4 * 5.0 + 0.3 * 7.0);
  EXPECT_DOUBLE_EQ(blocks.store.expected[1], indep.store.expected[1]);
}

// chem: one block of three entries; the second pair of its first data line is not read.
TEST(ExpectedValues, ChemBlockWeighsEachEntry) {
  Model chem;
  load_example(chem, "chem");
  const OutcomeStore& s = chem.store;
  ASSERT_EQ(s.entries, 3);
  EXPECT_EQ(std::vector<double>(s.values.begin() + 1, s.values.begin() + 7),
            (std::vector<double>{150.0, -58.0, -80.0, 100.0, -51.0, -70.0}));
  EXPECT_DOUBLE_EQ(s.expected[1], 0.6 * 150.0 + 0.4 * 100.0);
  EXPECT_DOUBLE_EQ(s.expected[2], 0.6 * -58.0 + 0.4 * -51.0);
  EXPECT_DOUBLE_EQ(s.expected[3], 0.6 * -80.0 + 0.4 * -70.0);
  EXPECT_TRUE(s.matrix_random);
  EXPECT_FALSE(s.bound_random);

  TempDir dir("dump");
  Units units;
  open_unit(units, 17, dir.file("dump"), OpenStatus::unknown);
  write_outcome_dump(s, units, 17);
  close_unit(units, 17);
  const std::string dump = read_file(dir.file("dump"));
  EXPECT_EQ(dump.rfind(" rvs  1\n rv  1 nsoc  2 nse  3\n", 0), 0u) << dump;
  EXPECT_NE(dump.find("-2 4  100."), std::string::npos) << dump;
  EXPECT_EQ(std::count(dump.begin(), dump.end(), '\n'), 2 + 6);
}

}  // namespace
}  // namespace tarvo::input::testing
