#pragma once
// Seeded random mutations of input files, shared by the fuzz tests of every reader: whatever the
// bytes, reading never crashes or hangs, and what reads successfully is consistent. The case
// being run is written to tarvo-fuzz-<pid> in /dev/shm (or the temporary directory), where a
// crash leaves it; a case that fails a check is copied to fuzz-failures/ of the working
// directory. Keep such cases under tests/data/fuzz-regressions/, where the replay tests run them.
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "run_in_dir.h"

namespace tarvo::testing {

inline std::string joined(const std::vector<std::string>& lines, const char* end = "\n") {
  std::string text;
  for (const auto& line : lines) text += line + end;
  return text;
}

// Numbers that overflow an int (or a double); the patterns of overlong records, among them the
// largest repeat counts.
inline const char* const kHugeNumbers[] = {"2147483648", "-2147483649", "4294967296",
                                           "99999999999999999999", "1e400", "-1e-400", "1d39"};
inline const char* const kLongPatterns[] = {"A", "100000*1 ", "9,", "'", "1e30 "};

inline std::string mutate(std::string text, std::mt19937& rng) {
  const auto pick = [&](std::size_t n) { return n == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, n - 1)(rng); };
  std::vector<std::string> lines = split_lines(text);
  const std::size_t line = pick(lines.size());
  switch (pick(12)) {
    case 0:
      if (!text.empty()) text[pick(text.size())] = static_cast<char>(pick(256));
      return text;
    case 1: lines.insert(lines.begin() + line, std::string(pick(70), static_cast<char>(' ' + pick(95)))); break;
    case 2: if (!lines.empty()) lines.erase(lines.begin() + line); break;
    case 3: if (!lines.empty()) lines.insert(lines.begin() + line, lines[line]); break;
    case 4: return text.substr(0, pick(text.size() + 1));
    case 5: {
      const std::string pattern = kLongPatterns[pick(std::size(kLongPatterns))];
      std::string record;
      for (const std::size_t length = 5000 + pick(20000); record.size() < length;) record += pattern;
      lines.insert(lines.begin() + line, record);
      break;
    }
    case 6:
      if (const std::size_t at = text.find(' ', pick(text.size())); at != std::string::npos) text[at] = '\t';
      return text;
    case 7: text.insert(pick(text.size() + 1), std::string(1 + pick(3), '\0')); return text;
    case 8: return joined(lines, "\r\n");
    case 9:  // the next number replaced by a huge one
      if (const std::size_t at = text.find_first_of("0123456789", pick(text.size())); at != std::string::npos) {
        const std::size_t end = text.find_first_not_of("0123456789.+-eEdD", at);
        text.replace(at, end == std::string::npos ? end : end - at, kHugeNumbers[pick(std::size(kHugeNumbers))]);
      }
      return text;
    case 10:
      if (const std::size_t at = text.find(' ', pick(text.size())); at != std::string::npos) {
        text.insert(at + 1, pick(2) == 0 ? "100000*" : std::to_string(1 + pick(9)) + "*");
      }
      return text;
    default: if (lines.size() > 1) std::swap(lines[line], lines[pick(lines.size())]); break;
  }
  return joined(lines);
}

// Memory-backed when possible: a case writes its files afresh.
inline fs::path fuzz_case_directory() {
  const fs::path shm = "/dev/shm";
  const fs::path base = fs::is_directory(shm) ? shm : fs::temp_directory_path();
  return base / ("tarvo-fuzz-" + std::to_string(getpid()));
}

inline void keep_failed_case(const fs::path& dir, const std::string& name) {
  const fs::path kept = fs::absolute("fuzz-failures") / name;
  fs::create_directories(kept);
  fs::copy(dir, kept, fs::copy_options::overwrite_existing);
  ADD_FAILURE() << "failed case kept in " << kept.string();
}

// A read that takes longer than this counts as a hang.
inline constexpr std::chrono::seconds kFuzzCaseLimit{2};

// The kept cases that hold `file`.
inline std::vector<fs::path> fuzz_regressions(const std::string& file) {
  std::vector<fs::path> cases;
  const fs::path root = fs::path(TARVO_SOURCE_DIR) / "tests/data/fuzz-regressions";
  for (const auto& entry : fs::directory_iterator(root)) {
    if (entry.is_directory() && fs::exists(entry.path() / file)) cases.push_back(entry.path());
  }
  return cases;
}

// Replays each kept case that holds any of `files` in a fresh working directory; `run` (given
// that directory) is true when the case was read quickly.
template <typename Run>
void replay_regressions(const std::vector<const char*>& files, Run run) {
  std::set<fs::path> kept;
  for (const char* file : files) {
    for (const fs::path& source : fuzz_regressions(file)) kept.insert(source);
  }
  for (const fs::path& source : kept) {
    SCOPED_TRACE(source.string());
    const WorkDir dir("replay");
    for (const char* file : files) {
      if (fs::exists(source / file)) fs::copy(source / file, file);
    }
    EXPECT_TRUE(run(dir.path.string()));
  }
}

}  // namespace tarvo::testing
