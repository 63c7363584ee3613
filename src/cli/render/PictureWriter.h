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

/// Writes pictures according to a plan. Optionally prints the paths of the files on `out`, one per line.
/// Threads make and write the pictures while the caller continues.
class PictureWriter {
 public:
  /// Makes the folder if it doesn't exist. Throws CommandError if that fails. With `list`, the paths are
  /// printed.
  PictureWriter(PicturePlan plan, const Streams& streams, bool list);

  /// Adds a picture. In a folder, `name` is the name of its file, without extension. Throws CommandError if
  /// it, or one before it, can't be made or written.
  void Add(const std::string& name, render::Drawing drawing);
  /// Adds the pages of a PDF document.
  void AddDocument(const std::string& name, std::vector<render::Drawing> pages);
  /// Waits until everything is written. Call this after the last picture.
  void Finish();

 private:
  /// Returns all pages as PDF, or the first page in another format.
  std::string BytesOf(const std::vector<render::Drawing>& pages) const;
  std::string PngOf(const render::Drawing& drawing) const;
  void AddPage(const render::Drawing& page);
  /// Waits for the added pictures, and prints their paths. Throws the first error.
  void Await();

  PicturePlan plan_;
  Streams streams_;
  bool list_;
  std::string bytes_;  ///< The bytes of the single file.
  std::unique_ptr<render::PdfDocument> document_;
  std::vector<std::string> paths_;  ///< The file of each task; empty for a task that writes none.
  TaskQueue tasks_;
};

}  // namespace plotsmith::cli
