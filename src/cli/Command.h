#pragma once

#include <stdexcept>
#include <string>

#include "cli/Streams.h"

namespace CLI {
class App;
}

namespace plotsmith::cli {

/// The options of all commands.
struct GlobalOptions {
  double hostVersion = 16;  ///< The version of Excel that the embedded host reports.
  bool journal = false;     ///< Whether calls to the host are printed.
  bool force = false;       ///< Also write a workbook that another program has open.
  bool dropBroken = false;  ///< Also write a workbook if broken definitions are lost.
};

/// The exit codes of the command.
namespace exit_code {
inline constexpr int kDone = 0;              ///< The command did its work, and there was no message.
inline constexpr int kDoneWithMessages = 1;  ///< The command did its work, and there was a message.
/// The arguments or a script are wrong, a page rejected its input, or a part of Plotsmith isn't installed.
/// Nothing was changed.
inline constexpr int kUsage = 2;
/// A workbook or the output can't be read or written, or definitions would be lost. Nothing was changed.
inline constexpr int kFile = 3;
}  // namespace exit_code

/// An error of a command: a sentence for the user, and the exit code.
class CommandError : public std::runtime_error {
 public:
  /// Makes an error with the exit code of the program and a sentence for the user.
  CommandError(int exitCode, const std::string& sentence)
      : std::runtime_error(sentence), exitCode_(exitCode) {}
  /// The exit code of the command.
  int ExitCode() const { return exitCode_; }

 private:
  int exitCode_;
};

/// Flushes `out`. Throws CommandError if that fails, because lost data is an error.
inline void FlushOutput(const Streams& streams) {
  if (!streams.out.flush()) throw CommandError(exit_code::kFile, "the output can't be written.");
}

/// The description of `-o` for verbs that can also write the workbook itself.
inline constexpr const char* kOutputDescription =
    "Write to this file and leave BOOK as it is; \"-\" is the standard output";

/// A verb of the command line.
class Command {
 public:
  /// Makes a verb with a name and a description for the help.
  Command(const char* name, const char* description) : name_(name), description_(description) {}
  virtual ~Command() = default;

  /// The name of the verb.
  const char* Name() const { return name_; }
  /// What the verb does, in a few words.
  const char* Description() const { return description_; }
  /// Declares the arguments and options of the verb. This object keeps their values.
  virtual void DeclareOptions(CLI::App& verb) = 0;
  /// Executes the verb. Returns an exit code, or throws a CommandError or a PackageError.
  virtual int Run(const GlobalOptions& options, const Streams& streams) = 0;

 private:
  const char* name_;
  const char* description_;
};

}  // namespace plotsmith::cli
