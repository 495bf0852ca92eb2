#pragma once
// Reading a fixed-column MPS file (ROWS, COLUMNS, RHS, RANGES, BOUNDS) into a problem slot, and
// the check the decomposition needs afterwards (row 1 must be the free objective row).
#include <string>

#include "common/units.h"
#include "input/messages.h"
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
  int hash_length = 0;
  long long collisions = 0;
};

// Reads `file_name` on `mps_unit` into the slot. The listing and the messages about single lines
// go to `print_unit`, section-level messages also to `summary_unit`, each only when open. The
// slot's loaded flag is left clear; check_core_problem sets it.
MpsReadResult read_mps_file(lp::ProblemSlot& slot, const lp::Options& options, Units& units,
                            const std::string& file_name, int mps_unit, int print_unit,
                            int summary_unit);

// After reading the core: a failed read gives "ERROR: reading MPS file <name>" and returns the
// failure. Otherwise row 1 must be free with limits of exactly -infinity and +infinity; if not,
// "ERROR: row 1 of problem <slot> is not a free row" is written and the slot stays not loaded,
// but the read still counts as successful (ok is returned). When both hold the slot is loaded.
InputStatus check_core_problem(lp::ProblemSlot& slot, int slot_number, const MpsReadResult& read,
                               const std::string& file_name, Units& units,
                               const MessageUnits& to);

}  // namespace tarvo::input
