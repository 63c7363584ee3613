#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Opens and saves a workbook without other changes.
class SaveCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  std::string output_;
};

}  // namespace plotsmith::cli
