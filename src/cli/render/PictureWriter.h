#pragma once

#include <string>
#include <vector>

#include "cli/Streams.h"
#include "cli/render/PictureOptions.h"
#include "render/Drawing.h"

namespace plotsmith::cli {

/// Writes pictures where the plan says, and says on `out` which files they are in, a path each, if it says
/// nothing else.
class PictureWriter {
 public:
  /// Makes the folder, if it isn't there. A CommandError where that can't be done. `list` has the paths
  /// printed.
  PictureWriter(PicturePlan plan, const Streams& streams, bool list);

  /// Takes a picture, whose file in a folder has the name, without its ending. A CommandError where it can't
  /// be written.
  void Add(const std::string& name, render::Drawing drawing);
  /// The same for the pages of one PDF document.
  void AddDocument(const std::string& name, std::vector<render::Drawing> pages);
  /// Writes what goes into one file. To be called after the last picture.
  void Finish();

 private:
  /// All pages as PDF, of other formats the first one.
  std::string BytesOf(std::vector<render::Drawing> pages) const;
  std::string PngOf(const render::Drawing& drawing) const;
  void WriteFile(const std::string& path, const std::string& bytes) const;

  PicturePlan plan_;
  Streams streams_;
  bool list_;
  std::vector<render::Drawing> pages_;  ///< of the one file
};

}  // namespace plotsmith::cli
