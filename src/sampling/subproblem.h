#pragma once
// Putting an outcome and the proposal into the loaded subproblem (slot 2), solving it, and the
// dump that ends a run on a failed solve.
#include <string>

#include "sampling/evaluation.h"

namespace tarvo::sampling {

// Writes the current outcome values (ev.current) into the subproblem slot and into the working
// coupling values and right-hand sides (ev.b_work, ev.rhs_work), each rebuilt from its base copy:
// the outcome replaces the core's value, and parameters at one location add up. False for an
// unknown parameter kind, which is returned in `bad_kind`.
bool apply_outcome(lp::ProblemSlot& sub, const input::Decomposition& model,
                   const input::OutcomeStore& store, Evaluation& ev, int& bad_kind);

// Writes the current outcome values (ev.current) and the proposal x-hat into the subproblem
// slot: coupling values and right-hand sides from their base copies, every touched matrix entry
// and bound rebuilt, and the row logicals' bounds set to -r, r = h(omega) + C x-hat. An unknown
// parameter kind writes "bogus iiw value " and returns kErrorExit.
int subsetup(const Context& ctx, Evaluation& ev);

// subsetup, then one solve of the subproblem: cold when startflag is 0 (which then becomes 1),
// warm otherwise, never hot. `status` is 0 (optimal) or 1 (infeasible); on any other optimizer
// status the problem is dumped (dumpbad) and kErrorExit returned. Leaves ev.z, ev.primal and
// ev.duals; the solve time goes to the subproblem phase of the run clock.
int subsolve(const Context& ctx, Evaluation& ev, int& startflag, int& status);

// Sample point k: the outcomes of row k of the sample table become the current values and the
// subproblem is solved (subsolve). Mode 3 also forms the scenario probability. Afterwards
// ev.u = C' pi.
int subeval(const Context& ctx, Evaluation& ev, int k, int mode, int& startflag, int& status);

// A failed solve of the master (problem 1) or the subproblem (problem 2): model status 4 and the
// dump "<m|s>infez.mps" for status 1, model status 3 and "<m|s>unbnd.mps" for status 2, model
// status 12 and no dump otherwise; solver status 4. Returns kErrorExit for the driver to take.
int dumpbad(const Context& ctx, int problem, int status);

// Writes problem slot `slot` in MPS form to the file `file_name`.
void dump_slot(const Context& ctx, int slot, const std::string& file_name);

}  // namespace tarvo::sampling
