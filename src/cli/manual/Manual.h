#pragma once

#include <string>
#include <vector>

#include "cli/line/CommandLine.h"

/// What is installed beside the command, made from its own table of verbs and options, so that it tells of
/// those that there are.
namespace plotsmith::cli {

/// The manual page, in the language of man(7).
std::string ManualPage(const CommandLine& line);
/// Scripts by which a shell completes verbs, options and the names of workbooks.
std::string BashCompletion(const CommandLine& line);
std::string ZshCompletion(const CommandLine& line);

/// An option of the command line as its user sees it.
struct OptionView {
  explicit OptionView(const CLI::Option& option);

  std::vector<std::string> names;  ///< "-o", "--output"; the name in the usage of a positional argument
  std::string value;               ///< the name of its value in the usage; empty for a flag
  std::string description;
  bool positional;
  bool required;
  bool repeated;
};

/// The options of a verb without its help, or those that hold for all; positional arguments first.
std::vector<OptionView> OptionsOf(const CLI::App& app);

}  // namespace plotsmith::cli
