// The split of a small core, whose numbers can be read off the text below, and the lookups and
// capacity messages that depend on it.
#include <gtest/gtest.h>

#include "input/name_lookup.h"
#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

const char* const kCore =
    "NAME          MINI\nROWS\n N  OBJ\n L  FIRST1\n G  FIRST2\n E  SECOND1\n L  SECOND2\nCOLUMNS\n"
    "    X1        OBJ       1.0            FIRST1    2.0\n"
    "    X1        SECOND1   3.0\n"
    "    X2        OBJ       4.0            FIRST2    5.0\n"
    "    Y1        OBJ       6.0            SECOND1   7.0\n"
    "    Y1        SECOND2   8.0\n"
    "    Y2        SECOND2   9.0\n"
    "RHS\n    RHS       FIRST1    10.0           FIRST2    11.0\n"
    "    RHS       SECOND1   12.0           SECOND2   13.0\nENDATA\n";

std::string time_file(const char* first_row) {
  return std::string("TIME          MINI\nPERIODS\n    X1        ") + first_row +
         "                   PERIOD1\n    Y1        SECOND1                  PERIOD2\nENDATA\n";
}

struct Split {
  TempDir dir{"split"};
  Model model;
  std::string log;
  void run(const std::string& first_row, int nzrows) {
    dir.write("MODEL.COR", kCore);
    dir.write("MODEL.TIM", time_file(first_row.c_str()));
    dir.write("MODEL.STO", "STOCH\nENDATA\n");
    open_unit(model.units, 17, dir.file("log"), OpenStatus::unknown);
    load_model(model, dir.path.string(), {17, 17}, 0, nzrows);
    close_unit(model.units, 17);
    log = read_file(dir.file("log"));
  }
};

TEST(Decompose, MasterBAndSubOfASmallCore) {
  for (const char* first_row : {"FIRST1", "OBJ"}) {  // i1 = 2, and i1 = 1 with the same rows
    Split split;
    split.run(first_row, 2);
    const Model& m = split.model;
    ASSERT_EQ(m.status, InputStatus::ok) << split.log;
    EXPECT_EQ(m.master.n, 3);
    EXPECT_EQ(m.master.m, 5);
    EXPECT_EQ(m.master.ne, 9);  // X1: 2 + 2 placeholders, X2: 2 (no B entry), THETA: 3
    EXPECT_EQ(std::vector<int>(m.master.ka.begin() + 1, m.master.ka.begin() + 5), (std::vector<int>{1, 5, 7, 10}));
    EXPECT_EQ(std::vector<int>(m.master.ha.begin() + 1, m.master.ha.begin() + 10),
              (std::vector<int>{1, 2, 4, 5, 1, 3, 1, 4, 5}));
    EXPECT_EQ(m.master.a[3], 0.0);
    EXPECT_EQ(m.master.names[3], lp::make_name("THETA001"));
    EXPECT_EQ(m.master.bl[3], -1.0e9);
    EXPECT_EQ(m.master.names[3 + 5], lp::make_name("CUT01002"));
    EXPECT_EQ(lp::row_upper(m.master, 2), 10.0);
    EXPECT_EQ(lp::row_lower(m.master, 4), -lp::kInfiniteBound);
    EXPECT_EQ(m.dec.b_nonzeros, 1);
    EXPECT_EQ(std::vector<int>(m.dec.kb.begin() + 1, m.dec.kb.begin() + 5), (std::vector<int>{1, 2, 2, -1313}));
    EXPECT_EQ(m.dec.hb[1], 2);
    EXPECT_EQ(m.dec.b[1], -3.0);
    EXPECT_EQ(m.sub.n, 2);
    EXPECT_EQ(m.sub.m, 3);
    EXPECT_EQ(std::vector<int>(m.sub.ha.begin() + 1, m.sub.ha.begin() + 5), (std::vector<int>{1, 2, 3, 3}));
    EXPECT_EQ(std::vector<double>(m.dec.h.begin() + 1, m.dec.h.begin() + 4), (std::vector<double>{0.0, 12.0, 13.0}));
    EXPECT_NE(split.log.find(" B:      rows 3 cols 2 nonz 1"), std::string::npos) << split.log;
    EXPECT_NE(split.log.find(" rows: 3 cols: 3 nonz: 1"), std::string::npos) << split.log;
  }
}

TEST(Decompose, StagedLookupSearchesSubproblemThenMaster) {
  Split split;
  split.run("FIRST1", 2);
  struct Case {
    const char* name;
    NameKind kind;
    int where;
    int index;
    int where_after;
  };
  const Case cases[] = {
      {"X2", NameKind::column, 0, 2, 1},      {"X2", NameKind::column, 2, kNotFound, 2},
      {"Y2", NameKind::column, 0, 2, 2},      {"OBJ", NameKind::row, 0, 1, 2},
      {"FIRST2", NameKind::row, 0, 3, 1},     {"FIRST2", NameKind::row, 1, 3, 1},
      {"NOPE", NameKind::column, 0, kNotFound, kNotFound}, {"NOPE", NameKind::row, 1, kNotFound, 1},
  };
  for (const Case& c : cases) {
    int where = c.where;
    EXPECT_EQ(staged_lookup(split.model.master, split.model.sub, c.kind, lp::make_name(c.name), where), c.index)
        << c.name;
    EXPECT_EQ(where, c.where_after) << c.name;
  }
  EXPECT_EQ(matrix_entry(split.model.sub, 1, -1), 1);
  EXPECT_EQ(matrix_entry(split.model.sub, 1, 3), 3);
  EXPECT_EQ(matrix_entry(split.model.sub, 2, 2), kNotFound);
}

// The split (4 cut rows) and the cut groups added after it (2 cut rows, 2 groups), each in slots
// too small for it.
TEST(Decompose, CapacityMessagesInTheirOrder) {
  const struct {
    bool groups;
    int rows, columns, elements, b_capacity, sub_elements;
    const char* message;
  } cases[] = {
      {false, 6, 10, 100, 10, 100, "ERROR: need  7 rows for master"},
      {false, 7, 10, 100, 0, 100, "ERROR: need  1 nonzeros for B matrix"},
      {false, 7, 10, 10, 10, 10, "ERROR: need  13 nonzeros for master"},
      {false, 7, 10, 100, 10, 3, "ERROR: need  4 nonzeros for sub"},
      {true, 5, 10, 100, 0, 0, "ERROR: need  6 rows for master"},
      {true, 10, 4, 100, 0, 0, "ERROR: need  5 columns for master"},
      {true, 10, 10, 13, 0, 0, "ERROR: need  14 nonzeros for master"},
  };
  for (const auto& c : cases) {
    Split split;
    split.run("FIRST1", c.groups ? 2 : 4);
    Model& m = split.model;
    open_unit(m.units, 17, split.dir.file("log2"), OpenStatus::unknown);
    if (c.groups) {
      m.master.mmax = c.rows;
      m.master.nmax = c.columns;
      m.master.nemax = c.elements;
      EXPECT_EQ(add_cut_groups(m.master, m.dec, 2, m.units, {17, 17}), InputStatus::storage);
    } else {
      m.master = make_slot(c.rows, c.columns, c.elements);
      m.sub = make_slot(10, 10, c.sub_elements);
      m.dec.b.assign(c.b_capacity + 1, 0.0);
      m.dec.hb.assign(c.b_capacity + 1, 0);
      EXPECT_EQ(decompose(m.core, m.stages, 4, m.master, m.sub, m.dec, m.units, {17, 17}), InputStatus::storage);
    }
    close_unit(m.units, 17);
    EXPECT_EQ(read_file(split.dir.file("log2")), std::string(" ") + c.message + "\n");
  }
}

// Cut groups add a THETA column per group after THETA and the row THETASUM (THETA minus the
// group columns, = 0) after the cut rows; the rows' data move along with the new columns.
TEST(Decompose, CutGroupsFollowThetaWithTheirSumRow) {
  Split split;
  split.run("FIRST1", 2);
  Model& m = split.model;
  ASSERT_EQ(add_cut_groups(m.master, m.dec, 2, m.units, {}), InputStatus::ok);
  EXPECT_EQ(m.master.n, 5);
  EXPECT_EQ(m.master.m, 6);
  EXPECT_EQ(m.master.ne, 12);
  EXPECT_EQ(std::vector<int>(m.master.ka.begin() + 3, m.master.ka.begin() + 7), (std::vector<int>{7, 11, 12, 13}));
  EXPECT_EQ(std::vector<int>(m.master.ha.begin() + 7, m.master.ha.begin() + 13), (std::vector<int>{1, 4, 5, 6, 6, 6}));
  EXPECT_EQ(std::vector<double>(m.master.a.begin() + 10, m.master.a.begin() + 13), (std::vector<double>{1.0, -1.0, -1.0}));
  EXPECT_EQ(m.master.names[5], lp::make_name("THG00002"));
  EXPECT_EQ(m.master.bl[5], -1.0e9);
  EXPECT_EQ(m.master.names[5 + 5], lp::make_name("CUT01002"));
  EXPECT_EQ(m.master.names[5 + 6], lp::make_name("THETASUM"));
  EXPECT_EQ(lp::row_upper(m.master, 2), 10.0);
  EXPECT_EQ(lp::row_lower(m.master, 6), 0.0);
  EXPECT_EQ(lp::row_upper(m.master, 6), 0.0);
  EXPECT_EQ(m.dec.groups, 2);
}

}  // namespace
}  // namespace tarvo::input::testing
