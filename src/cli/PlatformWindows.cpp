#include <fcntl.h>
#include <io.h>
// Include windows.h before the headers that depend on it.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "cli/Platform.h"

namespace plotsmith::cli {
namespace {

/// Half of a surrogate pair, which a file name can contain, becomes a replacement character.
std::string Utf8Of(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
  utf8.pop_back();  // Remove the terminating null.
  return utf8;
}

}  // namespace

// The arguments of `main` lack the characters that the system's code page doesn't have.
std::vector<std::string> Arguments(int, char**) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8Of(words[i]));
  LocalFree(words);
  return arguments;
}

StandardStreams::StandardStreams() : oldCodePage_(GetConsoleOutputCP()) {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  if (oldCodePage_ != 0) SetConsoleOutputCP(CP_UTF8);
}

StandardStreams::~StandardStreams() {
  if (oldCodePage_ != 0) SetConsoleOutputCP(oldCodePage_);
}

std::int64_t CoarseTime() {
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  constexpr std::int64_t kFrom1601To1970 = 11'644'473'600'000'000;
  const auto ticks = (std::uint64_t{now.dwHighDateTime} << 32) | now.dwLowDateTime;  // Of 100 nanoseconds.
  return static_cast<std::int64_t>(ticks / 10) - kFrom1601To1970;
}

// The C run-time library treats the null device as a terminal.
bool IsTerminal(std::FILE* stream) {
  DWORD mode = 0;
  return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream))), &mode) != 0;
}

std::int32_t UserLCID() { return static_cast<std::int32_t>(GetUserDefaultLCID()); }

}  // namespace plotsmith::cli
