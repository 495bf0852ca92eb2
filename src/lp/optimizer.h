#pragma once
// The optimizer interface the rest of TARVO uses: initialization from SIMPLEX.SPC, the three
// problem slots, the active slot, linear or quadratic objective, and solve requests.
#include <array>
#include <string>
#include <vector>

#include "common/units.h"
#include "lp/options.h"
#include "lp/problem_slot.h"
#include "lp/simplex.h"

namespace tarvo::lp {

inline constexpr int kSpecsUnit = 4;
inline constexpr int kPrintUnit = 23;
inline constexpr int kInitFailed = 13;

struct Optimizer {
  Options options;
  std::array<ProblemSlot, 4> slot;     // [1..3]
  std::array<SimplexState, 4> solver;  // [1..3]
  int active = 0;
  int mmax = 0;
  int nmax = 0;
  int nbmax = 0;
  int nemax = 0;
  int nwcore = 0;
  // Problem, objective, right-hand side, ranges and bounds names, shared by all slots.
  std::array<Name8, 5> names;
  Regularization regularization;
};

// A problem held beside the three slots with its own simplex state and options, so that several
// such problems can be solved at the same time from different threads. Its basis, factors and
// scales stay between its solves as a slot's do.
struct HeldProblem {
  ProblemSlot slot;
  SimplexState solver;
  Options options;
};

// Reads the options file (SIMPLEX.SPC unless named) and sizes the slots from it. Returns 0 on
// success, 13 on failure (a faulty file, or capacities beyond the slots' memory limit).
int optimizer_init(Optimizer& opt, Units& units, int out_unit, int err_unit, int debug,
                   const std::string& specs_file = "SIMPLEX.SPC");

// What a run without an options file sizes every slot by.
struct SlotCapacity {
  int rows = 0;
  int columns = 0;
  int elements = 0;
  int iteration_limit = 0;
};

// Initializes without an options file: every option at its default but the capacities and the
// iteration limit. The print file MODEL.MO is opened only when `debug` is not 0. Returns 0, or 13
// when the capacities need more memory than the slots may take.
int optimizer_init_sized(Optimizer& opt, Units& units, int out_unit, int err_unit, int debug,
                         const SlotCapacity& capacity);
void select_problem(Optimizer& opt, int slot);
ProblemSlot& active_slot(Optimizer& opt);
void set_objective_mode(Optimizer& opt, Units& units, int quadratic, int out_unit);
// Solves the active slot; start 0 cold, 1 warm, any other value hot. duals: pi(1..m) then
// rc(1..n); primal: xn(1..n+m); both 1-based, sized by the caller. Returns 0; the status is inform.
int solve_problem(Optimizer& opt, Units& units, int out_unit, int& inform, int start,
                  double& objective, double& spare1, std::vector<double>& duals, double& spare2,
                  std::vector<double>& primal);
// Sizes `held` for exactly the problem in `from` and copies that problem (matrix, bounds, basis,
// values, names) into it. Its simplex state starts empty and is sized by its first solve.
void hold_problem(HeldProblem& held, const ProblemSlot& from);
// solve_problem for a given slot, simplex state and options (one of the optimizer's slots or a
// held problem), writing no message: report_solve_status writes the one solve_problem writes. Of
// the optimizer it reads only the names, the workspace size and the regularization, so distinct
// slots with their own states and options may be solved at the same time from different threads
// while the print and summary files are closed. `copy` says how much of the solution goes to duals
// and primal: all of it, or the row duals alone (the rest of both vectors is then left as it was).
enum class SolutionCopy { full, row_duals };
int solve_quietly(ProblemSlot& slot, SimplexState& solver, Options& options, const Optimizer& opt,
                  Units& units, int start, SolutionCopy copy, double& objective,
                  std::vector<double>& duals, std::vector<double>& primal);
// The line solve_problem writes to out_unit for a status other than 0.
void report_solve_status(Units& units, int out_unit, int inform);
// The quadratic regularization term and its gradient; x and g are 1-based (x[1..n]); column n,
// THETA, takes no part.
void regobj(const Regularization& reg, int mode, int n, const double* x, double& f, double* g,
            int nstate, int nprob);

}  // namespace tarvo::lp
