#pragma once
// What a model-input step hands back to the run driver. Every failure has already written its
// messages; the driver only decides how the run ends.

namespace tarvo::input {

enum class InputStatus {
  ok = 0,
  missing_file,    // the file could not be opened
  bad_file,        // faulty cards or entries (all reported), or a fatal layout error
  storage,         // a slot, B or the outcome store is too small
  name_not_found,  // a stage name of the time file is not in the core
  not_staircase,   // the core is not in staircase order
  unsupported,     // a stochastic section other than DISCRETE
};

inline bool failed(InputStatus status) { return status != InputStatus::ok; }

}  // namespace tarvo::input
