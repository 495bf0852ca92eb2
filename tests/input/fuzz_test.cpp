// Seeded random mutations of the model files (fuzz_support.h): whatever the bytes, reading never
// crashes or hangs, and what reads successfully is consistent.
#include <gtest/gtest.h>

#include <cctype>

#include "fuzz_support.h"
#include "input/mps_writer.h"
#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

// ".cor" for "MODEL.COR".
std::string lower_extension(const std::string& file) {
  std::string extension = file.substr(file.find('.'));
  for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return extension;
}

bool matrix_consistent(const lp::ProblemSlot& s) {
  if (s.m < 0 || s.m > s.mmax || s.n < 0 || s.n > s.nmax || s.ne < 0 || s.ne > s.nemax) return false;
  if (s.nb != s.n + s.m || s.ka[1] != 1 || s.ka[s.n + 1] != s.ne + 1) return false;
  for (int j = 1; j <= s.n; ++j) {
    if (s.ka[j + 1] < s.ka[j]) return false;
  }
  for (int k = 1; k <= s.ne; ++k) {
    if (s.ha[k] < 1 || s.ha[k] > s.m) return false;
  }
  return true;
}

bool descriptor_consistent(const Model& m, int kind, int at) {
  const lp::ProblemSlot& sub = m.sub;
  if (kind == -2) return at >= 1 && at <= sub.m;
  if (kind <= -11) return at >= 1 && at <= sub.n;
  if (kind == -3) return at >= 1 && at <= m.dec.b_nonzeros;
  if (at < 1 || at > sub.ne) return false;
  return sub.ha[at] == (kind == -1 ? 1 : kind);
}

// Checks what a successful read left; writes and rereads the core.
void expect_consistent(Model& m, const std::string& dir) {
  if (m.status != InputStatus::ok) return;
  ASSERT_TRUE(matrix_consistent(m.core));
  ASSERT_TRUE(matrix_consistent(m.master));
  ASSERT_TRUE(matrix_consistent(m.sub));
  const OutcomeStore& s = m.store;
  ASSERT_LE(s.count, s.jele);
  ASSERT_LE(s.entries, s.itele);
  for (int e = 1; e <= s.entries; ++e) ASSERT_TRUE(descriptor_consistent(m, s.kind[e], s.location[e])) << e;
  compute_expected_values(m.store);
  ASSERT_EQ(dump_problem(m.core, 3, m.read.names, m.units, dir + "/MODEL.P00", 27), InputStatus::ok);
  lp::ProblemSlot again = make_slot(m.core.mmax, m.core.nmax, m.core.nemax);
  const MpsReadResult read = read_mps_file(again, default_options(), m.units, dir + "/MODEL.P00", kCorUnit, 0, 0);
  ASSERT_EQ(read.status, InputStatus::ok);
  ASSERT_EQ(again.m, m.core.m);
  ASSERT_EQ(again.ne, m.core.ne);
}

struct Capacity {
  int rows = 200, columns = 300, elements = 3000;
};

// Runs one case from files already in `dir`; true when it was quick.
bool run_case(const std::string& dir, const Capacity& capacity = {}) {
  const auto start = std::chrono::steady_clock::now();
  Model model(capacity.rows, capacity.columns, capacity.elements);
  load_model(model, dir, {}, 0, 5);
  expect_consistent(model, dir);
  return std::chrono::steady_clock::now() - start < tarvo::testing::kFuzzCaseLimit;
}

// The example's files; dakota's keep their published names.
std::string example_text(const std::string& problem, const char* file) {
  const std::string name = problem == "dakota" ? "dakota" + lower_extension(file) : file;
  return read_file(example_file(problem, name));
}

TEST(Fuzz, MutatedExamplesNeverCrash) {
  const std::string dir = tarvo::testing::fuzz_case_directory().string();
  std::filesystem::create_directories(dir);
  std::mt19937 rng(20261123);
  const char* files[] = {"MODEL.COR", "MODEL.TIM", "MODEL.STO"};
  int cases = 0;
  for (int round = 0; round < 750; ++round) {
    // INDEP (lands3, env-aggr), BLOCKS (chem) and SCENARIOS (dakota).
    for (const char* problem : {"lands3", "dakota", "chem", "env-aggr"}) {
      std::string text[3];
      for (int f = 0; f < 3; ++f) text[f] = example_text(problem, files[f]);
      // Mostly the core, which has the most to get wrong; the five-line time file seldom.
      std::discrete_distribution<int> which({6, 1, 3});
      const int mutations = 1 + static_cast<int>(rng() % 3);
      for (int k = 0; k < mutations; ++k) {
        std::string& target = text[which(rng)];
        target = tarvo::testing::mutate(target, rng);
      }
      for (int f = 0; f < 3; ++f) write_file(dir + "/" + files[f], text[f]);
      // Every fourth case runs with slots near the examples' sizes, so that capacities overflow.
      Capacity capacity;
      if (round % 4 == 3) capacity = {5 + int(rng() % 100), 5 + int(rng() % 120), 20 + int(rng() % 450)};
      const bool quick = run_case(dir, capacity);
      if (!quick || ::testing::Test::HasFailure()) {
        return tarvo::testing::keep_failed_case(dir, std::string(problem) + "-" + std::to_string(round));
      }
      ++cases;
    }
  }
  EXPECT_EQ(cases, 3000);
  std::filesystem::remove_all(dir);
}

TEST(Fuzz, RegressionsReplay) {
  tarvo::testing::replay_regressions({"MODEL.COR", "MODEL.TIM", "MODEL.STO"},
                                     [](const std::string& dir) { return run_case(dir); });
}

}  // namespace
}  // namespace tarvo::input::testing
