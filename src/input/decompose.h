#pragma once
// Splitting the core problem (slot 3) at the stage boundaries of the time file into the master
// (slot 1, with THETA and the reserved cut rows), the subproblem (slot 2), the coupling matrix B
// and the subproblem's base right-hand side h.
#include "common/units.h"
#include "input/messages.h"
#include "input/model.h"
#include "input/mps_reader.h"
#include "input/status.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

// Sizes B (room for every element of the core), its column starts and h, once, for this core.
void allocate_decomposition(Decomposition& dec, const lp::ProblemSlot& core);

// Finds the stage boundaries (when the time file names the same row for both stages, the first
// stage has no rows of its own and the second starts at that row), checks the staircase form and the capacities (messages in this
// order: master rows, B nonzeros, master nonzeros, subproblem nonzeros), builds master, B, h and
// subproblem and writes the "Successful decomposition:" report to the log unit.
InputStatus decompose(const lp::ProblemSlot& core, const StageNames& names, int nzrows,
                      lp::ProblemSlot& master, lp::ProblemSlot& sub, Decomposition& dec,
                      Units& units, const MessageUnits& to);

// The debug dumps written when iwrite >= 6: master to MODEL.P01, subproblem to MODEL.P02.
InputStatus dump_split_problems(const lp::ProblemSlot& master, const lp::ProblemSlot& sub,
                                const MpsNames& names, Units& units, int dump_unit);

}  // namespace tarvo::input
