#include <algorithm>

#include "common/free_format.h"
#include "sampling/coupling.h"
#include "sampling/cut.h"
#include "sampling/strategies.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

void copy_solution(Evaluation& ev, const SolveWork& work) {
  const int size = ev.n2 + ev.m2;
  std::copy(work.primal.begin() + 1, work.primal.begin() + 1 + size, ev.acc_primal.begin() + 1);
  std::copy(work.duals.begin() + 1, work.duals.begin() + 1 + size, ev.acc_duals.begin() + 1);
}

}  // namespace

int evalev(const Context& ctx, Evaluation& ev, int& startflag) {
  SolveWork& work = ev.chains[0].work;
  for (int e = 1; e <= ev.nentries; ++e) work.current[e] = ctx.store.expected[e];
  int status = 0;
  if (subsolve(ctx, ev, startflag, status) != kOk) return kErrorExit;
  dual_product(ctx, ev, work);
  if (status == 1) {
    write_free(ctx.units, ctx.log_unit, "SUB INFEASIBLE");
    feascut(ctx, ev, work.z, work.u.data());
    return kOk;
  }
  write_free(ctx.units, ctx.log_unit, "SUB OBJ:", work.z);
  ev.cut.objs = work.z;
  for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] = -work.u[j];
  close_cut(ctx, ev);
  if (ev.collect == 1) copy_solution(ev, work);
  return kOk;
}

}  // namespace tarvo::sampling
