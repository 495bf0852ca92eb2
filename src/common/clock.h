#pragma once
// The run clock: elapsed time in hundredths of a second, and the phase accumulators that the
// timing report prints.

namespace tarvo {

struct RunClock {
  long long previous = 0;  // reading at the last measurement, hundredths of a second
  double execution = 0.0;  // seconds, whole run
  double setup = 0.0;      // from the start to the beginning of the Benders solve
  double master = 0.0;     // solving master problems
  double subproblem = 0.0; // solving subproblems
  double last = 0.0;       // the most recent interval
};

// Elapsed time since the process started, in hundredths of a second (milliseconds / 10).
long long clock_read();

// now - previous, with one day added when the difference is negative (a reading that wrapped).
long long clock_difference(long long previous, long long now);

// Sets the previous reading to now and zeroes every accumulator.
void clock_start(RunClock& clock);

// Measures the interval since the previous reading (a negative difference has one day,
// 8,640,000 hundredths, added), stores it as `last`, adds it to the execution time and,
// when `phase` is not null, to that accumulator.
void clock_interval(RunClock& clock, double* phase);

}  // namespace tarvo
