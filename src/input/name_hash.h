#pragma once
// The row-name hash table the MPS reader builds while reading ROWS: open addressing with double
// hashing on the two 4-character words of a name, and Brent's reordering on insertion so that
// later lookups stay short.
#include <vector>

#include "lp/problem_slot.h"

namespace tarvo::input {

struct NameHash {
  int length = 0;              // L, a prime at least twice the row capacity
  std::vector<int> table;      // [1..L] row numbers, 0 = empty
  long long collisions = 0;    // occupied, non-matching probes over all lookups
};

// L from the row capacity: the first candidate after max(2 mrows, 100) - 1 that has no odd
// divisor up to a bound that grows with each candidate.
int hash_table_length(int mrows);

// Sizes and empties the table for a slot with row capacity mrows.
void reset_name_hash(NameHash& hash, int mrows);

inline constexpr int kHashSearch = 1;
inline constexpr int kHashInsert = 2;

struct HashProbe {
  int position = 0;  // table position: of the match, or where to store a new row (0 = none)
  int row = 0;       // the matching row when found
  bool found = false;
};

// Looks `name` up among the rows whose names are row_names[1..]; with kHashInsert an absent name
// gets an insertion position (the caller stores its row number there). Position 0 when absent in
// search mode or when the whole probe chain is occupied.
HashProbe hash_lookup(NameHash& hash, const std::vector<lp::Name8>& row_names,
                      const lp::Name8& name, int mode);

}  // namespace tarvo::input
