// The row-name hash table, the cursor search and the default names.
#include <gtest/gtest.h>

#include "input/name_hash.h"
#include "input/name_lookup.h"
#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

// Inserts names as rows 1, 2, ...; returns false when one had no room or was already there.
bool insert_all(NameHash& hash, std::vector<lp::Name8>& rows, const std::vector<std::string>& names) {
  for (const std::string& text : names) {
    const lp::Name8 name = lp::make_name(text);
    const HashProbe probe = hash_lookup(hash, rows, name, kHashInsert);
    if (probe.found || probe.position == 0) return false;
    rows.push_back(name);
    hash.table[probe.position] = static_cast<int>(rows.size()) - 1;
  }
  return true;
}

TEST(NameHash, EveryInsertedNameIsFoundAfterReordering) {
  std::vector<std::string> names = {"ABCDEFGH", "EFGHABCD", "ABCDABCD", "        ", " ABC", "ABC", "abc"};
  for (int i = 1; i <= 400; ++i) names.push_back("R" + std::to_string(1000000 + i).substr(1));
  NameHash hash;
  reset_name_hash(hash, 500);
  std::vector<lp::Name8> rows(1);
  ASSERT_TRUE(insert_all(hash, rows, names));
  EXPECT_GT(hash.collisions, 0);
  for (std::size_t r = 1; r < rows.size(); ++r) {
    const HashProbe probe = hash_lookup(hash, rows, rows[r], kHashSearch);
    ASSERT_TRUE(probe.found) << names[r - 1];
    EXPECT_EQ(probe.row, static_cast<int>(r));
    EXPECT_EQ(hash.table[probe.position], static_cast<int>(r));
  }
  EXPECT_FALSE(hash_lookup(hash, rows, lp::make_name("MISSING"), kHashSearch).found);
  EXPECT_TRUE(hash_lookup(hash, rows, lp::make_name("EFGHABCD"), kHashInsert).found);
}

TEST(NameHash, SwappedWordsShareAChainAndAFullTableRefusesMore) {
  NameHash hash;
  reset_name_hash(hash, 10);
  std::vector<lp::Name8> rows(1);
  ASSERT_TRUE(insert_all(hash, rows, {"ABCDEFGH", "EFGHABCD"}));
  EXPECT_EQ(hash.collisions, 1);
  std::vector<std::string> more;
  for (int i = 2; i < hash.length; ++i) more.push_back("N" + std::to_string(i));
  ASSERT_TRUE(insert_all(hash, rows, more));
  EXPECT_EQ(hash_lookup(hash, rows, lp::make_name("ONEMORE"), kHashInsert).position, 0);
}

TEST(CursorSearch, WrapsAroundAndReportsMissesWithinTheLimit) {
  TempDir dir("cursor");
  Units units;
  ASSERT_TRUE(open_unit(units, 23, dir.file("print"), OpenStatus::unknown));
  const std::vector<lp::Name8> names = {{}, lp::make_name("A"), lp::make_name("B"), lp::make_name("C"),
                                        lp::make_name("D")};
  NameCursor cursor{3, 0};
  EXPECT_EQ(cursor_search(names, 1, 4, lp::make_name("B"), cursor), 2);
  EXPECT_EQ(cursor.cursor, 2);
  EXPECT_EQ(cursor_search(names, 1, 3, lp::make_name("D"), cursor), 0);
  EXPECT_EQ(cursor.cursor, 1);
  EXPECT_EQ(cursor_search_reported(names, 1, 4, lp::make_name("Z"), cursor, units, 23, 17, 2), 0);
  EXPECT_EQ(cursor_search_reported(names, 1, 4, lp::make_name("Y"), cursor, units, 23, 18, 2), 0);
  EXPECT_EQ(cursor.errors, 3);
  close_unit(units, 23);
  const std::string text = read_file(dir.file("print"));
  EXPECT_NE(text.find(" XXX  Line     17  --  name not found:        Z"), std::string::npos) << text;
  EXPECT_EQ(text.find("Y"), std::string::npos) << text;
}

TEST(DefaultNames, LetterDotsAndNumber) {
  lp::ProblemSlot slot = make_slot(20, 20, 20);
  slot.n = 9;
  slot.m = 14;
  slot.nb = 23;
  EXPECT_FALSE(slot_has_names(slot));
  EXPECT_EQ(default_name(slot, 7), lp::make_name("x......7"));
  EXPECT_EQ(default_name(slot, 21), lp::make_name("r.....12"));
  slot.names[23] = lp::make_name("R");
  EXPECT_TRUE(slot_has_names(slot));
}

}  // namespace
}  // namespace tarvo::input::testing
