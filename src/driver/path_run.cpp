#include "driver/path_run.h"

#include <cstdio>

#include "driver/model_files.h"
#include "driver/run.h"

namespace tarvo::driver {

namespace {

int command_line_error(const std::string& message) {
  std::fprintf(stderr, "tarvo: %s\n", message.c_str());
  return 1;
}

}  // namespace

bool request_for(const CommandLine& line, RunRequest& request, std::string& error) {
  ModelFiles files;
  if (!find_model_files(line.models, files, error)) return false;
  request = RunRequest{};
  request.by_path = true;
  request.core = absolute_path(files.core);
  request.time = absolute_path(files.time);
  request.stoch = absolute_path(files.stoch);
  const std::string& params = line.inp.empty() ? files.params : line.inp;
  request.params_file = params.empty() ? params : absolute_path(params);
  request.specs_file = line.spc.empty() ? line.spc : absolute_path(line.spc);
  request.solution_file = line.eval.empty() ? line.eval : absolute_path(line.eval);
  request.evaluate = !line.eval.empty();
  request.istrat = line.strategy;
  request.nsamples = line.samples;
  request.iseed = line.seed;
  request.relax = line.relax;
  for (const std::string* file : {&line.inp, &line.spc, &line.eval}) {
    if (!file->empty() && !readable_file(*file, error)) return false;
  }
  return true;
}

int run_command_line(const std::vector<std::string>& args) {
  const CommandLine line = parse_command_line(args, Program::tarvo);
  switch (line.action) {
    case CommandAction::help: std::fputs(usage_text(Program::tarvo).c_str(), stdout); return 0;
    case CommandAction::version: std::printf("tarvo %s\n", kTarvoVersion.data()); return 0;
    case CommandAction::error: return command_line_error(line.error + " (tarvo --help tells more)");
    case CommandAction::run: break;
  }
  RunRequest request;
  std::string error;
  if (!request_for(line, request, error)) return command_line_error(error);
  if (!line.out.empty() && !enter_output_folder(line.out, error)) return command_line_error(error);
  return run_tarvo(request);
}

}  // namespace tarvo::driver
