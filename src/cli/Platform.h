#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

/// What the command asks of the operating system. Each system has a source file.
namespace plotsmith::cli {

/// The arguments of `main` without the program's name, in UTF-8.
std::vector<std::string> Arguments(int argc, char** argv);

/// While it lives, the standard streams carry bytes as they are, and a console shows them as UTF-8.
class StandardStreams {
 public:
  StandardStreams();
  ~StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;

 private:
  [[maybe_unused]] unsigned oldCodePage_ = 0;  ///< of the console's output; 0 without a console
};

bool IsTerminal(std::FILE* stream);

/// Windows' locale identifier (MS-LCID) of the user's locale.
std::int32_t UserLCID();

}  // namespace plotsmith::cli
