#include "driver/run.h"

int main() { return tarvo::driver::run_tarvo(); }
