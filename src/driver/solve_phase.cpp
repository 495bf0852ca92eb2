#include "driver/solve_phase.h"

#include <cmath>

#include "benders/benders_loop.h"
#include "common/free_format.h"
#include "common/record_format.h"
#include "driver/run_params_reader.h"
#include "driver/solution_reader.h"
#include "driver/solution_report.h"
#include "input/decompose.h"
#include "input/stoch_file.h"
#include "sampling/cut_groups.h"
#include "sampling/draw.h"

namespace tarvo::driver {
namespace {

constexpr int kDebugListingLevel = 8;
// 1.65 as a single-precision literal, as the loop uses it for the upper end.
constexpr double kConfidenceFactor = 1.649999976158142;

const char* start_message(int istrat) {
  switch (istrat) {
    case 2: case 3: return "start benders w/ importance sampling";
    case 4: case 5: return "start benders universe solution";
    case 6: case 7: return "start benders w/ crude monte carlo";
    case 8: case 9: return "start benders w/ monte carlo presampling";
    default: return "start benders w/ control variable sampling";
  }
}

void list_expected_values(RunState& run) {
  const input::OutcomeStore& store = run.store;
  const int log = run.log_unit;
  write_free(run.units, log, " expected values:");
  for (int e = 1; e <= store.entries; ++e) {
    write_free(run.units, log, e, store.kind[e], store.location[e], store.expected[e]);
  }
  write_free(run.units, log);
}

void compute_expected_values(RunState& run) {
  sampling::expvals(run.evaluation, run.store);
  if (run.params.ibug >= 1) list_expected_values(run);
}

SolutionReport report_of(RunState& run, int strategy) {
  const benders::SolveState& st = run.solve;
  SolutionReport r;
  r.strategy = strategy;
  r.iterations = st.iterations;
  r.objective = st.master_objective;
  r.zsub = st.zsub;
  r.lower_end = st.lower_end;
  r.upper_end = st.upper_end;
  r.universe = run.store.universe;
  r.iseed = run.params.iseed;
  r.nsamples = run.evaluation.nsamples;
  r.tolben = run.params.tolben;
  r.tolw = run.params.tolw;
  r.first_stage_rows = run.model.m1;
  r.master = &run.optimizer.slot[lp::kMasterSlot];
  r.column_values = st.master_primal.data();
  r.duals = st.master_duals.data();
  return r;
}

// Work counts of the run, for a user comparing settings and for the benchmark table.
void write_run_statistics(RunState& run) {
  Units& u = run.units;
  const int log = run.log_unit;
  write_free(u, log, "run statistics:");
  write_free(u, log, "subproblem solves: ", run.evaluation.lp_solves);
  write_free(u, log, "subproblem pivots: ", run.evaluation.lp_pivots);
  write_free(u, log, "master solves:     ", run.solve.master_solves);
  write_free(u, log, "master pivots:     ", run.solve.master_pivots);
}

void write_run_summary(RunState& run) {
  const benders::SolveState& st = run.solve;
  write_record(run.units, kBaseUnit, "(i4, 1x, 5(1pe12.5, 1x))",
               {static_cast<long long>(st.iterations), st.master_objective, st.lower_end,
                st.upper_end, st.theta, st.zsub});
}

bool run_strategy(RunState& run, int s, int ireg) {
  const sampling::Context ctx = sampling_context(run);
  if (benders::benders_loop(ctx, run.evaluation, run.solve, s, ireg) != sampling::kOk) {
    return false;
  }
  write_solution_report(run.units, kSolutionUnit, report_of(run, s));
  return true;
}

// Cut groups of a normal run's master; a strategy without fixed points says that it ignores ncuts.
int cut_groups(RunState& run) {
  if (run.evaluation_run) return 1;
  if (run.params.ncuts != 1 && sampling::grouped_points(run.params, run.store) == 0.0) {
    write_free(run.units, run.log_unit,
               "ncuts ignored: the strategy draws new outcomes, one cut per iteration");
  }
  return sampling::cut_group_count(run.params, run.store);
}

}  // namespace

bool prepare_solve(RunState& run) {
  lp::ProblemSlot& master = run.optimizer.slot[lp::kMasterSlot];
  const int groups = cut_groups(run);
  const input::MessageUnits to{run.log_unit, run.message_unit};
  if (groups > 1 &&
      input::failed(input::add_cut_groups(master, run.model, groups, run.units, to))) {
    return false;
  }
  benders::allocate_solve_state(run.solve, master.m, master.n, run.model.m1, run.params.nzrows);
  if (groups > 1) benders::allocate_cut_groups(run.solve, master, run.model.n1 + 1, groups);
  run.solve_ready = true;
  if (sampling::allocate_evaluation(run.evaluation, sampling_context(run)) != sampling::kOk) {
    return false;
  }
  if (groups > 1) {
    const double points = sampling::grouped_points(run.params, run.store);
    sampling::allocate_cut_groups(run.evaluation, groups, static_cast<int>(points));
  }
  return true;
}

bool solve_stochastic_program(RunState& run) {
  Units& u = run.units;
  const int log = run.log_unit;
  const int istrat = run.params.istrat;
  if (run.params.ibug >= kDebugListingLevel) input::write_outcome_dump(run.store, u, log);
  clock_interval(run.clock, &run.clock.setup);
  compute_expected_values(run);
  run.solve.iterations = 0;
  if (istrat >= 1 && istrat <= 11 && istrat % 2 == 1) {
    write_free(u, log, "start deterministic benders (exp.values)");
    // The expected-value run is never regularized.
    if (!run_strategy(run, 1, 0)) return false;
  }
  if (istrat >= 2 && istrat <= 11) {
    write_free(u, log, start_message(istrat));
    if (!run_strategy(run, istrat, run.params.ireg)) return false;
  }
  write_run_summary(run);
  write_run_statistics(run);
  if (log != kConsoleUnit) close_unit(u, log);
  return true;
}

bool evaluate_solution_file(RunState& run) {
  Units& u = run.units;
  const int istrat = run.params.istrat;
  std::vector<double> x;
  open_unit(u, kSolutionInputUnit, run.request.solution_file, OpenStatus::unknown_input);
  read_solution(u, kSolutionInputUnit, run.log_unit, run.optimizer.slot[lp::kMasterSlot],
                run.model.n1, x);
  close_unit(u, kSolutionInputUnit);
  clock_interval(run.clock, &run.clock.setup);
  compute_expected_values(run);
  const sampling::Context ctx = sampling_context(run);
  if (benders::evaluate_given_solution(ctx, run.evaluation, run.solve, istrat, x) !=
      sampling::kOk) {
    return false;
  }
  benders::SolveState& st = run.solve;
  const double spread = sampled_strategy(istrat)
                            ? kConfidenceFactor * std::sqrt(run.evaluation.cut.variance)
                            : 0.0;
  st.lower_end = st.master_objective - spread;
  st.upper_end = st.master_objective + spread;
  write_solution_report(u, kSolutionUnit, report_of(run, istrat));
  return true;
}

}  // namespace tarvo::driver
