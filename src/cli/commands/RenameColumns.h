#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Renames columns of a table in the definitions of its charts.
class RenameColumnsCommand final : public Command {
 public:
  RenameColumnsCommand()
      : Command("rename-columns", "Rename columns in a table's charts after its headings were changed") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  std::string table_;
  std::vector<std::string> renamings_;
  std::optional<std::string> output_;
};

using Renaming = std::pair<std::string, std::string>;  ///< The old name and the new name.

/// Orders renamings so that performing them one after the other has the same effect as performing them all at
/// once: a name is used only after its old column was renamed. Columns that swap their names use an unused
/// name in between.
std::vector<Renaming> InSteps(std::vector<Renaming> renamings);

}  // namespace plotsmith::cli
