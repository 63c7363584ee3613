#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/SystemErrors.h"
#include "xlsx/package/AtomicFile.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const std::string& path) {
  throw PackageError("can't write " + path + ": " + runtime::SystemErrorText(errno));
}

constexpr const char* kDescriptors = "/proc/self/fd";
constexpr int kLockAttempts = 200;
constexpr useconds_t kLockPause = 5000;  // microseconds between two attempts

/// Opens a file without a name in the folder. Returns -1 if the system can't make such files or can't give
/// them names later.
int OpenNameless(const std::string& folder) {
  if (access(kDescriptors, X_OK) != 0) return -1;
  return open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
}

/// Returns the file to which a path leads through links. The file needn't exist. If the links can't be
/// followed, returns the path itself.
std::string TargetOf(const std::string& path) {
  std::error_code error, missing;
  fs::path target = fs::weakly_canonical(path, error);
  // The last link may lead to a file that doesn't exist yet.
  while (!error && fs::is_symlink(target, missing)) {
    const fs::path link = fs::read_symlink(target, error);
    if (!error) target = fs::weakly_canonical(target.parent_path() / link, error);
  }
  return error ? path : target.string();
}

std::string FolderOf(const std::string& path) {
  const auto folder = fs::path(path).parent_path();
  return folder.empty() ? "." : folder.string();
}

/// Flushes the folder's entries to the disk. Errors are ignored: the files are already in place, and some
/// file systems don't support this.
void SyncFolder(const std::string& folder) {
  const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return;
  static_cast<void>(fsync(file));
  close(file);
}

/// Gives a name to the nameless file. Returns false, with the reason in errno, if it can't have this name.
bool LinkTo(int file, const std::string& path) {
  const std::string self = std::string(kDescriptors) + "/" + std::to_string(file);
  return linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

/// Gives the nameless file a name beside `path`, and returns that name.
std::string LinkBeside(int file, const std::string& path) {
  const std::string stem = path + "." + std::to_string(getpid()) + "-";
  for (int n = 1;; ++n) {
    std::string name = stem + std::to_string(n);
    if (LinkTo(file, name)) return name;
    if (errno != EEXIST) Fail(path);
  }
}

mode_t NewFileMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

}  // namespace

AtomicFile::AtomicFile(const std::string& path) {
  path_ = TargetOf(path);
  struct stat old {};
  if (stat(path_.c_str(), &old) == 0) {
    if (!S_ISREG(old.st_mode)) throw PackageError("can't write " + path + ": it is not a regular file");
    if (access(path_.c_str(), W_OK) != 0) Fail(path);
  } else if (errno != ENOENT) {
    Fail(path);
  }
  file_ = OpenNameless(FolderOf(path_));
  if (file_ >= 0) return;
  temporary_ = path_ + ".XXXXXX";
  file_ = mkostemp(temporary_.data(), O_CLOEXEC);
  if (file_ < 0) Fail(path);
}

AtomicFile::~AtomicFile() {
  close(file_);
  if (lock_ >= 0) close(lock_);
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

void AtomicFile::Flush() {
  if (fsync(file_) != 0 && errno != EINVAL) Fail(path_);
}

// Programs such as LibreOffice hold such a lock as long as they have a file open, and the user may insist on
// a save meanwhile. So this doesn't wait for ever.
void AtomicFile::LockTarget() {
  lock_ = open(path_.c_str(), O_RDWR | O_CLOEXEC);
  struct flock whole {};
  whole.l_type = F_WRLCK;
  for (int attempt = 0; lock_ >= 0 && attempt < kLockAttempts; ++attempt) {
    if (fcntl(lock_, F_OFD_SETLK, &whole) == 0 || (errno != EAGAIN && errno != EACCES)) return;
    usleep(kLockPause);
  }
}

void AtomicFile::Commit() {
  const std::string folder = FolderOf(path_);
  struct stat old {};
  const bool replaces = stat(path_.c_str(), &old) == 0;
  if (fchmod(file_, replaces ? old.st_mode & 07777 : NewFileMode()) != 0) Fail(path_);
  if (replaces && fchown(file_, old.st_uid, old.st_gid) != 0) {
    // Only root can change the owner. Otherwise the copy belongs to the current user.
  }
  // A link can't replace a file, so the nameless file gets a temporary name first.
  const bool placed = temporary_.empty() && !replaces && LinkTo(file_, path_);
  if (!placed) {
    if (temporary_.empty()) temporary_ = LinkBeside(file_, path_);
    if (rename(temporary_.c_str(), path_.c_str()) != 0) Fail(path_);
    temporary_.clear();
  }
  SyncFolder(folder);
}

}  // namespace plotsmith::xlsx
