#include "input/mps_writer.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

// The unit of the model input's dumps; each dump opens and closes it.
constexpr int kDumpUnit = 27;

// The set names the optimizer holds for every slot: problem, objective, rhs, ranges, bounds.
input::MpsNames names_of(const lp::Optimizer& opt) {
  return input::MpsNames{.problem = opt.names[0], .objective = opt.names[1], .rhs = opt.names[2],
                         .ranges = opt.names[3], .bounds = opt.names[4]};
}

}  // namespace

void dump_slot(const Context& ctx, const lp::ProblemSlot& slot, int number,
               const std::string& file_name) {
  input::dump_problem(slot, number, names_of(ctx.optimizer), ctx.units, file_name, kDumpUnit);
}

}  // namespace tarvo::sampling
