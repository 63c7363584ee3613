#pragma once

#include <optional>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Rebuilds all charts, or those that hang on one table.
class RefreshCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  std::optional<std::string> table_;
  std::optional<std::string> output_;
};

}  // namespace plotsmith::cli
