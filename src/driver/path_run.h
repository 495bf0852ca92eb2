#pragma once
// tarvo with arguments: the command line read, the files it names found and checked before
// anything is written, the output folder entered, and the run.
#include <string>
#include <vector>

#include "driver/command_line.h"
#include "driver/run_state.h"

namespace tarvo::driver {

// The request for a command line's model files and settings; false (with one line in `error`)
// when a file is missing or unreadable. Paths are made absolute, so that the request holds in any
// working directory.
bool request_for(const CommandLine& line, RunRequest& request, std::string& error);

// `args` without the program name. Returns the process exit status: 0 after a normal exit (and
// for --help and --version), 1 after any error; a wrong command line or file is one line on
// standard error.
int run_command_line(const std::vector<std::string>& args);

}  // namespace tarvo::driver
