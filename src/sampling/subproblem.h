#pragma once
// Putting an outcome and the proposal into a chain's subproblem, solving it, and the dump that
// ends a run on a failed solve.
#include <string>

#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Status of a solve that could not be set up: a random parameter of an unknown kind.
inline constexpr int kBadKind = -1;

// The problem a chain solves: chain 0 the optimizer's subproblem slot with the optimizer's own
// state and options, every other chain the copy it holds.
struct ChainLp {
  lp::ProblemSlot& slot;
  lp::SimplexState& solver;
  lp::Options& options;
};
ChainLp chain_lp(const Context& ctx, Evaluation& ev, int c);

// Writes the outcome values work.current[1..entries] into the subproblem slot and into the
// working coupling values and right-hand sides (work.b_work, work.rhs_work), each rebuilt from
// its base copy: the outcome replaces the core's value, and parameters at one location add up.
// False for an unknown parameter kind, which is returned in `bad_kind`.
bool apply_outcome(lp::ProblemSlot& sub, const input::Decomposition& model,
                   const input::OutcomeStore& store, int entries, SolveWork& work, int& bad_kind);

// Writes the chain's current outcome values (work.current) and the proposal x-hat into the
// subproblem: coupling values and right-hand sides from their base copies, every touched matrix
// entry and bound rebuilt, and the row logicals' bounds set to -r, r = h(omega) + C x-hat. False
// for a parameter of unknown kind (its code in bad_kind; nothing written).
bool subsetup(const Context& ctx, const Evaluation& ev, SolveWork& work, lp::ProblemSlot& sub,
              int& bad_kind);

// "bogus iiw value " with the kind that subsetup refused.
void write_bogus_kind(const Context& ctx, int kind);

// subsetup, then one solve of the chain's subproblem: cold when the chain's startflag is 0 (which
// then becomes 1), warm otherwise, never hot. Returns the optimizer's status (0 optimal, 1
// infeasible, others failures) or kBadKind, and counts the solve and its pivots on the chain. It
// leaves work.z and the row duals work.duals[1..m2]; the rest of work.duals and work.primal only
// while the solution is collected (ev.collect 1). Writes nothing but the traces of ibug 6 and
// above (they keep a pass on the calling thread): the caller reports the status.
int solve_outcome(const Context& ctx, const Evaluation& ev, Chain& chain, const ChainLp& lp);

// Sample point k on a chain: the outcomes of row k of the sample table become the chain's current
// values (mode 3 also forms the scenario probability) and solve_outcome solves them; afterwards
// work.u = C' pi. Returns what solve_outcome returns.
int solve_row(const Context& ctx, const Evaluation& ev, Chain& chain, const ChainLp& lp, int k,
              int mode);

// One solve on chain 0 with the current values already in place, for the evaluations outside the
// solve passes: the solve time goes to the subproblem phase of the run clock, the status line to
// the screen log; `status` is 0 (optimal) or 1 (infeasible). Any other outcome is reported (an
// unknown kind, or a failed solve dumped by dumpbad) and returns kErrorExit.
int subsolve(const Context& ctx, Evaluation& ev, int& startflag, int& status);

// A failed solve of the master (problem 1) or the subproblem (problem 2): model status 4 and the
// dump "<m|s>infez.mps" for status 1, model status 3 and "<m|s>unbnd.mps" for status 2, model
// status 12 and no dump otherwise; solver status 4. Returns kErrorExit for the driver to take.
// The dump is of `slot`, the problem that failed.
int dumpbad(const Context& ctx, int problem, int status, const lp::ProblemSlot& slot);
// The same for the problem in the optimizer's slot `problem`.
int dumpbad(const Context& ctx, int problem, int status);

// Writes `slot` in MPS form to the file `file_name`, with the number `number` in its header.
void dump_slot(const Context& ctx, const lp::ProblemSlot& slot, int number,
               const std::string& file_name);

}  // namespace tarvo::sampling
