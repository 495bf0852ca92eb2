#include "sampling/rng.h"

#include <cstdint>

namespace tarvo::sampling {

namespace {

constexpr std::int32_t kMultiplier = 16807;
constexpr std::int32_t kModulus = 2147483647;
constexpr std::int32_t kQuotient = 127773;  // kModulus / kMultiplier
// The single-precision number nearest to 4.656613e-10, widened: the largest state maps just
// below 1.
constexpr double kScale = 4.656612873077393e-10;

// a * b - c * d in 32-bit arithmetic that wraps; the caller guarantees the exact result fits.
std::int32_t wrapped_difference(std::int32_t a, std::int32_t b, std::int32_t c, std::int32_t d) {
  const std::uint32_t r = static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b) -
                          static_cast<std::uint32_t>(c) * static_cast<std::uint32_t>(d);
  return static_cast<std::int32_t>(r);
}

}  // namespace

double rngnext(Generator& g) {
  const std::int32_t k = g.x / kQuotient;
  // Equals 16807 (x - 127773 k) - 2836 k, which fits in 32 bits.
  std::int32_t x = wrapped_difference(g.x, kMultiplier, k, kModulus);
  if (x < 0) x += kModulus;
  g.x = x;
  return x * kScale;
}

}  // namespace tarvo::sampling
