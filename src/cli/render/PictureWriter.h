#pragma once

#include <cstddef>
#include <deque>
#include <functional>
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
  /// Makes a writer for a plan. With `list`, the paths are printed.
  PictureWriter(PicturePlan plan, const Streams& streams, bool list);

  /// Starts the threads, and loads the measure and the list of fonts in one of them. Loading takes longer
  /// than reading a workbook, so call this before you open the workbook.
  void LoadAhead();
  /// Makes the folder if it doesn't exist. Throws CommandError if that fails. Call this before the first
  /// picture.
  void Open();
  /// Returns the plan.
  const PicturePlan& Plan() const { return plan_; }

  /// Draws the pages of a file: one page, or several of a PDF document. Without a page there is no file. It
  /// may be called by any thread.
  using DrawPages = std::function<std::vector<render::Drawing>()>;

  /// Adds a file. In a folder, `name` is its name without extension. The pages of a single file are painted
  /// one after the other, so they are drawn at once by this thread. Throws CommandError if the file, or one
  /// before it, can't be made or written.
  void Add(const std::string& name, DrawPages draw);
  /// Waits until everything is written. Call this after the last picture.
  void Finish();

 private:
  /// A file in the folder.
  struct PictureFile {
    std::string path;
    bool isWritten = false;
  };

  /// Draws pages. Those of SVG and PDF are scaled; a PNG is painted larger instead.
  std::vector<render::Drawing> Drawn(const DrawPages& draw) const;
  /// Returns all pages as PDF, or the first page in another format.
  std::string BytesOf(const std::vector<render::Drawing>& pages) const;
  std::string PngOf(const render::Drawing& drawing) const;
  void PaintPages(const std::vector<render::Drawing>& pages);
  /// Waits for the pictures that were added, and prints their paths. Throws the first error.
  void Await();

  PicturePlan plan_;
  Streams streams_;
  bool list_;
  std::string bytes_;  ///< The bytes of the single file.
  std::unique_ptr<render::PdfDocument> document_;
  std::deque<PictureFile> files_;  ///< The file of each task, in a folder.
  TaskQueue tasks_;
};

}  // namespace plotsmith::cli
