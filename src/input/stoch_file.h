#pragma once
// The stochastic file MODEL.STO: which data of the subproblem are random, with their discrete
// distributions. Read twice: a prescan that sizes the outcome store, then the full read that
// classifies every entry against master, B and subproblem and fills the store.
//
// An INDEP section after a BLOCKS section is rejected ("error(s) in stoch file!"), by the prescan
// and by the full read alike. A SCENARIOS section (two-stage trees only) becomes one block whose
// outcomes are the scenarios; it cannot be mixed with INDEP or BLOCKS.
#include <array>
#include <string>
#include <string_view>

#include "common/units.h"
#include "input/messages.h"
#include "input/model.h"
#include "input/status.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

// Counts the random parameters of the file open on `sto_unit` into store.jele, jsum, itoc and
// itele. Records and per-parameter counts are listed on `debug_unit` (MODEL.SPR) when open.
InputStatus prescan_stoch_file(Units& units, int sto_unit, int debug_unit, const MessageUnits& to,
                               OutcomeStore& store);

// Sizes every array of the store once from its prescan sizes.
void allocate_outcome_store(OutcomeStore& store);

// What the classification of a stochastic entry looks at.
struct StochContext {
  const lp::ProblemSlot& master;
  const lp::ProblemSlot& sub;
  const Decomposition& dec;
  lp::Name8 rhs_set;  // the RHS set name the core was read with
  std::array<lp::Name8, 2> periods{};  // the time file's periods (blank: not named there)
};

inline constexpr int kEntryStored = 0;
inline constexpr int kEntryError = 1;
inline constexpr int kEntrySkipped = -1;

struct Classification {
  int kind = 0;   // -1, -2, -3, -11, -12, -13 or a subproblem row
  int index = 0;  // element position, row or column, by kind
  int result = kEntryStored;  // kEntryStored, kEntryError (message written) or kEntrySkipped
};

// Classifies one entry: `bound_type` is columns 2-3 of its line, name1 columns 5-12, name2
// columns 15-22.
Classification classify_entry(const StochContext& context, std::string_view bound_type,
                              const lp::Name8& name1, const lp::Name8& name2, double value,
                              Units& units, const MessageUnits& to);

// Opens `file_name` (which must exist) on `unit`, fills the allocated store, closes the unit and
// writes "Successful input of stochastic file:" with the totals to the log unit.
InputStatus read_stoch_file(Units& units, const std::string& file_name, int unit, int echo_unit,
                            const MessageUnits& to, const StochContext& context,
                            OutcomeStore& store);

// store.expected: for every entry, the sum over its block's outcomes of probability x value
// (the probabilities as read, not normalized).
void compute_expected_values(OutcomeStore& store);

// The debug listing: "rvs", then per parameter "rv k nsoc n nse e" and its outcomes' entries.
void write_outcome_dump(const OutcomeStore& store, Units& units, int unit);

}  // namespace tarvo::input
