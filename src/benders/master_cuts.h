#pragma once
// Benders cuts stored in place into the master's reserved rows.
#include <vector>

#include "common/run_params.h"
#include "common/units.h"
#include "lp/problem_slot.h"

namespace tarvo::benders {

// A master with a THETA column per cut group (after THETA) takes several cuts an iteration, and
// any cut row may hold any group's cut; what each row holds and since when its cut has been slack
// decide which rows new cuts take.
struct CutPool {
  int groups = 0;               // 0: a single cut an iteration (add_cut)
  int theta = 0;                // THETA's column; group g's is theta + g
  std::vector<int> holder;      // [1..nzrows] -1 free, 0 a cut on THETA itself, g group g's cut
  std::vector<int> tight_at;    // [1..nzrows] last iteration whose master solution held it tight
  std::vector<int> source;      // [1..nzrows] the iteration whose evaluation gave the cut
  std::vector<int> cut_at;      // [1..theta] position of column j's entry in cut row 1, or 0
  std::vector<int> group_rows;  // [1..groups] scratch: rows holding each group's cuts
  std::vector<char> gets_cut;   // [1..groups] scratch: the group gets a new cut
  std::vector<int> taken;       // [1..nzrows] scratch: rows in the order new cuts take them
  std::vector<double> gus;      // [1..n] scratch: a cut over every master column
};

// The reserved cut rows of the master: rows first_cut_row .. first_cut_row + nzrows - 1.
struct CutRows {
  int first_stage_rows = 0;     // master rows before the reserved block
  int nzrows = 0;
  std::vector<double> variance; // [1..nzrows] variance of the cut each row holds
  std::vector<double> slack;    // [1..nzrows] work array for the replacement choice
  CutPool pool;
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

// Every stored cut is tight and a new one has no row: writes "not enough nzrows, program
// terminated" and sets the iteration count to 999999, which the loop's limit test ends on.
CutResult rows_exhausted(Units& units, int log_unit, int& iterations);

// Sets the bounds of cut row `row` for the constant gls: row >= gls, gls clamped to the
// optimizer's infinite bound (below minus infinity the row is free).
void set_cut_limit(lp::ProblemSlot& master, int row, double gls);

// The ibug >= 5 trace of a stored cut: "cut: inum,icutnz,slack=", every coefficient of gus[1..n]
// above tolw, and gls.
void trace_stored_cut(Units& u, int unit, const lp::ProblemSlot& master, const Cut& cut,
                      int iterations, int row, double slack, double tolw);

// A cut of a multi-cut master: on THETA itself (group 0, with THETA's coefficient 1 for an
// optimality cut and 0 for a feasibility cut) or on group g's column (coefficient 1, THETA 0).
struct PoolCut {
  int group = 0;
  const double* gradient = nullptr;  // [1..n1] coefficients of the first-stage columns
  double theta_coefficient = 0.0;
  double gls = 0.0;
  double variance = 0.0;
};

// Sizes the pool of a master whose group columns follow THETA (column theta) and finds where the
// cut rows' coefficients stand.
void allocate_cut_pool(CutRows& rows, const lp::ProblemSlot& master, int theta, int groups);

// Stores the cuts of one iteration and raises the iteration count by one. Each cut takes a free
// row, lowest first, or else the row whose cut has been slack the longest (ties: the slackest,
// then the lowest row), never a group's last cut unless the group gets a new one. When only tight
// rows are left, writes "not enough nzrows, program terminated", sets the count to 999999 and
// stores nothing, as add_cut does.
CutResult add_pool_cuts(lp::ProblemSlot& master, CutRows& rows, const PoolCut* cuts, int count,
                        int& iterations, Units& units, const RunParams& params, int log_unit);

// Slack of each reserved row at the master's current solution: activity minus its lower limit
// (a row without a cut has an infinite slack).
void cut_row_slacks(const lp::ProblemSlot& master, CutRows& rows);

}  // namespace tarvo::benders
