#pragma once
// Reading a fixed-column MPS file (ROWS, COLUMNS, RHS, RANGES, BOUNDS) into a problem slot.
#include <string>

#include "common/units.h"
#include "input/name_hash.h"
#include "input/status.h"
#include "lp/options.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

// The names a read settled on: the problem's, the objective row's and the three sets'. The
// writer prints the set names; the stochastic file refers to the RHS set by name.
struct MpsNames {
  lp::Name8 problem;
  lp::Name8 objective;
  lp::Name8 rhs;
  lp::Name8 ranges;
  lp::Name8 bounds;
};

struct MpsReadResult {
  InputStatus status = InputStatus::ok;  // ok, missing_file, bad_file (fatal) or storage
  int errors = 0;                        // counted faults; > 0 means failure
  MpsNames names;
  int rhs_entries = 0;
  int ranges_entries = 0;
  int bounds_entries = 0;
  int integer_columns = 0;  // marked integer; counted only, solved as continuous
  int first_integer_column = 0;  // the first of them in column order, or 0
  int hash_length = 0;
  long long collisions = 0;
};

// Reads `file_name` on `mps_unit` into the slot. The listing and the messages about single lines
// go to `print_unit`, section-level messages also to `summary_unit`, each only when open; faults,
// which fail the read, are also written to `error_unit` when open. The slot's loaded flag is left
// clear; check_core_problem (core_file.h) sets it.
MpsReadResult read_mps_file(lp::ProblemSlot& slot, const lp::Options& options, Units& units,
                            const std::string& file_name, int mps_unit, int print_unit,
                            int summary_unit, int error_unit = 0);

}  // namespace tarvo::input
