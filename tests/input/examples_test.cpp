// Every bundled example reads, splits and loads its outcome store; the sizes are checked against
// counts made here from the files with a plain whitespace split. Expected values of the random
// entries on lands3 (INDEP and BLOCKS) and chem.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "input/mps_sizes.h"
#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

std::vector<std::vector<std::string>> data_lines(const std::string& file, std::vector<std::string>& sections,
                                                 std::vector<std::string>* raw = nullptr) {
  std::istringstream in(read_file(file));
  std::vector<std::vector<std::string>> lines;
  std::string line, section;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '*') continue;
    std::istringstream words(line);
    std::vector<std::string> tokens;
    for (std::string w; words >> w;) tokens.push_back(w);
    if (line[0] != ' ') {
      section = tokens.empty() ? "" : tokens[0];
      continue;
    }
    sections.push_back(section);
    lines.push_back(tokens);
    if (raw) raw->push_back(line);
  }
  return lines;
}

struct Core {
  std::vector<std::string> rows;
  std::map<std::string, int> row_number;
  std::vector<std::string> columns;
  std::vector<std::vector<int>> entries;  // row numbers per column
  std::string rhs_set;
};

Core count_core(const std::string& file) {
  Core core;
  std::vector<std::string> sections;
  const auto lines = data_lines(file, sections);
  for (std::size_t k = 0; k < lines.size(); ++k) {
    const auto& t = lines[k];
    if (sections[k] == "ROWS") {
      core.rows.push_back(t[1]);
      core.row_number[t[1]] = static_cast<int>(core.rows.size());
    } else if (sections[k] == "COLUMNS" && t[1] != "'MARKER'") {
      if (core.columns.empty() || core.columns.back() != t[0]) {
        core.columns.push_back(t[0]);
        core.entries.emplace_back();
      }
      for (std::size_t p = 1; p + 1 < t.size(); p += 2) core.entries.back().push_back(core.row_number[t[p]]);
    } else if (sections[k] == "RHS" && core.rhs_set.empty()) {
      core.rhs_set = t[0];
    }
  }
  return core;
}

int position(const std::vector<std::string>& names, const std::string& name, int after) {
  const auto found = std::find(names.begin() + after, names.end(), name);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin()) + 1;
}

struct Stoch {
  int jele = 0, jsum = 0, itoc = 0, itele = 0;
  double universe = 1.0;
  std::vector<std::pair<std::string, std::string>> entries;  // (name 1, name 2) in store order
};

Stoch count_stoch(const std::string& file) {
  Stoch s;
  std::vector<std::string> sections, raw;
  const auto lines = data_lines(file, sections, &raw);
  std::string parameter;
  int outcomes = 0, entries = 0;
  const auto close = [&] {
    if (outcomes == 0) return;
    ++s.jele;
    s.jsum += outcomes;
    s.itele += outcomes * entries;
    s.itoc = std::max(s.itoc, outcomes);
    s.universe *= outcomes;
  };
  for (std::size_t k = 0; k < lines.size(); ++k) {
    const auto& t = lines[k];
    const bool indep = sections[k] == "INDEP";
    const std::string id = indep ? raw[k].substr(0, 22) : (t[0] == "BL" ? t[1] : parameter);
    if (id != parameter) {
      close();
      parameter = id;
      outcomes = 0;
      entries = indep ? 1 : 0;
      if (indep) s.entries.emplace_back(t[0], t[1]);
    }
    if (indep || t[0] == "BL") {
      ++outcomes;
    } else if (outcomes == 1) {
      ++entries;
      s.entries.emplace_back(t[0], t[1]);
    }
  }
  close();
  return s;
}

class Example : public ::testing::TestWithParam<std::string> {};

TEST_P(Example, SizesAgreeWithTheFiles) {
  const std::string dir = example_dir(GetParam());
  Model model;
  load_model(model, dir);
  ASSERT_EQ(model.status, InputStatus::ok) << model.failed_step;
  EXPECT_TRUE(model.core.loaded);

  const Core core = count_core(dir + "/MODEL.COR");
  int elements = 0;
  for (const auto& e : core.entries) elements += static_cast<int>(e.size());
  EXPECT_EQ(model.core.m, static_cast<int>(core.rows.size()));
  EXPECT_EQ(model.core.n, static_cast<int>(core.columns.size()));
  EXPECT_EQ(model.core.ne, elements);
  const MpsSizes counted = count_mps_sizes(dir + "/MODEL.COR");
  EXPECT_EQ(counted.rows, model.core.m);
  EXPECT_EQ(counted.columns, model.core.n);
  EXPECT_EQ(counted.entries, model.core.ne);

  std::vector<std::string> sections;
  const auto tim = data_lines(dir + "/MODEL.TIM", sections);
  const int j1 = position(core.columns, tim[0][0], 0), j2 = position(core.columns, tim[1][0], j1);
  const int i1 = position(core.rows, tim[0][1], 0), i2 = position(core.rows, tim[1][1], i1);
  const int n1 = j2 - j1, m1 = i1 == 1 ? i2 - 1 : i2 - i1 + 1, m2 = model.core.m - i2 + 2;
  int own = 0, coupled = 0, b = 0, sub = 0;
  for (int j = j1; j <= model.core.n; ++j) {
    const auto& rows = core.entries[j - 1];
    if (j >= j2) {
      sub += static_cast<int>(rows.size());
      continue;
    }
    const int in_b = static_cast<int>(std::count_if(rows.begin(), rows.end(), [&](int r) { return r >= i2; }));
    b += in_b;
    own += static_cast<int>(rows.size()) - in_b;
    coupled += in_b > 0;
  }
  const int nzrows = 100;
  EXPECT_EQ(model.master.n, n1 + 1);
  EXPECT_EQ(model.master.m, m1 + nzrows);
  EXPECT_EQ(model.master.ne, own + coupled * nzrows + 1 + nzrows);
  EXPECT_EQ(model.dec.master_nonzeros, own);
  EXPECT_EQ(model.dec.b_nonzeros, b);
  EXPECT_EQ(model.dec.b_rows, m2);
  EXPECT_EQ(model.dec.b_cols, n1 + 1);
  EXPECT_EQ(model.dec.kb[n1 + 2], -1313);
  EXPECT_EQ(model.sub.n, model.core.n - j2 + 1);
  EXPECT_EQ(model.sub.m, m2);
  EXPECT_EQ(model.sub.ne, sub);

  const Stoch stoch = count_stoch(dir + "/MODEL.STO");
  const OutcomeStore& store = model.store;
  EXPECT_EQ(store.jele, stoch.jele);
  EXPECT_EQ(store.jsum, stoch.jsum);
  EXPECT_EQ(store.itoc, stoch.itoc);
  EXPECT_EQ(store.itele, stoch.itele);
  EXPECT_EQ(store.count, stoch.jele);
  EXPECT_EQ(store.total_outcomes, stoch.jsum);
  EXPECT_DOUBLE_EQ(store.universe, stoch.universe);
  ASSERT_EQ(store.entries, static_cast<int>(stoch.entries.size()));

  // Each descriptor points at the datum its names give.
  for (int e = 1; e <= store.entries; ++e) {
    const auto& [name1, name2] = stoch.entries[e - 1];
    const int sub_row = name2 == core.rows[0] ? 1 : core.row_number.at(name2) - i2 + 2;
    if (name1 == core.rhs_set) {
      EXPECT_EQ(store.kind[e], -2) << e;
      EXPECT_EQ(store.location[e], sub_row) << e;
      continue;
    }
    const int j = position(core.columns, name1, 0) - j2 + 1;
    const int p = store.location[e];
    EXPECT_EQ(store.kind[e], sub_row == 1 ? -1 : sub_row) << e;
    EXPECT_TRUE(p >= model.sub.ka[j] && p < model.sub.ka[j + 1] && model.sub.ha[p] == sub_row) << e;
  }
}

INSTANTIATE_TEST_SUITE_P(Examples, Example, ::testing::ValuesIn(example_problems()),
                         [](const auto& info) {
                           std::string name = info.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

// Expected values of the random entries: probability-weighted sums per block.
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
