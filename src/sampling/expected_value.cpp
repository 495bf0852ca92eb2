#include <algorithm>

#include "common/free_format.h"
#include "sampling/coupling.h"
#include "sampling/cut.h"
#include "sampling/strategies.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

void copy_solution(Evaluation& ev) {
  const int size = ev.n2 + ev.m2;
  std::copy(ev.primal.begin() + 1, ev.primal.begin() + 1 + size, ev.acc_primal.begin() + 1);
  std::copy(ev.duals.begin() + 1, ev.duals.begin() + 1 + size, ev.acc_duals.begin() + 1);
}

}  // namespace

int evalev(const Context& ctx, Evaluation& ev, int& startflag) {
  for (int e = 1; e <= ev.nentries; ++e) ev.current[e] = ctx.store.expected[e];
  int status = 0;
  if (subsolve(ctx, ev, startflag, status) != kOk) return kErrorExit;
  dual_product(ctx, ev, ev.duals, ev.u);
  if (status == 1) {
    write_free(ctx.units, ctx.log_unit, "SUB INFEASIBLE");
    feascut(ctx, ev, ev.z, ev.u.data());
    return kOk;
  }
  write_free(ctx.units, ctx.log_unit, "SUB OBJ:", ev.z);
  ev.cut.objs = ev.z;
  for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] = -ev.u[j];
  close_cut(ctx, ev);
  if (ev.collect == 1) copy_solution(ev);
  return kOk;
}

}  // namespace tarvo::sampling
