#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "xlsx/package/AtomicFile.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {
namespace {

[[noreturn]] void Fail(const std::string& path) {
  throw PackageError("can't write " + path + ": " + std::strerror(errno));
}

/// False, with the reason in errno, if the file or folder can't be written through.
bool Sync(const std::string& path, int flags) {
  const int file = open(path.c_str(), flags | O_CLOEXEC);
  if (file < 0) return false;
  const bool synced = fsync(file) == 0 || errno == EINVAL;  // some file systems can't sync a folder
  const int error = errno;
  close(file);
  errno = error;
  return synced;
}

mode_t NewFileMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

}  // namespace

AtomicFile::AtomicFile(const std::string& path) {
  std::error_code ignored;
  const auto target = std::filesystem::weakly_canonical(path, ignored);
  path_ = ignored ? path : target.string();
  struct stat old {};
  if (stat(path_.c_str(), &old) == 0) {
    if (!S_ISREG(old.st_mode)) throw PackageError("can't write " + path + ": it is not a regular file");
    if (access(path_.c_str(), W_OK) != 0) Fail(path);
  }
  temporary_ = path_ + ".XXXXXX";
  const int file = mkstemp(temporary_.data());
  if (file < 0) {
    temporary_.clear();
    Fail(path);
  }
  close(file);
}

AtomicFile::~AtomicFile() {
  if (!committed_ && !temporary_.empty()) unlink(temporary_.c_str());
}

void AtomicFile::Commit() {
  struct stat old {};
  const bool replaces = stat(path_.c_str(), &old) == 0;
  if (chmod(temporary_.c_str(), replaces ? old.st_mode & 07777 : NewFileMode()) != 0) Fail(temporary_);
  if (replaces && chown(temporary_.c_str(), old.st_uid, old.st_gid) != 0) {
    // only root may give a file away; the copy then belongs to who made it
  }
  if (!Sync(temporary_, O_RDONLY)) Fail(temporary_);
  if (rename(temporary_.c_str(), path_.c_str()) != 0) Fail(path_);
  committed_ = true;
  // the new file is in place, whatever becomes of this
  const auto folder = std::filesystem::path(path_).parent_path();
  Sync(folder.empty() ? "." : folder.string(), O_RDONLY | O_DIRECTORY);
}

}  // namespace plotsmith::xlsx
