// Seeded random mutations of the example files: whatever the bytes, reading never crashes or
// hangs, and what reads successfully is consistent. The case being run is written to
// tarvo-fuzz-<pid> in /dev/shm (or the temporary directory), where a crash leaves it; a case that
// fails a check is copied to fuzz-failures/ of the working directory. Keep such cases under
// tests/data/fuzz-regressions/, where the replay test runs them.
#include <unistd.h>

#include <gtest/gtest.h>

#include <cctype>
#include <chrono>
#include <random>

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

std::string joined(const std::vector<std::string>& lines, const char* end = "\n") {
  std::string text;
  for (const auto& line : lines) text += line + end;
  return text;
}

std::string mutate(std::string text, std::mt19937& rng) {
  const auto pick = [&](std::size_t n) { return n == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, n - 1)(rng); };
  std::vector<std::string> lines = tarvo::testing::split_lines(text);
  const std::size_t line = pick(lines.size());
  switch (pick(10)) {
    case 0:
      if (!text.empty()) text[pick(text.size())] = static_cast<char>(pick(256));
      return text;
    case 1: lines.insert(lines.begin() + line, std::string(pick(70), static_cast<char>(' ' + pick(95)))); break;
    case 2: if (!lines.empty()) lines.erase(lines.begin() + line); break;
    case 3: if (!lines.empty()) lines.insert(lines.begin() + line, lines[line]); break;
    case 4: return text.substr(0, pick(text.size() + 1));
    case 5: lines.insert(lines.begin() + line, std::string(5000 + pick(20000), 'A' + pick(26))); break;
    case 6:
      if (const std::size_t at = text.find(' ', pick(text.size())); at != std::string::npos) text[at] = '\t';
      return text;
    case 7: text.insert(pick(text.size() + 1), std::string(1 + pick(3), '\0')); return text;
    case 8: return joined(lines, "\r\n");
    default: if (lines.size() > 1) std::swap(lines[line], lines[pick(lines.size())]); break;
  }
  return joined(lines);
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
  return std::chrono::steady_clock::now() - start < std::chrono::seconds(2);
}

// Memory-backed when possible: the fuzz writes three files per case.
std::filesystem::path case_directory() {
  const std::filesystem::path shm = "/dev/shm";
  const std::filesystem::path base = std::filesystem::is_directory(shm) ? shm : std::filesystem::temp_directory_path();
  return base / ("tarvo-fuzz-" + std::to_string(getpid()));
}

void keep_failed_case(const std::string& dir, int round, const char* problem) {
  const std::filesystem::path kept = std::filesystem::absolute("fuzz-failures") / (std::string(problem) + "-" + std::to_string(round));
  std::filesystem::create_directories(kept);
  std::filesystem::copy(dir, kept, std::filesystem::copy_options::overwrite_existing);
  ADD_FAILURE() << "failed case kept in " << kept.string();
}

// The example's files; dakota's keep their published names.
std::string example_text(const std::string& problem, const char* file) {
  const std::string name = problem == "dakota" ? "dakota" + lower_extension(file) : file;
  return read_file(example_file(problem, name));
}

TEST(Fuzz, MutatedExamplesNeverCrash) {
  const std::string dir = case_directory().string();
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
        target = mutate(target, rng);
      }
      for (int f = 0; f < 3; ++f) write_file(dir + "/" + files[f], text[f]);
      // Every fourth case runs with slots near the examples' sizes, so that capacities overflow.
      Capacity capacity;
      if (round % 4 == 3) capacity = {5 + int(rng() % 100), 5 + int(rng() % 120), 20 + int(rng() % 450)};
      const bool quick = run_case(dir, capacity);
      if (!quick || ::testing::Test::HasFailure()) return keep_failed_case(dir, round, problem);
      ++cases;
    }
  }
  EXPECT_EQ(cases, 3000);
  std::filesystem::remove_all(dir);
}

TEST(Fuzz, RegressionsReplay) {
  const std::filesystem::path root = std::string(TARVO_SOURCE_DIR) + "/tests/data/fuzz-regressions";
  if (!std::filesystem::exists(root)) GTEST_SKIP() << "no regression cases";
  for (const auto& entry : std::filesystem::directory_iterator(root)) {
    if (!entry.is_directory()) continue;
    SCOPED_TRACE(entry.path().string());
    TempDir dir("replay");
    for (const char* file : {"MODEL.COR", "MODEL.TIM", "MODEL.STO"}) {
      if (std::filesystem::exists(entry.path() / file)) std::filesystem::copy(entry.path() / file, dir.path / file);
    }
    EXPECT_TRUE(run_case(dir.path.string()));
  }
}

}  // namespace
}  // namespace tarvo::input::testing
