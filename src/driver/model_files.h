#pragma once
// The files a command line names: the three model files found from a prefix, checked to be
// readable before anything is written, and the output folder. Every failure is one line saying
// which file and why.
#include <string>
#include <vector>

namespace tarvo::driver {

struct ModelFiles {
  std::string core;
  std::string time;
  std::string stoch;
  std::string params;  // PREFIX.inp when there is one, else empty
};

// From one prefix (PREFIX.cor or .core, .tim or .time, .sto or .stoch, the extension in any
// case; a prefix that is itself the core file also does) or from the three files named.
bool find_model_files(const std::vector<std::string>& names, ModelFiles& files, std::string& error);

// A file that exists, is no folder and opens for reading.
bool readable_file(const std::string& path, std::string& error);

// The path as seen from any working directory.
std::string absolute_path(const std::string& path);

// Creates the folder when it does not exist and makes it the working directory; it must take
// new files.
bool enter_output_folder(const std::string& folder, std::string& error);

}  // namespace tarvo::driver
