#include "driver/run_params_reader.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "common/free_format.h"
#include "common/line_reader.h"

namespace tarvo::driver {
namespace {

// The sixteen parameters of every run, then irelax, ncuts, nthreads and stabil. All but irelax
// are echoed.
constexpr int kParams = 20;
constexpr std::array<std::string_view, kParams> kUpperKeywords = {
    "ISTRAT  ", "NSAMPLES", "NZROWS  ", "MAXIT   ", "IWRITE  ", "IBUG    ", "ISCRATCH", "IRESAMP ",
    "IGMS    ", "IREG    ", "RHO     ", "TOLBEN  ", "TOLW    ", "IAPPR   ", "MAXTIME ", "ISEED   ",
    "IRELAX  ", "NCUTS   ", "NTHREADS", "STABIL  "};

constexpr std::array<std::string_view, kParams> kEchoLabels = {
    "istrat    = ", "nsamples  = ", "nzrows    = ", "maxit     = ", "iwrite    = ", "ibug      = ",
    "iscratch  = ", "iresamp   = ", "igms      = ", "ireg      = ", "rho       = ", "tolben    = ",
    "tolw      = ", "iappr     = ", "maxtime   = ", "iseed     = ", "",             "ncuts     = ",
    "nthreads  = ", "stabil    = "};

constexpr double kSmallestRho = 1.0e-6;

std::string lower_case(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return out;
}

std::string keyword8(std::string_view text) {
  std::string key(text.substr(0, 8));
  key.resize(8, ' ');
  return key;
}

int* int_param(RunParams& p, int k) {
  switch (k) {
    case 1: return &p.istrat;
    case 2: return &p.nsamples;
    case 3: return &p.nzrows;
    case 4: return &p.maxit;
    case 5: return &p.iwrite;
    case 6: return &p.ibug;
    case 7: return &p.iscratch;
    case 8: return &p.iresamp;
    case 9: return &p.igms;
    case 10: return &p.ireg;
    case 14: return &p.iappr;
    case 16: return &p.iseed;
    case 17: return &p.irelax;
    case 18: return &p.ncuts;
    case 19: return &p.nthreads;
    default: return nullptr;
  }
}

double* real_param(RunParams& p, int k) {
  switch (k) {
    case 11: return &p.rho;
    case 12: return &p.tolben;
    case 13: return &p.tolw;
    case 15: return &p.maxtime;
    case 20: return &p.stabil;
    default: return nullptr;
  }
}

// The free-form read of one record: a number, then a keyword; the record continues onto the
// next lines until both items are seen. Items not given (null items, a slash) keep the values
// the two variables held before, as a free-form read does.
enum class RecordRead { ok, end_of_file, error };

RecordRead read_param_record(LineReader& reader, double& value, std::string& keyword) {
  constexpr int kItems = 2;
  int taken = 0;  // items read so far in this record
  std::string line;
  std::vector<FreeItem> items;
  while (taken < kItems) {
    if (!next_line(reader, line)) return RecordRead::end_of_file;
    bool ended = false;
    if (!split_free_items(line, items, ended, kItems - taken)) return RecordRead::error;
    for (const FreeItem& item : items) {
      if (!item.null) {
        if (taken == 0) {
          double number = 0.0;
          if (item.quoted || !parse_free_real(item.text, number)) return RecordRead::error;
          value = number;
        } else {
          keyword = keyword8(item.text);
        }
      }
      ++taken;
    }
    if (ended) break;
  }
  return RecordRead::ok;
}

}  // namespace

int run_param_index(std::string_view key) {
  for (int k = 0; k < kParams; ++k) {
    if (key == kUpperKeywords[k]) return k + 1;
    if (key == lower_case(kUpperKeywords[k])) return k + 1;
  }
  return 0;
}

bool set_run_param(RunParams& params, int k, double value) {
  if (double* real = real_param(params, k)) {
    *real = value;
    return true;
  }
  int* integer = int_param(params, k);
  if (integer == nullptr) return true;
  const double truncated = std::trunc(value);
  if (!(truncated >= -2147483648.0 && truncated <= 2147483647.0)) return false;
  *integer = static_cast<int>(truncated);
  return true;
}

bool read_run_params(Units& units, RunParams& params, const std::string& file_name) {
  params = RunParams{};
  if (file_name.empty() || !open_unit(units, kInputParamsUnit, file_name, OpenStatus::old_file)) return true;
  LineReader reader{unit_stream(units, kInputParamsUnit)};
  double value = 0.0;
  std::string keyword(8, ' ');
  bool ok = true;
  for (int record = 0; record < kMaxParamRecords; ++record) {
    const RecordRead result = read_param_record(reader, value, keyword);
    if (result == RecordRead::end_of_file) break;
    if (result == RecordRead::error || !set_run_param(params, run_param_index(keyword), value)) {
      ok = false;
      break;
    }
  }
  close_unit(units, kInputParamsUnit);
  if (params.rho < kSmallestRho) params.rho = kSmallestRho;
  return ok;
}

bool sampled_strategy(int istrat) {
  return istrat >= 2 && istrat <= 11 && istrat != 4 && istrat != 5;
}

bool run_params_usable(Units& units, int log_unit, int err_unit, const RunParams& params) {
  const char* message = nullptr;
  if (params.nzrows < 1) {
    message = "error: nzrows must be at least 1";
  } else if (params.nsamples < 1 && sampled_strategy(params.istrat)) {
    message = "error: nsamples must be at least 1 for a sampled strategy";
  } else if (!(params.stabil >= 0.0 && params.stabil < 1.0)) {
    message = "error: stabil must be at least 0 and below 1";
  }
  if (message == nullptr) return true;
  write_free(units, log_unit, message);
  write_free(units, err_unit, message);
  return false;
}

void echo_run_params(Units& units, int unit, const RunParams& params) {
  RunParams copy = params;
  write_free(units, unit, "parameters: ");
  write_free(units, unit);
  for (int k = 1; k <= kParams; ++k) {
    if (kEchoLabels[k - 1].empty()) continue;
    if (const double* real = real_param(copy, k)) {
      write_free(units, unit, kEchoLabels[k - 1], *real);
    } else {
      write_free(units, unit, kEchoLabels[k - 1], *int_param(copy, k));
    }
  }
  write_free(units, unit);
}

}  // namespace tarvo::driver
