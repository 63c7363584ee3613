#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <limits>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include "runtime/Utf8Path.h"
#include "xlsx/package/FileSystem.h"

namespace plotsmith::xlsx::file_system {
namespace {

/// The C run-time uses int for sizes.
unsigned CountOf(std::size_t size) {
  return static_cast<unsigned>(std::min<std::size_t>(size, std::numeric_limits<int>::max()));
}

int Open(const std::string& path, int flags) {
  int file = -1;
  _wsopen_s(&file, runtime::PathOf(path).c_str(), flags | _O_BINARY | _O_NOINHERIT, _SH_DENYNO,
            _S_IREAD | _S_IWRITE);
  return file;
}

}  // namespace

// Other programs may replace the file while it is open. The open functions of the C run-time don't allow
// that.
int OpenToRead(const std::string& path) {
  const HANDLE handle = CreateFileW(runtime::PathOf(path).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    const DWORD error = GetLastError();
    errno = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? ENOENT : EACCES;
    return -1;
  }
  return _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_RDONLY | _O_BINARY);
}

int OpenToWrite(const std::string& path) { return Open(path, _O_RDWR | _O_CREAT | _O_TRUNC); }

int OpenScratch() {
  wchar_t folder[MAX_PATH + 1], name[MAX_PATH + 1];
  errno = EACCES;
  if (GetTempPathW(MAX_PATH, folder) == 0 || GetTempFileNameW(folder, L"plo", 0, name) == 0) return -1;
  int file = -1;
  _wsopen_s(&file, name, _O_RDWR | _O_TEMPORARY | _O_BINARY | _O_NOINHERIT, _SH_DENYNO, _S_IREAD | _S_IWRITE);
  return file;
}

int Duplicate(int file) { return _dup(file); }

void Close(int file) { _close(file); }

std::optional<std::uint64_t> SizeOf(int file) {
  const std::int64_t size = _filelengthi64(file);
  if (size < 0) return std::nullopt;
  return static_cast<std::uint64_t>(size);
}

std::int64_t ReadAt(int file, void* data, std::size_t size, std::uint64_t position) {
  if (_lseeki64(file, static_cast<std::int64_t>(position), SEEK_SET) < 0) return -1;
  return _read(file, data, CountOf(size));
}

std::int64_t WriteAt(int file, const void* data, std::size_t size, std::uint64_t position) {
  if (_lseeki64(file, static_cast<std::int64_t>(position), SEEK_SET) < 0) return -1;
  return _write(file, data, CountOf(size));
}

}  // namespace plotsmith::xlsx::file_system
