#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <unistd.h>

#include "cli/Command.h"
#include "cli/OtherProgram.h"
#include "runtime/SystemErrors.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;

bool IsProgram(const fs::path& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored) && access(path.c_str(), X_OK) == 0;
}

}  // namespace

std::string FindProgram(const std::string& name) {
  std::error_code ignored;
  const fs::path beside = fs::read_symlink("/proc/self/exe", ignored).parent_path() / name;
  if (beside.is_absolute() && IsProgram(beside)) return beside;
  const char* const path = std::getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    // Relative folders are skipped, because the current folder must not decide which program runs.
    if (folder.starts_with('/') && IsProgram(fs::path(folder) / name)) return fs::path(folder) / name;
  }
  return {};
}

void BecomeProgram(const std::string& path, const std::vector<std::string>& arguments) {
  std::string name = path;
  std::vector<std::string> words = arguments;
  std::vector<char*> pointers = {name.data()};
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  execv(path.c_str(), pointers.data());
  throw CommandError(exit_code::kUsage,
                     "can't start \"" + path + "\": " + runtime::SystemErrorText(errno) + ".");
}

}  // namespace plotsmith::cli
