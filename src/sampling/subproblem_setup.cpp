#include <string>

#include "common/free_format.h"
#include "sampling/coupling.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

constexpr int kRhs = -2;
constexpr int kCoupling = -3;
constexpr int kUpper = -11;
constexpr int kLower = -12;
constexpr int kFixed = -13;

void copy_base_data(const input::Decomposition& d, SolveWork& w) {
  for (int p = 1; p <= d.b_nonzeros; ++p) w.b_work[p] = d.b[p];
  for (int i = 1; i <= d.m2; ++i) w.rhs_work[i] = d.h[i];
}

// Zeroes the location that a parameter of this kind names; false for an unknown kind.
bool reset_location(lp::ProblemSlot& sub, SolveWork& w, int kind, int at) {
  if (kind >= -1) {
    sub.a[at] = 0.0;
  } else if (kind == kRhs) {
    w.rhs_work[at] = 0.0;
  } else if (kind == kCoupling) {
    w.b_work[at] = 0.0;
  } else if (kind == kUpper) {
    sub.bu[at] = 0.0;
  } else if (kind == kLower) {
    sub.bl[at] = 0.0;
  } else if (kind == kFixed) {
    sub.bl[at] = 0.0;
    sub.bu[at] = 0.0;
  } else {
    return false;
  }
  return true;
}

// Adds the value at the zeroed location, so that the outcome replaces the core value and two
// parameters at one location add up. C is held negated, hence the subtraction.
void apply_value(lp::ProblemSlot& sub, SolveWork& w, int kind, int at, double v) {
  if (kind >= -1) {
    sub.a[at] += v;
  } else if (kind == kRhs) {
    w.rhs_work[at] += v;
  } else if (kind == kCoupling) {
    w.b_work[at] -= v;
  } else if (kind == kUpper) {
    sub.bu[at] += v;
  } else if (kind == kLower) {
    sub.bl[at] += v;
  } else {
    sub.bl[at] += v;
    sub.bu[at] += v;
  }
}

void write_rhs_trace(const Context& ctx, const Evaluation& ev, const SolveWork& w) {
  write_free(ctx.units, ctx.log_unit, "     BV,      BVW,    B*X");
  for (int i = 1; i <= ev.m2; ++i) {
    write_free(ctx.units, ctx.log_unit, i, ctx.model.h[i], w.rhs_work[i], w.coupled[i]);
  }
}

// The row logical carries the negated activity; both finite limits go to -r, so a ranged or
// two-sided row becomes an equality.
void set_row_limits(lp::ProblemSlot& sub, const Evaluation& ev, const SolveWork& w) {
  for (int i = 1; i <= ev.m2; ++i) {
    const int logical = sub.n + i;
    if (sub.bl[logical] > -lp::kInfiniteBound) sub.bl[logical] = -w.coupled[i];
    if (sub.bu[logical] < lp::kInfiniteBound) sub.bu[logical] = -w.coupled[i];
  }
}

}  // namespace

bool apply_outcome(lp::ProblemSlot& sub, const input::Decomposition& model,
                   const input::OutcomeStore& store, int entries, SolveWork& work, int& bad_kind) {
  copy_base_data(model, work);
  for (int e = 1; e <= entries; ++e) {
    if (!reset_location(sub, work, store.kind[e], store.location[e])) {
      bad_kind = store.kind[e];
      return false;
    }
  }
  for (int e = 1; e <= entries; ++e) {
    apply_value(sub, work, store.kind[e], store.location[e], work.current[e]);
  }
  return true;
}

bool subsetup(const Context& ctx, const Evaluation& ev, SolveWork& work, lp::ProblemSlot& sub,
              int& bad_kind) {
  if (!apply_outcome(sub, ctx.model, ctx.store, ev.nentries, work, bad_kind)) return false;
  couple_proposal(ctx, ev, work, ctx.master_primal);
  if (ctx.params.ibug >= 7) write_rhs_trace(ctx, ev, work);
  for (int i = 1; i <= ev.m2; ++i) work.coupled[i] += work.rhs_work[i];
  set_row_limits(sub, ev, work);
  return true;
}

void write_bogus_kind(const Context& ctx, int kind) {
  write_free(ctx.units, ctx.log_unit, "bogus iiw value ", kind);
}

}  // namespace tarvo::sampling
