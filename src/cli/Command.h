#pragma once

#include <CLI/CLI.hpp>
#include <stdexcept>
#include <string>

#include "cli/Streams.h"

namespace plotsmith::cli {

/// Options that hold for every command.
struct GlobalOptions {
  double hostVersion = 16;
  bool journal = false;
  bool force = false;       ///< also write a workbook that another program holds open
  bool dropBroken = false;  ///< also write a workbook whose broken definitions are lost by that
};

/// How a command ends.
namespace exit_code {
inline constexpr int kDone = 0;
inline constexpr int kSaidSomething = 1;  ///< done, but Plotsmith had something to say
inline constexpr int kUsage = 2;
/// A workbook or the output can't be read or written, or definitions would be lost; nothing was changed.
inline constexpr int kFile = 3;
}  // namespace exit_code

/// A sentence for the user, and the exit code that goes with it.
class CommandError : public std::runtime_error {
 public:
  CommandError(int exitCode, const std::string& sentence)
      : std::runtime_error(sentence), exitCode_(exitCode) {}
  int ExitCode() const { return exitCode_; }

 private:
  int exitCode_;
};

/// Sends off what was written to `out`; a CommandError where it can't be, as data that didn't arrive is no
/// success.
inline void Deliver(const Streams& streams) {
  if (!streams.out.flush()) throw CommandError(exit_code::kFile, "the output can't be written.");
}

/// What `-o` is for, where a verb can also write the workbook itself.
inline constexpr const char* kOutputDescription =
    "Write to this file and leave BOOK as it is; \"-\" is the standard output";

/// One verb of the command line.
class Command {
 public:
  virtual ~Command() = default;

  /// Declares the verb with its options below `app`.
  virtual CLI::App* Declare(CLI::App& app) = 0;
  /// Answers an exit code, or throws a CommandError or a PackageError.
  virtual int Run(const GlobalOptions& options, const Streams& streams) = 0;
};

}  // namespace plotsmith::cli
