#pragma once
// Names to numbers and back, after the hash table of the MPS reader: the cursor search over a
// name list, the lookups of rows, columns and matrix entries in a loaded slot, and the default
// names of a slot that holds none.
#include <vector>

#include "common/units.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

// Returned by the model-level lookups for a name or entry that does not exist.
inline constexpr int kNotFound = -13;

struct NameCursor {
  int cursor = 0;  // position of the last hit; a search starts there
  int errors = 0;  // searches that failed
};

// Searches names[first..last], from the cursor to last and then from first; a hit moves the
// cursor there and returns its position. A miss resets the cursor to first, counts one error and
// returns 0.
int cursor_search(const std::vector<lp::Name8>& names, int first, int last, const lp::Name8& name,
                  NameCursor& cursor);

// The same, printing " XXX  Line ... --  name not found:" on the print file for the first
// `message_limit` misses.
int cursor_search_reported(const std::vector<lp::Name8>& names, int first, int last,
                           const lp::Name8& name, NameCursor& cursor, Units& units,
                           int print_unit, int line_number, int message_limit);

// Column j (first <= j <= n) or row i (first <= i <= m) of the slot with that name, or kNotFound.
int find_column(const lp::ProblemSlot& slot, const lp::Name8& name, int first = 1);
int find_row(const lp::ProblemSlot& slot, const lp::Name8& name, int first = 1);

// Which names staged_lookup searches.
enum class NameKind { row, column };

// Looks a row or column name up in the master (where = 1), the subproblem (where = 2) or the
// subproblem and then the master (where = 0). On success `where` becomes the slot that holds the
// name; on failure kNotFound is returned and a `where` of 0 becomes kNotFound.
int staged_lookup(const lp::ProblemSlot& master, const lp::ProblemSlot& sub, NameKind kind,
                  const lp::Name8& name, int& where);

// Position in a/ha of the stored entry of column j in row i (i = -1: the objective row), or
// kNotFound.
int matrix_entry(const lp::ProblemSlot& slot, int j, int i);

// "x......7" for column 7, "r.....12" for row 12 (variable n + 12).
lp::Name8 default_name(const lp::ProblemSlot& slot, int j);

// False when every stored name of the slot is blank.
bool slot_has_names(const lp::ProblemSlot& slot);

}  // namespace tarvo::input
