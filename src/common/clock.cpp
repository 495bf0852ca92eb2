#include "common/clock.h"

#include <chrono>

namespace tarvo {

namespace {

constexpr long long kHundredthsPerDay = 8'640'000;

std::chrono::steady_clock::time_point process_start() {
  static const auto start = std::chrono::steady_clock::now();
  return start;
}

// Taken during static initialization, so the clock counts from the start of the process rather
// than from its first reading.
[[maybe_unused]] const auto kStartTaken = process_start();

}  // namespace

long long clock_read() {
  const auto elapsed = std::chrono::steady_clock::now() - process_start();
  return std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count() / 10;
}

long long clock_difference(long long previous, long long now) {
  const long long difference = now - previous;
  return difference < 0 ? difference + kHundredthsPerDay : difference;
}

void clock_start(RunClock& clock) { clock = RunClock{.previous = clock_read()}; }

void clock_interval(RunClock& clock, double* phase) {
  const long long now = clock_read();
  clock.last = static_cast<double>(clock_difference(clock.previous, now)) * 0.01;
  clock.previous = now;
  clock.execution += clock.last;
  if (phase != nullptr) *phase += clock.last;
}

}  // namespace tarvo
