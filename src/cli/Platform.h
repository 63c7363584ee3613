#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

/// Operating system functions of the command. Each system has a source file.
namespace plotsmith::cli {

/// Returns the arguments of `main` in UTF-8, without the program's name.
std::vector<std::string> Arguments(int argc, char** argv);

/// Sets the standard streams to binary mode, and a console to UTF-8, until it is destroyed.
class StandardStreams {
 public:
  StandardStreams();
  ~StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;

 private:
  /// The previous code page of the console; 0 without a console.
  [[maybe_unused]] unsigned oldCodePage_ = 0;
};

/// Returns the time since 1970 in UTC, in microseconds. It advances in steps of some milliseconds, because
/// the system asks for the time in its innermost loops.
std::int64_t CoarseTime();

/// Returns true if a stream is a terminal.
bool IsTerminal(std::FILE* stream);

/// Returns the Windows locale identifier (MS-LCID) of the user's locale.
std::int32_t UserLCID();

}  // namespace plotsmith::cli
