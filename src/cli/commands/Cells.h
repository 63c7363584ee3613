#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Prints the cells of a range, also on very hidden sheets.
class CellsCommand final : public Command {
 public:
  CellsCommand() : Command("cells", "Print the cells of a range, also on hidden sheets") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  std::string range_;
  bool value_ = false;
  bool json_ = false;
};

}  // namespace plotsmith::cli
