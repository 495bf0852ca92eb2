#include <string>

#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

constexpr int kInfeasible = 1;
constexpr int kUnbounded = 2;
constexpr int kModelInfeasible = 4;
constexpr int kModelUnbounded = 3;
constexpr int kModelError = 12;
constexpr int kSolverFailed = 4;

std::string dump_name(int problem, const char* what) {
  return std::string(problem == lp::kMasterSlot ? "m" : "s") + what;
}

}  // namespace

int dumpbad(const Context& ctx, int problem, int status, const lp::ProblemSlot& slot) {
  if (status == kInfeasible) {
    ctx.model_status = kModelInfeasible;
    dump_slot(ctx, slot, problem, dump_name(problem, "infez.mps"));
  } else if (status == kUnbounded) {
    ctx.model_status = kModelUnbounded;
    dump_slot(ctx, slot, problem, dump_name(problem, "unbnd.mps"));
  } else {
    ctx.model_status = kModelError;
  }
  ctx.solver_status = kSolverFailed;
  return kErrorExit;
}

int dumpbad(const Context& ctx, int problem, int status) {
  return dumpbad(ctx, problem, status, ctx.optimizer.slot[problem]);
}

}  // namespace tarvo::sampling
