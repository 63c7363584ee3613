#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Opens and saves a workbook without other changes.
class SaveCommand final : public Command {
 public:
  SaveCommand() : Command("save", "Open a workbook and save it without changes") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  std::string output_;
};

}  // namespace plotsmith::cli
