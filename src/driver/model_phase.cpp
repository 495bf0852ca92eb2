#include "driver/model_phase.h"

#include "common/free_format.h"
#include "driver/banner.h"
#include "input/core_file.h"
#include "input/decompose.h"
#include "input/stoch_file.h"
#include "input/time_file.h"

namespace tarvo::driver {
namespace {

constexpr int kTimeUnit = 32;
constexpr int kDumpUnit = 27;
constexpr int kDebugListingLevel = 8;
constexpr int kSplitDumpLevel = 6;

input::MessageUnits message_units(const RunState& run) {
  return input::MessageUnits{run.log_unit, kErrorUnit};
}

void echo_store_sizes(RunState& run) {
  Units& u = run.units;
  const int log = run.log_unit;
  write_free(u, log, "stoch array sizes:");
  write_free(u, log, "jele:  ", run.store.jele);
  write_free(u, log, "jsum:  ", run.store.jsum);
  write_free(u, log, "itoc:  ", run.store.itoc);
  write_free(u, log, "itele: ", run.store.itele);
  write_free(u, log);
}

}  // namespace

bool prescan_model(RunState& run) {
  Units& u = run.units;
  int debug_unit = 0;
  if (run.params.ibug >= kDebugListingLevel) {
    open_unit(u, kSprUnit, "MODEL.SPR", OpenStatus::unknown);
    write_short_banner(u, kSprUnit);
    debug_unit = kSprUnit;
  }
  if (!open_unit(u, kStochUnit, "MODEL.STO", OpenStatus::old_file)) {
    write_free(u, kErrorUnit, "ERROR in file MODEL.STO");
    return false;
  }
  const input::InputStatus status =
      input::prescan_stoch_file(u, kStochUnit, debug_unit, message_units(run), run.store);
  close_unit(u, kStochUnit);
  if (input::failed(status)) return false;
  echo_store_sizes(run);
  if (debug_unit != 0) close_unit(u, debug_unit);
  return true;
}

bool read_model(RunState& run) {
  Units& u = run.units;
  const input::MessageUnits to = message_units(run);
  lp::Optimizer& opt = run.optimizer;
  if (input::failed(input::read_time_file(u, "MODEL.TIM", kTimeUnit, 0, to, run.stage_names))) {
    return false;
  }
  lp::ProblemSlot& core = opt.slot[lp::kCoreSlot];
  // The reader writes to the optimizer's print and summary files; faults also to MODEL.ERR.
  if (input::failed(input::read_core_problem(core, opt.options, u, opt.options.ival[lp::kPrintFile],
                                             opt.options.ival[lp::kSummaryFile], to,
                                             run.params.iwrite, run.core_read))) {
    return false;
  }
  const input::MpsNames& names = run.core_read.names;
  opt.names = {names.problem, names.objective, names.rhs, names.ranges, names.bounds};
  input::allocate_decomposition(run.model, core);
  input::allocate_outcome_store(run.store);
  if (input::failed(input::decompose(core, run.stage_names, run.params.nzrows,
                                     opt.slot[lp::kMasterSlot], opt.slot[lp::kSubproblemSlot],
                                     run.model, u, to))) {
    return false;
  }
  if (run.params.iwrite >= kSplitDumpLevel) {
    input::dump_split_problems(opt.slot[lp::kMasterSlot], opt.slot[lp::kSubproblemSlot], names, u,
                               kDumpUnit);
  }
  const input::StochContext context{opt.slot[lp::kMasterSlot], opt.slot[lp::kSubproblemSlot],
                                    run.model, names.rhs};
  return !input::failed(
      input::read_stoch_file(u, "MODEL.STO", kStochUnit, 0, to, context, run.store));
}

}  // namespace tarvo::driver
