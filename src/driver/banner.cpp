#include "driver/banner.h"

#include "common/free_format.h"

namespace tarvo::driver {
namespace {

constexpr const char* kNotice1 = "two-stage stochastic linear programs with recourse";
constexpr const char* kNotice2 = "Benders decomposition, universe or sampled outcomes";

}  // namespace

void write_long_banner(Units& units, int unit) {
  write_free(units, unit, " T H E   T  A  R  V  O   S Y S T E M");
  write_free(units, unit);
  write_free(units, unit, kNotice1);
  write_free(units, unit, kNotice2);
  write_free(units, unit);
}

void write_short_banner(Units& units, int unit) {
  write_free(units, unit, " T  A  R  V  O ", kNotice1);
  write_free(units, unit);
}

}  // namespace tarvo::driver
