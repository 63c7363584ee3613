#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "xlsx/package/FileSystem.h"

namespace plotsmith::xlsx::file_system {
namespace {

/// Repeats a call that a signal has interrupted.
template <class Call>
std::int64_t Repeated(const Call& call) {
  std::int64_t count = 0;
  do {
    count = call();
  } while (count < 0 && errno == EINTR);
  return count;
}

}  // namespace

int OpenToRead(const std::string& path) { return open(path.c_str(), O_RDONLY | O_CLOEXEC); }

int OpenToWrite(const std::string& path) {
  return open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
}

int OpenScratch() {
  std::FILE* const scratch = std::tmpfile();
  if (scratch == nullptr) return -1;
  const int file = Duplicate(fileno(scratch));
  std::fclose(scratch);
  return file;
}

int Duplicate(int file) { return fcntl(file, F_DUPFD_CLOEXEC, 0); }

void Close(int file) { close(file); }

std::optional<std::uint64_t> SizeOf(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0) return std::nullopt;
  return static_cast<std::uint64_t>(status.st_size);
}

std::int64_t ReadAt(int file, void* data, std::size_t size, std::uint64_t position) {
  return Repeated([&] { return pread(file, data, size, static_cast<off_t>(position)); });
}

std::int64_t WriteAt(int file, const void* data, std::size_t size, std::uint64_t position) {
  return Repeated([&] { return pwrite(file, data, size, static_cast<off_t>(position)); });
}

}  // namespace plotsmith::xlsx::file_system
