#pragma once

#include <string>

namespace plotsmith::xlsx {

/// A file that comes into being beside its goal and takes the goal's place in one step, after it has reached
/// the disk. Without Commit nothing stays. Failures are PackageErrors.
class AtomicFile {
 public:
  explicit AtomicFile(const std::string& path);
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  const std::string& TemporaryPath() const { return temporary_; }
  void Commit();

 private:
  std::string path_;  ///< what a link at the given path points at
  std::string temporary_;
  bool committed_ = false;
};

}  // namespace plotsmith::xlsx
