#pragma once

#include <string>
#include <vector>

#include "cli/line/CommandLine.h"

/// The manual page and the completions, generated from the command's table of verbs and options.
namespace plotsmith::cli {

/// Returns the manual page in the format of man(7).
std::string ManualPage(const CommandLine& line);
/// Returns a script for a shell that completes verbs, options and names of workbooks.
std::string BashCompletion(const CommandLine& line);
/// Returns a script for zsh that completes verbs, options and names of workbooks.
std::string ZshCompletion(const CommandLine& line);

/// An option of the command line, as shown to the user.
struct OptionView {
  /// Reads the names and texts of an option that the command declares.
  explicit OptionView(const CLI::Option& option);

  /// The names, such as "-o" and "--output", or the usage name of a positional argument.
  std::vector<std::string> names;
  std::string value;        ///< The usage name of its value; empty for a flag.
  std::string description;  ///< The text of the help.
  bool positional;          ///< Whether it is a positional argument.
  bool required;            ///< Whether it must be given.
  bool repeated;            ///< Whether it takes several values.
};

/// Returns the options of a verb except help, or the global options. Positional arguments come first.
std::vector<OptionView> OptionsOf(const CLI::App& app);

}  // namespace plotsmith::cli
