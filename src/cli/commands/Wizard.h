#pragma once

#include <optional>
#include <string>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Plays a script on the pages of the wizard.
class WizardCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  int Play(std::istream& script, const GlobalOptions& options, const Streams& streams) const;

  std::string book_;
  std::optional<std::string> script_;
  std::optional<std::string> output_;
  bool show_ = false;
  bool json_ = false;
};

}  // namespace plotsmith::cli
