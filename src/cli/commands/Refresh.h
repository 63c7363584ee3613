#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/batch/BookBatch.h"
#include "cli/render/PictureOptions.h"

namespace plotsmith::cli {

/// Rebuilds the charts of workbooks: all of them, or those of one table. Optionally draws them into a folder.
class RefreshCommand final : public Command {
 public:
  RefreshCommand() : Command("refresh", "Rebuild the charts of workbooks from their tables") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  BookResult RefreshBook(const BookRun& run, const GlobalOptions& options, const Streams& streams) const;
  /// Throws CommandError if the picture options don't fit the runs.
  void CheckPictures(const std::vector<BookRun>& runs) const;
  PicturePlan PlanOfPictures() const;

  std::vector<std::string> books_;
  std::optional<std::string> table_;
  std::optional<std::string> output_;
  std::optional<double> jobs_;
  bool verbose_ = false;
  std::optional<std::string> pictureFolder_;
  PictureOptions pictures_;
};

}  // namespace plotsmith::cli
