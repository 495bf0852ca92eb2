#pragma once
// Sparse lines (the rows or the columns of a factor) that grow in place. Each line owns a run of
// slots in shared index/value arrays; a line that outgrows its run moves to the free end, and
// compression packs the lines again to reclaim the holes that moves leave behind.
#include <algorithm>
#include <vector>

namespace tarvo::lp {

struct SparseLines {
  int lines = 0;
  int used = 0;              // slots [0, used) are owned by lines or are holes
  bool with_values = true;   // false: a pattern only, value stays empty
  std::vector<int> start;    // per line: first slot of its run
  std::vector<int> length;   // per line: entries in use
  std::vector<int> room;     // per line: slots in its run
  std::vector<int> index;    // capacity = index.size()
  std::vector<double> value;
  std::vector<int> by_start;  // work for compression
};

// Sizes for `lines` empty lines and at least `capacity` slots; arrays only ever grow.
void lines_reset(SparseLines& s, int lines, int capacity, bool with_values);
// Gives every line a run of room_needed[k] + slack slots, back to back, growing if needed.
void lines_layout(SparseLines& s, const int* room_needed, int slack);
int lines_capacity(const SparseLines& s);
int lines_free(const SparseLines& s);
// Slots a line of this length claims when it must move to take one more entry.
int lines_moved_room(int length);
// Appends an entry; moves the line to the free end when its run is full, compressing when the end
// is full too. Returns false (nothing changed) when there is still no room.
bool lines_append(SparseLines& s, int line, int index, double value);
// As lines_append, but doubles the capacity instead of failing.
void lines_append_growing(SparseLines& s, int line, int index, double value);
// Slot of `index` within the line, or -1.
int lines_find(const SparseLines& s, int line, int index);
// Removes the entry in `slot` of the line by moving the line's last entry there.
void lines_erase_slot(SparseLines& s, int line, int slot);
// Packs all runs to the front in their present order.
void lines_compress(SparseLines& s);

// Makes room for at least n elements, doubling the capacity so that repeated growth is cheap
// and a run of slightly larger requests stops allocating after the first.
template <typename T>
void reserve_to(std::vector<T>& v, std::size_t n) {
  if (n > v.capacity()) v.reserve(std::max(n, 2 * v.capacity()));
}

// Grows a vector to at least n elements, with the capacity doubling of reserve_to.
template <typename T>
void grow_to(std::vector<T>& v, std::size_t n) {
  reserve_to(v, n);
  if (n > v.size()) v.resize(n);
}

}  // namespace tarvo::lp
