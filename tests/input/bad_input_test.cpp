// Faulty model files, one table: each case edits one of the lands3 files and names the status,
// the step that fails and a message the log must hold.
#include <gtest/gtest.h>

#include <functional>

#include "input_test_support.h"

namespace tarvo::input::testing {
namespace {

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  if (at == std::string::npos) ADD_FAILURE() << "no '" << from << "' to replace";
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

// A line laid out in the fixed columns of the model files.
std::string rec(const std::string& key, const std::string& n1 = "", const std::string& n2 = "",
                const std::string& v1 = "", const std::string& n3 = "", const std::string& v2 = "") {
  std::string line(61, ' ');
  const auto put = [&](std::size_t at, const std::string& s) { line.replace(at, s.size(), s); };
  put(0, key), put(4, n1), put(14, n2), put(24, v1), put(39, n3), put(49, v2);
  return line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
}

std::string indep(const std::string& lines) {
  return "STOCH         LandS\nINDEP         DISCRETE\n" + lines + "ENDATA\n";
}
std::string blocks(const std::string& lines) {
  return "STOCH         LandS\nBLOCKS        DISCRETE\n" + lines + "ENDATA\n";
}
std::string bl(const char* p) { return rec(" BL", "BLOCK1", "PERIOD2", p); }
std::string scenarios(const std::string& lines) {
  return "STOCH         LandS\nSCENARIOS     DISCRETE\n" + lines + "ENDATA\n";
}
std::string sc(const char* name, const char* parent, const char* p, const char* period = "PERIOD2") {
  return rec(" SC", name, parent, p, period);
}
std::string add_bounds(const std::string& core, const std::string& lines) {
  return replaced(core, "ENDATA", "BOUNDS\n" + lines + "ENDATA");
}

using Edit = std::function<std::string(const std::string&)>;
Edit rep(const std::string& from, const std::string& to) {
  return [=](const std::string& t) { return replaced(t, from, to); };
}
Edit whole(const std::string& text) {
  return [=](const std::string&) { return text; };
}
Edit bounds(const std::string& lines) {
  return [=](const std::string& t) { return add_bounds(t, lines); };
}
using Check = std::function<void(const Model&)>;

struct Case {
  const char* name;
  char file;  // 'C', 'T' or 'S': which file the edit applies to ('-' deletes the time file)
  Edit edit;
  InputStatus status;
  const char* step;
  const char* message;
  Check check = nullptr;
  const char* absent = nullptr;  // a message the log must not hold
};

std::size_t column(const Model& m, const char* name) {
  return std::find(m.core.names.begin(), m.core.names.end(), lp::make_name(name)) - m.core.names.begin();
}

const InputStatus ok = InputStatus::ok, bad = InputStatus::bad_file;
const double inf = lp::kInfiniteBound;
const std::string x1_line = rec("", "X1", "OBJ", "10.0", "MINCAP", "1.0");

const Case kCases[] = {
    {"garbage before NAME", 'C', [](auto& t) { return "JUNK\n" + t; }, bad, "core", "Garbage before NAME card"},
    {"missing ROWS card", 'C', rep("ROWS\n", ""), bad, "core", "ROWS card not found"},
    {"empty core", 'C', whole(std::string()), bad, "core", "No rows specified"},
    {"missing RHS card", 'C', rep("RHS           RIGHT\n", ""), bad, "core", "RHS card not found"},
    {"missing ENDATA", 'C', rep("ENDATA", "*"), bad, "core", "ENDATA card not found"},
    {"bounds before RHS", 'C', rep("RHS   ", "BOUNDS\n" + rec(" UP", "BND", "X1", "5") + "RHS   "), bad,
     "core", "RHS card not found"},
    {"illegal row type", 'C', rep(" G  MINCAP", " X  MINCAP"), bad, "core", "Illegal row type at line"},
    {"duplicate row", 'C', rep(" L  BUDGET\n", " L  BUDGET\n G  BUDGET\n"), bad,
     "core", "Duplicate row name --BUDGET   -- ignored"},
    {"unknown row", 'C', rep("X1        OBJ", "X1        OBX"), bad, "core",
     "Non-existent row    specified -- OBX      -- entry ignored in line"},
    {"name with a leading blank", 'C', rep("X1        OBJ ", "X1         OBJ"),
     bad, "core", "Non-existent row    specified --  OBJ"},
    {"overlong column name", 'C', rep("X1        OBJ ", "X1_LONG_NAMEOBJ"), bad,
     "core", "Non-existent row    specified -- MEOBJ    -- entry"},
    {"duplicate entry", 'C', rep(x1_line, x1_line + rec("", "X1", "MINCAP", "2.0")),
     bad, "core", "Column  X1        has more than one entry in row  MINCAP"},
    {"non-numeric value", 'C', rep("10.0           MINCAP", "1O.0           MINCAP"),
     bad, "core", "Field is not a number -- entry ignored in line"},
    {"tab in a value", 'C', rep("10.0           MINCAP", "10.0\t          MINCAP"),
     bad, "core", "Field is not a number"},
    {"tab for the leading blanks", 'C', rep("    X2  ", "\tX2\t"), bad, "core", "RHS card not found"},
    {"unknown bound column", 'C', bounds(rec(" UP", "BND", "Z9", "5.0")), bad, "core",
     "Non-existent column specified -- Z9"},
    {"illegal bound type", 'C', bounds(rec(" XX", "BND", "X1", "5.0")), bad, "core", "Illegal bound type at line"},
    {"bounds back to front", 'C', bounds(rec(" UP", "BND", "X1", "-1.0")), bad,
     "core", "Bounds back to front on column      1 :"},
    {"MI alone", 'C', bounds(rec(" MI", "BND", "X1")), ok, "", "",
     [](const Model& m) { EXPECT_EQ(m.core.bl[column(m, "X1")], -inf); EXPECT_EQ(m.core.bu[column(m, "X1")], 0.0); }},
    {"MI then UP", 'C', bounds(rec(" MI", "BND", "X1") + rec(" UP", "BND", "X1", "3")),
     ok, "", "", [](const Model& m) { EXPECT_EQ(m.core.bu[column(m, "X1")], 3.0); }},
    {"MI then PL", 'C', bounds(rec(" MI", "BND", "X1") + rec(" PL", "BND", "X1")), ok,
     "", "", [](const Model& m) { EXPECT_EQ(m.core.bl[column(m, "X1")], -inf); EXPECT_EQ(m.core.bu[column(m, "X1")], inf); }},
    {"RHS on the objective", 'C', rep("ENDATA", rec("", "RIGHT", "OBJ", "5.0") + "ENDATA"),
     ok, "", "is added to the objective.", [](const Model& m) { EXPECT_EQ(m.core.objadd, -5.0); }},
    {"objective not in row 1", 'C', rep(" N  OBJ\n G  MINCAP\n", " G  MINCAP\n N  OBJ\n"),
     InputStatus::not_staircase, "decompose", "ERROR: row 1 of problem  3 is not a free row",
     [](const Model& m) { EXPECT_FALSE(m.core.loaded); }},
    {"integer markers", 'C',
     [](auto& t) { return replaced(t, x1_line, rec("", "M1", "'MARKER'", "", "'INTORG'") + x1_line +
                                                   rec("", "M2", "'MARKER'", "", "'INTEND'")); },
     ok, "", "", [](const Model& m) { EXPECT_EQ(m.read.integer_columns, 1); EXPECT_EQ(m.core.n, 16); }},
    {"first RHS set is LAGRANGE", 'C', rep("    RIGHT     MINCAP", "    LAGRANGE  MINCAP"),
     bad, "stoch", "Warning - first RHS is LAGRANGE.\n   Other RHS's will be ignored."},
    {"first bound set is INITIAL", 'C', bounds(rec(" UP", "INITIAL", "X1", "5") + rec(" UP", "B", "X2", "5")),
     ok, "", "Warning - first bounds set is  INITIAL .", [](const Model& m) { EXPECT_EQ(m.core.bu[column(m, "X2")], inf); }},
    {"CR-LF line ends", 'C', [](auto& t) { std::string s; for (char c : t) s += c == '\n' ? std::string("\r\n") : std::string(1, c); return s; },
     ok, "", ""},
    {"sub column in a first-stage row", 'C',
     rep("Y11       DEMAND1   1.0\n", "Y11       DEMAND1   1.0\n" + rec("", "Y11", "BUDGET", "1")),
     InputStatus::not_staircase, "decompose", "ERROR: matrix not in staircase form!"},
    {"missing time file", '-', nullptr, InputStatus::missing_file, "time", "ERROR: No file "},
    {"empty time file", 'T', whole(std::string()), bad, "time", "file ends... no endata found!"},
    {"no PERIODS card", 'T', rep("PERIODS", "STAGES"), bad, "time", "error in TIME file!"},
    {"one period only", 'T', [](auto& t) { return t.substr(0, t.find("    Y11")) + "ENDATA\n"; }, bad, "time",
     "error in TIME file!"},
    {"stage name not found", 'T', rep("Y11 ", "Y99 "), InputStatus::name_not_found,
     "decompose", "ERROR: name not found = Y99"},
    {"stage-2 column before stage-1", 'T', [](auto& t) { return replaced(replaced(t, "X1 ", "Y1_"), "Y11", "X1 "); },
     InputStatus::name_not_found, "decompose", "ERROR: name not found = Y1_"},
    {"stage-1 row dropped", 'T', rep("MINCAP", "BUDGET"), InputStatus::not_staircase,
     "decompose", "ERROR: matrix not in staircase form!"},
    {"empty stochastic file", 'S', whole(std::string()), bad, "prescan", "file ends... no endata found!"},
    {"no ENDATA", 'S', rep("ENDATA", "*"), bad, "prescan", "no endata found!"},
    {"not DISCRETE", 'S', rep("DISCRETE", "NORMAL"), InputStatus::unsupported,
     "prescan", "Option P        NORMAL   not supported!\n program terminated."},
    {"unknown section", 'S', rep("INDEP ", "OTHER "), bad, "prescan", "error(s) in stoch file!"},
    {"BLOCKS then INDEP", 'S', [](auto&) { return replaced(blocks(bl("1.0") + rec("", "RIGHT", "DEMAND1", "3")), "ENDATA",
                                                            "INDEP         DISCRETE\nENDATA"); },
     bad, "prescan", "error(s) in stoch file!"},
    {"last block without entries", 'S', whole(blocks(bl("1.0"))), bad, "prescan", "error(s) in stoch file!"},
    {"probabilities not summing to 1", 'S', rep("PERIOD2   0.3\nENDATA", "PERIOD2   0.2\nENDATA"),
     ok, "", "", [](const Model& m) { EXPECT_EQ(std::vector<double>(m.store.probs.begin() + 1, m.store.probs.end()),
                                                (std::vector<double>{0.3, 0.4, 0.2})); }},
    {"no random data", 'S', whole(std::string("STOCH\nENDATA\n")), ok, "", "universe scenarios           :   1.",
     [](const Model& m) { EXPECT_EQ(m.store.count, 0); EXPECT_EQ(m.store.total_outcomes, 0); }},
    {"a parameter ends where its row changes", 'S',
     [](auto&) { return indep(rec("", "RIGHT", "DEMAND1", "3", "P", ".5") + rec("", "RIGHT", "DEMAND1", "5", "P", ".5") +
                              rec("", "RIGHT", "DEMAND2", "4", "P", "1")); },
     ok, "", "", [](const Model& m) { EXPECT_EQ(m.store.nsoc[1], 2); EXPECT_EQ(m.store.nsoc[2], 1); EXPECT_EQ(m.store.universe, 2.0); }},
    {"random first-stage row", 'S', whole(indep(rec("", "RIGHT", "MINCAP", "3", "P", "1"))), bad, "stoch",
     "ERROR in .sto: stochastic value in master row. col/row = RIGHT    / MINCAP"},
    {"random objective constant", 'S', whole(indep(rec("", "RIGHT", "OBJ", "3", "P", "1"))), bad, "stoch",
     "ERROR in .sto: stochastic RHS for objective, row  OBJ"},
    {"random master cost", 'S', whole(indep(rec("", "X1", "OBJ", "3", "P", "1"))), bad, "stoch",
     "ERROR in .sto: stochastic obj in master col. col/row = X1       / OBJ"},
    {"random master bound", 'S', whole(indep(rec(" UP", "BND", "X1", "3", "P", "1"))), bad, "stoch",
     "ERROR in .sto: stochastic bound in master, col  X1"},
    {"invalid bound type", 'S', whole(indep(rec(" MI", "BND", "Y11", "3", "P", "1"))), bad, "stoch",
     "ERROR in .sto: invalid bound type (MI) for col  Y11"},
    {"random bound", 'S', whole(indep(rec(" up", "BND", "Y11", "3", "P", "1"))), ok, "", "",
     [](const Model& m) { EXPECT_EQ(m.store.kind[1], -11); EXPECT_TRUE(m.store.bound_random); }},
    {"absent D element", 'S', whole(indep(rec("", "Y11", "DEMAND2", "3", "P", "1"))), bad, "stoch",
     "ERROR in .sto: no nonzero found (in D matrix) for col/row  ( Y11      , DEMAND2  )"},
    {"absent B element", 'S', whole(indep(rec("", "X1", "DEMAND1", "3", "P", "1"))), bad, "stoch",
     "no nonzero found (in B matrix)"},
    {"unknown column, zero, INDEP", 'S', whole(indep(rec("", "Z9", "DEMAND1", "0", "P", "1"))), bad,
     "stoch", "ERROR in .sto: col not found  Z9"},
    {"unknown column, zero, block", 'S',
     whole(blocks(bl("1") + rec("", "RIGHT", "DEMAND1", "3") + rec("", "Z9", "DEMAND1", "0"))), ok, "", "",
     [](const Model& m) { EXPECT_EQ(m.store.nse[1], 1); }},
    {"later realization adds an entry", 'S',
     whole(blocks(bl(".5") + rec("", "RIGHT", "DEMAND1", "3") + bl(".5") + rec("", "RIGHT", "DEMAND2", "4"))),
     bad, "stoch", "RIGHT   DEMAND2  was not matched in first realization of block"},
    {"later realization lists fewer entries", 'S',
     [](auto&) {
       return blocks(bl(".5") + rec("", "RIGHT", "DEMAND1", "3") + rec("", "RIGHT", "DEMAND2", "4") + bl(".5") +
                     rec("", "RIGHT", "DEMAND2", "6"));
     },
     ok, "", "", [](const Model& m) {
       EXPECT_EQ(std::vector<double>(m.store.values.begin() + 1, m.store.values.begin() + 5),
                 (std::vector<double>{3, 4, 3, 6}));
     }},
    {"scenarios take their parent's values or the core's", 'S',
     whole(scenarios(sc("S1", "'ROOT'", ".3", "PERIOD1") + rec("", "RIGHT", "DEMAND1", "3") +
                     sc("S2", "S1", ".4") + rec("", "RIGHT", "DEMAND2", "4") + sc("S3", "'ROOT'", ".3"))),
     ok, "", "", [](const Model& m) {
       EXPECT_EQ(m.store.count, 1);
       EXPECT_EQ(m.store.nse[1], 2);
       EXPECT_EQ(std::vector<double>(m.store.values.begin() + 1, m.store.values.begin() + 7),
                 (std::vector<double>{3, 3, 3, 4, 1, 3}));
       EXPECT_EQ(std::vector<double>(m.store.probs.begin() + 1, m.store.probs.begin() + 4),
                 (std::vector<double>{.3, .4, .3}));
     }},
    {"scenario parent not above it", 'S', whole(scenarios(sc("S1", "S9", "1") + rec("", "RIGHT", "DEMAND1", "3"))),
     bad, "stoch", "ERROR in .sto: line 3: parent S9 of scenario S1 is no scenario above it"},
    {"multistage scenarios", 'S',
     whole(scenarios(sc("S1", "'ROOT'", ".5", "PERIOD1") + rec("", "RIGHT", "DEMAND1", "3") + sc("S2", "S1", ".5", "PERIOD3"))),
     bad, "stoch", "ERROR in .sto: line 5: scenario S2 in period PERIOD3 makes a multistage tree"},
    {"scenarios after INDEP", 'S', rep("ENDATA", "SCENARIOS     DISCRETE\nENDATA"), bad, "prescan",
     "ERROR in .sto: line 6: SCENARIOS cannot be mixed with INDEP or BLOCKS sections"},
    {"unknown card after SCENARIOS", 'S',
     whole(scenarios(sc("S1", "'ROOT'", "1", "PERIOD1") + rec("", "RIGHT", "DEMAND1", "3") + "DISTRIB\n")), bad,
     "prescan", "error(s) in stoch file!", nullptr, "cannot be mixed"},
    {"first stage without rows", 'T', rep("OPLIM1", "MINCAP"), ok, "", "",
     [](const Model& m) { EXPECT_EQ(m.dec.m1, 1); EXPECT_EQ(m.dec.m2, m.core.m); EXPECT_EQ(m.master.ne, 4 + 4 * 100 + 101); }},
    {"bad number in the stochastic file", 'S', rep("3.0 ", "3.x "), bad, "stoch",
     "ERROR in .sto: bad number in line  3"},
};

TEST(BadInput, EachFaultHasItsMessageAndStatus) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.name);
    TempDir dir("bad");
    for (const char* file : {"MODEL.COR", "MODEL.TIM", "MODEL.STO"}) {
      const std::string text = read_file(example_file("lands3", file));
      if (c.file == '-' && file[6] == 'T') continue;
      dir.write(file, c.file == file[6] ? c.edit(text) : text);
    }
    Model model;
    open_unit(model.units, 17, dir.file("log"), OpenStatus::unknown);
    load_model(model, dir.path.string(), {17, 17}, 17);
    close_unit(model.units, 17);
    const std::string log = read_file(dir.file("log"));
    EXPECT_EQ(model.status, c.status) << log;
    EXPECT_EQ(model.failed_step, c.step) << log;
    EXPECT_NE(log.find(c.message), std::string::npos) << log;
    if (c.check) c.check(model);
    if (c.absent) {
      EXPECT_EQ(log.find(c.absent), std::string::npos) << log;
    }
  }
}

}  // namespace
}  // namespace tarvo::input::testing
