#include <string>
#include <vector>

#include "driver/path_run.h"
#include "driver/run.h"

int main(int argc, char** argv) {
  if (argc <= 1) return tarvo::driver::run_tarvo();
  return tarvo::driver::run_command_line(std::vector<std::string>(argv + 1, argv + argc));
}
