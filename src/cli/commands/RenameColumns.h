#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Carries new names of a table's columns into the definitions of its charts.
class RenameColumnsCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  std::string table_;
  std::vector<std::string> renamings_;
  std::optional<std::string> output_;
};

using Renaming = std::pair<std::string, std::string>;  ///< old name, new name

/// The renamings as steps that give the same when they are taken one after the other as all at once: no name
/// is taken before the column that bears it has given it up. Columns that swap their names go by way of one
/// that nobody has.
std::vector<Renaming> InSteps(std::vector<Renaming> renamings);

}  // namespace plotsmith::cli
