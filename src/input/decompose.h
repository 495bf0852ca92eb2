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

// Gives the master a THETA column for each of `groups` cut groups, after THETA (THG00001,
// THG00002, ...; lower bound -1e9 as THETA's), and the row THETASUM after the cut rows, which
// holds THETA to their sum (THETA - sum of the group columns = 0), so that THETA stays the
// recourse estimate and a cut on THETA itself remains valid. Each group column carries its entry
// in THETASUM; the master keeps room for one group coefficient per cut row, which the Benders
// loop places. Capacity shortfalls report as decompose does and return storage.
InputStatus add_cut_groups(lp::ProblemSlot& master, Decomposition& dec, int groups, Units& units,
                           const MessageUnits& to);

// The debug dumps written when iwrite >= 6: master to MODEL.P01, subproblem to MODEL.P02.
InputStatus dump_split_problems(const lp::ProblemSlot& master, const lp::ProblemSlot& sub,
                                const MpsNames& names, Units& units, int dump_unit);

}  // namespace tarvo::input
