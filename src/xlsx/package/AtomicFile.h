#pragma once

#include <string>

namespace plotsmith::xlsx {

/// A file that is written beside its target and takes the target's place in one step, after it has reached
/// the disk. Until then it has no name where the file system can do that, so that a process that is killed
/// leaves nothing behind. Without Commit nothing stays. Failures are PackageErrors.
class AtomicFile {
 public:
  explicit AtomicFile(const std::string& path);
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  /// Open for reading and writing, and empty at first.
  int Descriptor() const { return file_; }
  void Commit();

 private:
  std::string path_;       ///< what a link at the given path points at
  std::string temporary_;  ///< the name of the file before Commit; empty while it has none
  int file_ = -1;
};

}  // namespace plotsmith::xlsx
