#pragma once
// Benders cuts stored in place into the master's reserved rows.
#include <vector>

#include "common/run_params.h"
#include "common/units.h"
#include "lp/problem_slot.h"

namespace tarvo::benders {

// The reserved cut rows of the master: rows first_cut_row .. first_cut_row + nzrows - 1.
struct CutRows {
  int first_stage_rows = 0;     // master rows before the reserved block
  int nzrows = 0;
  std::vector<double> variance; // [1..nzrows] variance of the cut each row holds
  std::vector<double> slack;    // [1..nzrows] work array for the replacement choice
};

void allocate_cut_rows(CutRows& rows, int first_stage_rows, int nzrows);

// A cut: gus[1..n] over the master columns (THETA last: 1 optimality, 0 feasibility cut),
// reading sum gus_j x_j >= gls.
struct Cut {
  const double* gus = nullptr;
  double gls = 0.0;
  double variance = 0.0;
};

enum class CutResult { stored, rows_exhausted, missing_location };

// Raises the iteration count and stores the cut: cut i goes into reserved row i while rows are
// left, afterwards into the row with the largest slack at the last master solution. When every
// stored cut is tight the iteration count becomes 999999 and nothing is stored.
CutResult add_cut(lp::ProblemSlot& master, CutRows& rows, const Cut& cut, int& iterations,
                  Units& units, const RunParams& params, int log_unit);

// Writes gus into the stored positions of master row `row` and sets its bounds from gls.
// Returns false when a nonzero coefficient has no stored position (the row is left partly written).
bool store_cut_row(lp::ProblemSlot& master, const double* gus, double gls, int row);

// Slack of each reserved row at the master's current solution: activity minus its lower limit
// (a row without a cut has an infinite slack).
void cut_row_slacks(const lp::ProblemSlot& master, CutRows& rows);

}  // namespace tarvo::benders
