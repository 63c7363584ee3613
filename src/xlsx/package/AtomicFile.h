#pragma once

#include <string>

namespace plotsmith::xlsx {

/// A file that is written beside its target and replaces the target in one step. Until that step, the file
/// has no name if the file system allows that. Therefore a killed process leaves no file. Without Commit, the
/// target stays unchanged. All failures are PackageErrors.
class AtomicFile {
 public:
  /// Prepares a new file that replaces `path` on Commit. Throws a PackageError if `path` can't be replaced.
  explicit AtomicFile(const std::string& path);
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  /// The descriptor of the new file, which is open for reading and writing and empty at first.
  int Descriptor() const { return file_; }
  /// Flushes the new file to the disk.
  void Flush();
  /// Keeps other processes that call this from replacing the target while this object exists. Waits for them,
  /// but not longer than a replacement takes.
  void LockTarget();
  /// Replaces the target with the flushed file.
  void Commit();

 private:
  std::string path_;       ///< The target, with links resolved.
  std::string temporary_;  ///< The name of the file before Commit; empty if it has none.
  int file_ = -1;
  int lock_ = -1;  ///< The locked target, or -1.
};

}  // namespace plotsmith::xlsx
