#pragma once
// The sample table itab: one row per sample point, one outcome index per block. Filled by crude
// Monte Carlo, with every combination of outcomes (the universe), or with the marginal rows of
// the additive approximation.
#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Outcome of block b in row k of the sample table.
inline int& table_entry(Evaluation& ev, int k, int b) { return ev.itab[(k - 1) * ev.nblocks + b]; }
inline int table_entry(const Evaluation& ev, int k, int b) {
  return ev.itab[(k - 1) * ev.nblocks + b];
}

// The scenario probability of row k, multiplied in block order from 1.0 as a solve forms it.
double row_probability(const Context& ctx, const Evaluation& ev, int k);

// Number of outcome combinations (a double: it overflows integers).
double universe_points(const input::OutcomeStore& store);

// Rows 1..N (N = the working sample size) drawn by crude Monte Carlo from the store's
// probabilities; with ibug >= 11 every row is listed.
void sampcmc(const Context& ctx, Evaluation& ev);

// Rows 1..N hold every combination, the last block varying fastest; sets N. Returns kErrorExit
// (with a message) when the table was not sized for the universe.
int univtab(const Context& ctx, Evaluation& ev);

// The marginal table (mode 1): row 1 the base case (outcome 1 everywhere), then for every block b
// and outcome i = 2..n_b the row with outcome i in block b and 1 elsewhere. Mode 2 builds the
// variant around the last outcome of every block. Sets ev.nmarg.
void margtab(const Context& ctx, Evaluation& ev, int mode);

// Row of block b's outcome i in the mode-1 marginal table.
int marginal_row(const input::OutcomeStore& store, int b, int i);

// Lists rows 1..rows as "itab" lines on the screen log.
void write_table_rows(const Context& ctx, const Evaluation& ev, int rows);

}  // namespace tarvo::sampling
