#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "cli/Streams.h"
#include "cli/render/PictureOptions.h"
#include "cli/render/TaskQueue.h"
#include "render/Drawing.h"
#include "render/Painter.h"

namespace plotsmith::cli {

/// Writes pictures where the plan says, and says on `out` which files they are in, a path each, if it says
/// nothing else. Pictures are made and written beside the caller's work.
class PictureWriter {
 public:
  /// Makes the folder, if it isn't there. A CommandError where that can't be done. `list` has the paths
  /// printed.
  PictureWriter(PicturePlan plan, const Streams& streams, bool list);

  /// Takes a picture, whose file in a folder has the name, without its ending. A CommandError where it, or
  /// one before it, can't be made or written.
  void Add(const std::string& name, render::Drawing drawing);
  /// The same for the pages of one PDF document.
  void AddDocument(const std::string& name, std::vector<render::Drawing> pages);
  /// Waits until all is written. To be called after the last picture.
  void Finish();

 private:
  /// All pages as PDF, of other formats the first one.
  std::string BytesOf(const std::vector<render::Drawing>& pages) const;
  std::string PngOf(const render::Drawing& drawing) const;
  void AddPage(const render::Drawing& page);
  /// Waits for the pictures that were taken, and prints their paths. Throws what went wrong first.
  void Await();

  PicturePlan plan_;
  Streams streams_;
  bool list_;
  std::string bytes_;  ///< of the one file
  std::unique_ptr<render::PdfDocument> document_;
  std::vector<std::string> paths_;  ///< where each task writes to; empty where it writes nothing
  TaskQueue tasks_;
};

}  // namespace plotsmith::cli
