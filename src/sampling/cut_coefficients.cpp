#include "common/free_format.h"
#include "sampling/coupling.h"
#include "sampling/cut.h"

namespace tarvo::sampling {

void clear_cut(Evaluation& ev) {
  ev.cut.objs = 0.0;
  ev.cut.gls = 0.0;
  ev.cut.variance = 0.0;
  for (int j = 1; j <= ev.n1 + 1; ++j) ev.cut.gus[j] = 0.0;
}

void close_cut(const Context& ctx, Evaluation& ev) {
  ev.cut.gls = ev.cut.objs + first_stage_dot(ev.cut.gus, ctx.master_primal, ev.n1);
  ev.cut.gus[ev.n1 + 1] = 1.0;
}

void feascut(const Context& ctx, Evaluation& ev, double z, const double* u) {
  for (int j = 1; j <= ev.n1; ++j) ev.cut.gus[j] = -u[j];
  ev.cut.gls = z + first_stage_dot(ev.cut.gus, ctx.master_primal, ev.n1);
  ev.cut.gus[ev.n1 + 1] = 0.0;
  ev.cut.objs = kInfiniteCost;
  write_free(ctx.units, ctx.log_unit, "infez obj: ", z);
}

void write_cut_trace(const Context& ctx, const Evaluation& ev) {
  write_free(ctx.units, ctx.log_unit, " objs: ", ev.cut.objs);
  write_free(ctx.units, ctx.log_unit, " cut: ");
  write_free(ctx.units, ctx.log_unit, " gls: ", ev.cut.gls);
  for (int j = 1; j <= ev.n1 + 1; ++j) write_free(ctx.units, ctx.log_unit, "gus(", j, "): ", ev.cut.gus[j]);
}

}  // namespace tarvo::sampling
