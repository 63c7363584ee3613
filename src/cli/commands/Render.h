#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/render/PictureWriter.h"

namespace plotsmith::cli {

class Session;

/// Draws charts, or a sheet as it is printed, into files.
class RenderCommand final : public Command {
 public:
  RenderCommand() : Command("render", "Draw charts into files: SVG, PNG or PDF") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  int RenderCharts(Session& session, std::unique_ptr<PictureWriter> writer, const Streams& streams) const;
  int RenderSheet(Session& session, std::unique_ptr<PictureWriter> writer, const Streams& streams) const;

  std::string book_;
  std::vector<std::string> charts_;
  std::optional<std::string> sheet_;
  bool onePage_ = false;
  std::optional<std::string> output_;
  PictureOptions pictures_;
};

}  // namespace plotsmith::cli
