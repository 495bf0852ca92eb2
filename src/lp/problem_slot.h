#pragma once
// The three problem slots of the optimizer and the 8-character names of rows and columns.
//
// A slot holds one LP in the layout every subsystem writes into directly: a column-major sparse
// matrix whose row 1 (normally) is the objective row, bounds on the n columns followed by one
// logical per row, and the solution the last solve left. A row's limits lo <= a.x <= up are held
// as its logical's bounds [-up, -lo]. All arrays are 1-based (element 0 unused) and sized once
// from the slot's capacities.
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::lp {

inline constexpr int kMasterSlot = 1;
inline constexpr int kSubproblemSlot = 2;
inline constexpr int kCoreSlot = 3;

// 1.0E+20 as a single-precision literal widened to double: the optimizer's infinite bound.
inline constexpr double kInfiniteBound = 100000002004087734272.0;

// An 8-character, blank-padded name; compared exactly (case and blanks count).
struct Name8 {
  std::array<char, 8> c{' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
  friend bool operator==(const Name8&, const Name8&) = default;
};

// Pads with blanks or cuts to 8 characters.
inline Name8 make_name(std::string_view text) {
  Name8 name;
  for (std::size_t i = 0; i < 8 && i < text.size(); ++i) name.c[i] = text[i];
  return name;
}
inline std::string_view name_view(const Name8& name) { return {name.c.data(), 8}; }
// Characters 1-4 (half 0) or 5-8 (half 1).
inline std::string_view name_half(const Name8& name, int half) { return {name.c.data() + 4 * half, 4}; }
// The half as a signed 32-bit integer of its four bytes in little-endian order (for hashing).
inline std::int32_t name_word(const Name8& name, int half) {
  std::uint32_t w = 0;
  for (int i = 3; i >= 0; --i) w = (w << 8) | static_cast<unsigned char>(name.c[4 * half + i]);
  std::int32_t s;
  std::memcpy(&s, &w, sizeof s);
  return s;
}

// Row type codes kept per row by the MPS reader.
inline constexpr int kRowG = -1;
inline constexpr int kRowE = 0;
inline constexpr int kRowL = 1;
inline constexpr int kRowN = 2;

// Basis states in hs.
inline constexpr int kAtLower = 0;
inline constexpr int kAtUpper = 1;
inline constexpr int kSuperbasic = 2;
inline constexpr int kBasic = 3;

struct ProblemSlot {
  // Capacities, fixed when the optimizer is initialized.
  int mmax = 0;
  int nmax = 0;
  int nemax = 0;

  int m = 0;   // rows, objective row included
  int n = 0;   // columns
  int nb = 0;  // n + m
  int ne = 0;  // stored matrix elements
  int nncon = 0;
  int nnobj = 0;  // 0 linear objective, n quadratic (regularized master)
  int nnjac = 0;
  int iobj = 1;  // objective row
  double objadd = 0.0;

  // Outputs of the last solve.
  int mincor = 0;
  int ns = 0;
  int ninf = 0;
  double sinf = 0.0;
  double obj = 0.0;

  bool loaded = false;
  Name8 problem_name;
  // For a caller that rewrites some rows between solves and keeps the rest (cut rows): a matrix
  // changed that way keeps its column scales, the scales of the untouched rows and the pricing
  // weights of the basis; only the rewritten rows are scaled and weighed anew.
  bool rescale_changed_rows_only = false;

  std::vector<double> a;   // [1..ne] values, column by column
  std::vector<int> ha;     // [1..ne] row index of each value
  std::vector<int> ka;     // [1..n+1] column starts; ka[n+1] = ne + 1
  std::vector<double> bl;  // [1..nb] lower bounds: columns, then row logicals
  std::vector<double> bu;  // [1..nb] upper bounds
  std::vector<int> hs;     // [1..nb] basis states
  std::vector<double> xn;  // [1..nb] column values, then row activities
  std::vector<double> pi;  // [1..m] row duals
  std::vector<double> rc;  // [1..n] reduced costs
  std::vector<Name8> names;     // [1..nb] column names, then row names
  std::vector<int> row_type;    // [1..m] kRowG/E/L/N as read
  std::vector<int> reader_work; // [1..nmax] the MPS reader's own use
};

// Sizes every array of the slot from its capacities (zero-filled). Called once per slot.
void allocate_slot(ProblemSlot& slot, int mmax, int nmax, int nemax);

// Row limits from the logical's bounds and back.
inline double row_lower(const ProblemSlot& s, int i) { return -s.bu[s.n + i]; }
inline double row_upper(const ProblemSlot& s, int i) { return -s.bl[s.n + i]; }

}  // namespace tarvo::lp
