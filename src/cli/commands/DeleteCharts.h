#pragma once

#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/wizard/PlayVerb.h"

namespace plotsmith::cli {

/// Deletes charts in the wizard.
class DeleteChartsCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  VerbOptions verb_;
  std::vector<std::string> charts_;  ///< Ids or names.
};

}  // namespace plotsmith::cli
