#include "sampling/sample_tables.h"

#include <string>

#include "common/free_format.h"
#include "sampling/draw.h"

namespace tarvo::sampling {

double row_probability(const Context& ctx, const Evaluation& ev, int k) {
  double p = 1.0;
  for (int b = 1; b <= ev.nblocks; ++b) {
    p *= ctx.store.probs[ctx.store.prob_start[b] + table_entry(ev, k, b) - 1];
  }
  return p;
}

double universe_points(const input::OutcomeStore& store) {
  double points = 1.0;
  for (int b = 1; b <= store.count; ++b) points *= store.nsoc[b];
  return points;
}

void write_table_rows(const Context& ctx, const Evaluation& ev, int rows) {
  for (int k = 1; k <= rows; ++k) {
    std::string line = free_line("itab");
    for (int b = 1; b <= ev.nblocks; ++b) append_free(line, static_cast<long long>(table_entry(ev, k, b)));
    write_line(ctx.units, ctx.log_unit, line);
  }
}

void sampcmc(const Context& ctx, Evaluation& ev) {
  for (int k = 1; k <= ev.nsamples; ++k) {
    drawindex(ev, ctx.store, ctx.store.probs);
    for (int b = 1; b <= ev.nblocks; ++b) table_entry(ev, k, b) = ev.index[b];
  }
  if (ctx.params.ibug >= 11) write_table_rows(ctx, ev, ev.nsamples);
}

int univtab(const Context& ctx, Evaluation& ev) {
  const double points = universe_points(ctx.store);
  if (points > ev.capacity) {
    write_free(ctx.units, ctx.err_unit, "error: universe of ", points, " scenarios not enumerable");
    return kErrorExit;
  }
  const int n = static_cast<int>(points);
  long long after = 1;  // product of the outcome counts of the blocks after b
  for (int b = ev.nblocks; b >= 1; --b) {
    const long long span = after * ctx.store.nsoc[b];
    for (int k = 1; k <= n; ++k) table_entry(ev, k, b) = 1 + static_cast<int>(((k - 1) % span) / after);
    after = span;
  }
  ev.nsamples = n;
  return kOk;
}

int marginal_row(const input::OutcomeStore& store, int b, int i) {
  int row = 1;
  for (int c = 1; c < b; ++c) row += store.nsoc[c] - 1;
  return row + i - 1;
}

void margtab(const Context& ctx, Evaluation& ev, int mode) {
  const bool highest = mode == 2;
  if (ctx.params.ibug >= 11) write_free(ctx.units, ctx.log_unit, highest ? "highest costs" : "lowest costs");
  const auto base = [&](int b) { return highest ? ctx.store.nsoc[b] : 1; };
  for (int b = 1; b <= ev.nblocks; ++b) table_entry(ev, 1, b) = base(b);
  int row = 1;
  for (int b = 1; b <= ev.nblocks; ++b) {
    for (int i = 1; i <= ctx.store.nsoc[b]; ++i) {
      if (i == base(b)) continue;
      ++row;
      for (int c = 1; c <= ev.nblocks; ++c) table_entry(ev, row, c) = c == b ? i : base(c);
    }
  }
  ev.nmarg = row;
}

}  // namespace tarvo::sampling
