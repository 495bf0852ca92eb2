#include "driver/status_file.h"

#include <vector>

#include "common/free_format.h"
#include "common/record_format.h"
#include "driver/solution_report.h"

namespace tarvo::driver {
namespace {

constexpr const char* kRecord = "(1x,i7,1x,a8,2(1x,1pe20.12),2(1x,i1))";
constexpr int kSubproblemCode = 3;

// The optimizer's basis state as a modelling system reads it: basic and superbasic swap codes.
int basis_code(int hs) {
  if (hs == lp::kSuperbasic) return lp::kBasic;
  if (hs == lp::kBasic) return lp::kSuperbasic;
  return hs;
}

void write_item(Units& u, int number, const lp::Name8& name, double value, double marginal,
                int code, double tolw) {
  write_record(u, kStatusUnit, kRecord,
               {static_cast<long long>(number), lp::name_view(name), shown(value, tolw),
                shown(marginal, tolw), static_cast<long long>(code), 0LL});
}

void write_master_records(RunState& run, bool rows) {
  const lp::ProblemSlot& master = run.optimizer.slot[lp::kMasterSlot];
  const benders::SolveState& st = run.solve;
  const double tolw = run.params.tolw;
  if (!rows) {
    // The first-stage columns, then the THETA of every cut group (not THETA itself).
    const int theta = run.model.n1 + 1;
    for (int j = 1; j <= master.n; ++j) {
      if (j == theta) continue;
      write_item(run.units, j, master.names[j], st.master_primal[j], st.master_duals[master.m + j],
                 basis_code(master.hs[j]), tolw);
    }
    return;
  }
  const std::vector<double> activity = row_activities(master, st.master_primal.data());
  for (int i = 1; i <= run.model.m1; ++i) {
    write_item(run.units, i, master.names[master.n + i], activity[i], st.master_duals[i],
               basis_code(master.hs[master.n + i]), tolw);
  }
}

// The subproblem's expected solution as the final re-evaluation collected it.
void write_subproblem_records(RunState& run, bool rows) {
  const lp::ProblemSlot& sub = run.optimizer.slot[lp::kSubproblemSlot];
  const sampling::Evaluation& ev = run.evaluation;
  const double tolw = run.params.tolw;
  const int n2 = run.model.n2;
  const int m2 = run.model.m2;
  if (ev.acc_primal.empty()) return;
  if (!rows) {
    for (int j = 1; j <= n2; ++j) {
      write_item(run.units, j, sub.names[j], ev.acc_primal[j], ev.acc_duals[m2 + j],
                 kSubproblemCode, tolw);
    }
    return;
  }
  for (int i = 1; i <= m2; ++i) {
    // The logical carries minus the row activity.
    write_item(run.units, i, sub.names[n2 + i], -ev.acc_primal[n2 + i], ev.acc_duals[i],
               kSubproblemCode, tolw);
  }
}

}  // namespace

void write_status_file(RunState& run) {
  Units& u = run.units;
  if (!open_unit(u, kStatusUnit, "MODEL.SOG", OpenStatus::unknown)) return;
  write_free(u, kStatusUnit, "status  = ", run.model_status);
  write_free(u, kStatusUnit, "solsta  = ", run.solver_status);
  write_free(u, kStatusUnit, "itusd  = ", run.solve.iterations);
  write_free(u, kStatusUnit, "resusd = ", run.clock.execution);
  write_free(u, kStatusUnit, "objval  = ", run.solve.master_objective);
  write_free(u, kStatusUnit, "domerr  = ", "0");
  if (run.solve_ready) {
    write_master_records(run, false);
    write_subproblem_records(run, false);
    write_master_records(run, true);
    write_subproblem_records(run, true);
  }
  close_unit(u, kStatusUnit);
}

}  // namespace tarvo::driver
