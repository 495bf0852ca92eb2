#include "input/name_hash.h"

#include <algorithm>
#include <cstdlib>

namespace tarvo::input {

namespace {

// The hash key of a name: the distance of the magnitudes of its two words (64-bit, so that a
// word of -2^31 from stray bytes cannot overflow).
long long name_distance(const lp::Name8& name) {
  const long long k1 = lp::name_word(name, 0);
  const long long k2 = lp::name_word(name, 1);
  return std::llabs(std::llabs(k1) - std::llabs(k2));
}

int probe_step(long long distance, int length) {
  return static_cast<int>(distance % (length - 2)) + 1;
}

int first_probe(long long distance, int length) {
  return static_cast<int>(distance % length) + 1;
}

int next_probe(int position, int step, int length) {
  position += step;
  return position > length ? position - length : position;
}

bool has_odd_divisor_up_to(long long value, long long bound) {
  for (long long d = 3; d <= bound; d += 2) {
    if (value % d == 0) return true;
  }
  return false;
}

struct BrentMove {
  int from = 0;  // slot to vacate (becomes the new name's position)
  int to = 0;    // empty slot the resident row moves to
};

// Brent's reordering: finds the cheapest move of a resident row on the new name's chain to an
// empty slot on its own chain, cheaper than the `occupied` probes the new name would need.
BrentMove cheapest_move(const NameHash& hash, const std::vector<lp::Name8>& row_names, int first,
                        int step, int occupied) {
  BrentMove move;
  int budget = occupied - 1;
  int q = first;
  for (int i = 0; i < budget; ++i) {
    const int resident = hash.table[q];
    const int own_step = probe_step(name_distance(row_names[resident]), hash.length);
    int probe = q;
    for (int t = 1; t <= budget - i; ++t) {
      probe = next_probe(probe, own_step, hash.length);
      if (hash.table[probe] == 0) {
        budget = i + t - 1;
        move = {q, probe};
        break;
      }
    }
    q = next_probe(q, step, hash.length);
  }
  return move;
}

}  // namespace

int hash_table_length(int mrows) {
  long long length = std::max(2LL * std::max(mrows, 0), 100LL) - 1;
  long long bound = length / 20 + 6;
  do {
    ++bound;
    length += 2;
  } while (has_odd_divisor_up_to(length, bound));
  return static_cast<int>(length);
}

void reset_name_hash(NameHash& hash, int mrows) {
  hash.length = hash_table_length(mrows);
  hash.table.assign(static_cast<std::size_t>(hash.length) + 1, 0);
  hash.collisions = 0;
}

HashProbe hash_lookup(NameHash& hash, const std::vector<lp::Name8>& row_names,
                      const lp::Name8& name, int mode) {
  const int length = hash.length;
  if (length < 3) return {};
  const long long distance = name_distance(name);
  const int step = probe_step(distance, length);
  const int first = first_probe(distance, length);

  int occupied = 0;
  int empty = 0;
  int position = first;
  do {
    const int row = hash.table[position];
    if (row == 0) {
      empty = position;
      break;
    }
    if (row_names[row] == name) return {position, row, true};
    ++occupied;
    ++hash.collisions;
    position = next_probe(position, step, length);
  } while (position != first);

  if (mode != kHashInsert || empty == 0 || occupied - 1 > length - 2) return {};
  if (occupied <= 1) return {empty, 0, false};

  const BrentMove move = cheapest_move(hash, row_names, first, step, occupied);
  if (move.from == 0) return {empty, 0, false};
  hash.table[move.to] = hash.table[move.from];
  return {move.from, 0, false};
}

}  // namespace tarvo::input
