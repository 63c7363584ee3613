#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/batch/BookBatch.h"

namespace plotsmith::cli {

/// Rebuilds the charts of workbooks: all of them, or those of one table.
class RefreshCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  BookResult RefreshBook(const BookRun& run, const GlobalOptions& options, const Streams& streams) const;

  std::vector<std::string> books_;
  std::optional<std::string> table_;
  std::optional<std::string> output_;
  std::optional<int> jobs_;
  bool verbose_ = false;
};

}  // namespace plotsmith::cli
