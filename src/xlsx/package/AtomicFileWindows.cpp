#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <memory>
#include <utility>
#include <windows.h>

#include "runtime/Utf8Path.h"
#include "runtime/WindowsErrors.h"
#include "xlsx/package/AtomicFile.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {
namespace {

using runtime::PathOf;
using runtime::Utf8Of;

struct HandleCloser {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, HandleCloser>;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Opens a file. Returns null, with the reason in GetLastError, if that fails.
Handle Open(const std::filesystem::path& path, DWORD access, DWORD disposition) {
  const HANDLE handle = CreateFileW(path.c_str(), access, kShareAll, nullptr, disposition, 0, nullptr);
  return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

/// Returns Windows' message for an error, without the full stop.
std::string TextOf(DWORD error) {
  std::string text = runtime::WindowsErrorText(error);
  while (text.ends_with('.')) text.pop_back();
  return text.empty() ? "error " + std::to_string(error) : text;
}

std::string ReasonOf(DWORD error) {
  switch (error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
      return "another program has it open";
    case ERROR_ACCESS_DENIED:
      return "Permission denied";
    default:
      return TextOf(error);
  }
}

[[noreturn]] void Fail(const std::string& path) {
  throw PackageError("can't write " + path + ": " + ReasonOf(GetLastError()));
}

/// Refuses a folder, a read-only file, and a file that another program has locked.
void CheckReplaceable(const std::filesystem::path& target, const std::string& path) {
  const DWORD attributes = GetFileAttributesW(target.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return;  // a new file
  if (attributes & FILE_ATTRIBUTE_DIRECTORY)
    throw PackageError("can't write " + path + ": it is not a regular file");
  if (attributes & FILE_ATTRIBUTE_READONLY) SetLastError(ERROR_ACCESS_DENIED);
  if (attributes & FILE_ATTRIBUTE_READONLY || !Open(target, GENERIC_WRITE | DELETE, OPEN_EXISTING))
    Fail(path);
}

}  // namespace

AtomicFile::AtomicFile(const std::string& path) {
  std::error_code ignored;
  const auto target = std::filesystem::weakly_canonical(PathOf(path), ignored);
  path_ = ignored ? path : Utf8Of(target);
  CheckReplaceable(PathOf(path_), path);
  const std::string stem = path_ + "." + std::to_string(GetCurrentProcessId()) + "-";
  for (int n = 1; temporary_.empty(); ++n) {
    const std::string name = stem + std::to_string(n);
    if (Handle handle = Open(PathOf(name), GENERIC_READ | GENERIC_WRITE, CREATE_NEW)) {
      temporary_ = name;
      file_ = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle.release()), _O_BINARY);
    } else if (GetLastError() != ERROR_FILE_EXISTS) {
      Fail(path);
    }
  }
}

AtomicFile::~AtomicFile() {
  if (file_ >= 0) _close(file_);
  if (!temporary_.empty()) DeleteFileW(PathOf(temporary_).c_str());
}

void AtomicFile::Flush() {
  if (!FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file_)))) Fail(path_);
}

void AtomicFile::LockTarget() {}  // Windows doesn't replace a file that another process has open.

void AtomicFile::Commit() {
  _close(std::exchange(file_, -1));
  const auto target = PathOf(path_), temporary = PathOf(temporary_);
  const bool replaces = GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES;
  // ReplaceFile keeps the old file's access rights, attributes and creation time
  const BOOL placed = replaces ? ReplaceFileW(target.c_str(), temporary.c_str(), nullptr, 0, nullptr, nullptr)
                               : MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH);
  if (!placed) Fail(path_);
  temporary_.clear();
}

}  // namespace plotsmith::xlsx
