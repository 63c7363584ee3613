#pragma once

#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/wizard/PlayVerb.h"

namespace plotsmith::cli {

/// Deletes charts in the wizard.
class DeleteChartsCommand final : public Command {
 public:
  DeleteChartsCommand() : Command("delete", "Delete charts, with their definitions and comment boxes") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  VerbOptions verb_;
  std::vector<std::string> charts_;  ///< Ids or names.
};

}  // namespace plotsmith::cli
