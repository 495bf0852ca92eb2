#include "driver/model_files.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <span>
#include <string_view>

namespace tarvo::driver {

namespace {

namespace fs = std::filesystem;

using Extensions = std::span<const std::string_view>;
constexpr std::string_view kCoreExtensions[] = {"cor", "core"};
constexpr std::string_view kTimeExtensions[] = {"tim", "time"};
constexpr std::string_view kStochExtensions[] = {"sto", "stoch"};
constexpr std::string_view kParamsExtensions[] = {"inp"};

std::string lower_case(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

bool regular_file(const fs::path& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored);
}

// PREFIX.<extension> for the first extension that has a file, the extension in any case (of
// several spellings, the first in name order); empty when there is none.
std::string file_with_extension(const fs::path& prefix, Extensions extensions) {
  const std::string base = prefix.filename().string();
  const fs::path folder = prefix.has_parent_path() ? prefix.parent_path() : fs::path(".");
  if (base.empty()) return {};
  std::error_code error;
  std::vector<std::string> names;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    names.push_back(it->path().filename().string());
  }
  for (const std::string_view extension : extensions) {
    std::string chosen;
    for (const std::string& name : names) {
      const bool fits = name.size() == base.size() + 1 + extension.size() && name.compare(0, base.size(), base) == 0 &&
                        name[base.size()] == '.' && lower_case(name.substr(base.size() + 1)) == extension;
      if (fits && regular_file(folder / name) && (chosen.empty() || name < chosen)) chosen = name;
    }
    if (!chosen.empty()) return (prefix.has_parent_path() ? folder / chosen : fs::path(chosen)).string();
  }
  return {};
}

bool find_one(const fs::path& prefix, Extensions extensions, const char* what, std::string& file, std::string& error) {
  file = file_with_extension(prefix, extensions);
  if (!file.empty()) return true;
  const std::string name = prefix.string();
  error = std::string("no ") + what + " file " + name + "." + std::string(extensions[0]) + " or " + name + "." +
          std::string(extensions[1]) + " (the extension in any case)";
  return false;
}

// A prefix given as the core file itself ("dakota.cor") stands for "dakota".
fs::path prefix_of(const std::string& name) {
  const fs::path path(name);
  const std::string extension = lower_case(path.extension().string());
  if ((extension == ".cor" || extension == ".core") && regular_file(path)) return fs::path(path).replace_extension();
  return path;
}

}  // namespace

bool find_model_files(const std::vector<std::string>& names, ModelFiles& files, std::string& error) {
  files = ModelFiles{};
  if (names.size() == 3) {
    files.core = names[0];
    files.time = names[1];
    files.stoch = names[2];
  } else {
    const fs::path prefix = prefix_of(names.front());
    if (!find_one(prefix, kCoreExtensions, "core", files.core, error) ||
        !find_one(prefix, kTimeExtensions, "time", files.time, error) ||
        !find_one(prefix, kStochExtensions, "stochastic", files.stoch, error)) {
      return false;
    }
    files.params = file_with_extension(prefix, kParamsExtensions);
  }
  for (const std::string* file : {&files.core, &files.time, &files.stoch}) {
    if (!readable_file(*file, error)) return false;
  }
  return true;
}

bool readable_file(const std::string& path, std::string& error) {
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) {
    error = "cannot read " + path + ": it is a folder";
    return false;
  }
  std::FILE* file = std::fopen(path.c_str(), "r");
  if (file == nullptr) {
    error = "cannot read " + path + ": " + std::strerror(errno);
    return false;
  }
  std::fclose(file);
  return true;
}

std::string absolute_path(const std::string& path) {
  std::error_code ignored;
  const fs::path absolute = fs::absolute(path, ignored);
  return absolute.empty() ? path : absolute.string();
}

bool enter_output_folder(const std::string& folder, std::string& error) {
  std::error_code failure;
  if (!fs::exists(folder, failure)) fs::create_directories(folder, failure);
  if (!failure && !fs::is_directory(folder, failure)) {
    error = "output folder " + folder + " is not a folder";
    return false;
  }
  if (!failure) fs::current_path(folder, failure);
  if (failure) {
    error = "cannot use output folder " + folder + ": " + failure.message();
    return false;
  }
  if (::access(".", W_OK) != 0) {
    error = "cannot write in output folder " + folder + ": " + std::strerror(errno);
    return false;
  }
  return true;
}

}  // namespace tarvo::driver
