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
  bool force = false;  ///< also write a workbook that another program holds open
};

/// A sentence for the user, and the exit code that goes with it.
class CommandError : public std::runtime_error {
 public:
  CommandError(int exitCode, const std::string& sentence)
      : std::runtime_error(sentence), exitCode_(exitCode) {}
  int ExitCode() const { return exitCode_; }

 private:
  int exitCode_;
};

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
