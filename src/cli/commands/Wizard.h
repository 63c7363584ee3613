#pragma once

#include <optional>
#include <string>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Opens the wizard's window, or runs a script on its pages.
class WizardCommand final : public Command {
 public:
  WizardCommand() : Command("wizard", "Open the wizard's window, or run a script on its pages") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  /// Replaces this process by the program of the window. Throws CommandError if it isn't installed.
  [[noreturn]] void OpenWindow(const GlobalOptions& options) const;
  int Play(std::istream& script, const GlobalOptions& options, const Streams& streams) const;

  std::string book_;
  std::optional<std::string> script_;
  std::optional<std::string> output_;
  bool show_ = false;
  bool json_ = false;
};

}  // namespace plotsmith::cli
