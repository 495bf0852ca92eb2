#include "lp/lu_lines.h"

#include <algorithm>

namespace tarvo::lp {

namespace {

constexpr int kMinMovedRoom = 4;

void grow_capacity(SparseLines& s, int capacity) {
  grow_to(s.index, capacity);
  if (s.with_values) grow_to(s.value, capacity);
}

void move_to_end(SparseLines& s, int line, int new_room) {
  const int from = s.start[line];
  const int to = s.used;
  for (int k = 0; k < s.length[line]; ++k) {
    s.index[to + k] = s.index[from + k];
    if (s.with_values) s.value[to + k] = s.value[from + k];
  }
  s.start[line] = to;
  s.room[line] = new_room;
  s.used += new_room;
}

void push_in_room(SparseLines& s, int line, int index, double value) {
  const int slot = s.start[line] + s.length[line]++;
  s.index[slot] = index;
  if (s.with_values) s.value[slot] = value;
}

}  // namespace

void lines_reset(SparseLines& s, int lines, int capacity, bool with_values) {
  s.lines = lines;
  s.used = 0;
  s.with_values = with_values;
  grow_to(s.start, lines);
  grow_to(s.length, lines);
  grow_to(s.room, lines);
  grow_to(s.by_start, lines);
  std::fill_n(s.start.begin(), lines, 0);
  std::fill_n(s.length.begin(), lines, 0);
  std::fill_n(s.room.begin(), lines, 0);
  grow_capacity(s, std::max(capacity, 1));
}

void lines_layout(SparseLines& s, const int* room_needed, int slack) {
  long long total = 0;
  for (int k = 0; k < s.lines; ++k) total += room_needed[k] + slack;
  if (total > lines_capacity(s)) grow_capacity(s, static_cast<int>(total));
  int next = 0;
  for (int k = 0; k < s.lines; ++k) {
    s.start[k] = next;
    s.length[k] = 0;
    s.room[k] = room_needed[k] + slack;
    next += s.room[k];
  }
  s.used = next;
}

int lines_capacity(const SparseLines& s) { return static_cast<int>(s.index.size()); }

int lines_free(const SparseLines& s) { return lines_capacity(s) - s.used; }

int lines_moved_room(int length) { return std::max(kMinMovedRoom, 2 * length); }

bool lines_append(SparseLines& s, int line, int index, double value) {
  if (s.length[line] == s.room[line]) {
    const int new_room = lines_moved_room(s.length[line]);
    if (lines_free(s) < new_room) lines_compress(s);
    if (lines_free(s) < new_room) return false;
    move_to_end(s, line, new_room);
  }
  push_in_room(s, line, index, value);
  return true;
}

void lines_append_growing(SparseLines& s, int line, int index, double value) {
  if (lines_append(s, line, index, value)) return;
  grow_capacity(s, 2 * lines_capacity(s) + lines_moved_room(s.length[line]));
  lines_append(s, line, index, value);
}

int lines_find(const SparseLines& s, int line, int index) {
  const int begin = s.start[line];
  const int end = begin + s.length[line];
  for (int k = begin; k < end; ++k) {
    if (s.index[k] == index) return k;
  }
  return -1;
}

void lines_erase_slot(SparseLines& s, int line, int slot) {
  const int last = s.start[line] + --s.length[line];
  s.index[slot] = s.index[last];
  if (s.with_values) s.value[slot] = s.value[last];
}

void lines_compress(SparseLines& s) {
  // Runs are moved towards the front in order of their starts, so no run overwrites another.
  for (int k = 0; k < s.lines; ++k) s.by_start[k] = k;
  std::sort(s.by_start.begin(), s.by_start.begin() + s.lines,
            [&](int a, int b) { return s.start[a] < s.start[b]; });
  int next = 0;
  for (int k = 0; k < s.lines; ++k) {
    const int line = s.by_start[k];
    const int from = s.start[line];
    for (int j = 0; j < s.length[line]; ++j) {
      s.index[next + j] = s.index[from + j];
      if (s.with_values) s.value[next + j] = s.value[from + j];
    }
    s.start[line] = next;
    // Each line keeps a little room so the next append does not move it again at once.
    s.room[line] = std::min(s.room[line], s.length[line] + kMinMovedRoom);
    next += s.room[line];
  }
  s.used = next;
}

}  // namespace tarvo::lp
