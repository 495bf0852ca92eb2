#pragma once
// The two-stage model as the decomposition and the stochastic file leave it: stage boundaries,
// the negated coupling matrix B, the subproblem's base right-hand side, and the outcome store.
#include <vector>

#include "lp/problem_slot.h"

namespace tarvo::input {

// The four names of the time file, and the names of its two periods (blank when not given).
struct StageNames {
  lp::Name8 stage1_row;
  lp::Name8 stage2_row;
  lp::Name8 stage1_column;
  lp::Name8 stage2_column;
  lp::Name8 stage1_period;
  lp::Name8 stage2_period;
};

struct Decomposition {
  // Stage boundaries in the core (1-based core numbers).
  int j1 = 0, j2 = 0, i1 = 0, i2 = 0;
  int n1 = 0;  // master structural columns (THETA is column n1 + 1)
  int n2 = 0;  // subproblem columns
  int m1 = 0;  // master own rows, objective included (cut rows follow)
  int m2 = 0;  // subproblem rows, objective included
  int nzrows = 0;
  int groups = 0;  // cut groups with a THETA column each after THETA (0: the single cut)

  // Coupling matrix B, column-wise over master columns 1..n1 (+1 for THETA, empty): values are
  // the negated core coefficients, row k lines up with subproblem row k. 1-based.
  int b_rows = 0;
  int b_cols = 0;
  int b_nonzeros = 0;
  std::vector<int> kb;     // [1..n1+2] column starts; the entry after the last used is -1313
  std::vector<int> hb;     // [1..] row indices
  std::vector<double> b;   // [1..] values

  std::vector<double> h;   // [1..m2] base right-hand side of the subproblem rows

  // Counts kept for reports.
  int master_nonzeros = 0;  // without cut placeholders and THETA's entries
  int master_variables = 0;
  int sub_variables = 0;
};

// Random data. The file's "random parameters" k = 1..count are independent blocks: an INDEP
// entry is a block with one entry; a BLOCKS block has nse(k) entries that change together.
struct OutcomeStore {
  // Prescan sizes.
  int jele = 0;   // random parameters (blocks)
  int jsum = 0;   // total outcomes
  int itoc = 0;   // largest number of outcomes of one block
  int itele = 0;  // sum over blocks of outcomes x entries

  int count = 0;               // random parameters read
  int entries = 0;             // descriptors stored (sum of nse)
  std::vector<int> nsoc;       // [1..count] outcomes of block k
  std::vector<int> nse;        // [1..count] entries per outcome of block k
  std::vector<int> entry_start;   // [1..count+1] first entry (1-based) of block k
  std::vector<int> value_start;   // [1..count+1] first value of block k
  std::vector<int> prob_start;    // [1..count+1] first probability of block k
  // Entry e (0-based) of outcome o (0-based) of block k: values[value_start[k] + o * nse[k] + e];
  // its probability probs[prob_start[k] + o]; its descriptor kind/location[entry_start[k] + e].
  std::vector<int> kind;       // [1..entries] -1 objective, -2 rhs, -3 B element, -11/-12/-13
                               // upper/lower/fixed bound, i > 0 subproblem element in row i
  std::vector<int> location;   // [1..entries] element position, row or column (see kind)
  std::vector<double> values;  // [1..] outcome after outcome, nse(k) values each, block by block
  std::vector<double> probs;   // [1..] nsoc(k) probabilities per block
  std::vector<double> expected;  // [1..entries] sum over outcomes of probability x value

  bool matrix_random = false;
  bool bound_random = false;
  int total_outcomes = 0;
  double universe = 1.0;  // product of nsoc(k); a double since it overflows integers
};

}  // namespace tarvo::input
