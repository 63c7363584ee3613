#pragma once

#include <string>
#include <vector>

#include "cli/Streams.h"
#include "cli/render/PictureOptions.h"
#include "render/Drawing.h"

namespace plotsmith::cli {

/// Writes pictures according to a plan. Optionally prints the paths of the files on `out`, one per line.
class PictureWriter {
 public:
  /// Makes the folder if it doesn't exist. Throws CommandError if that fails. With `list`, the paths are
  /// printed.
  PictureWriter(PicturePlan plan, const Streams& streams, bool list);

  /// Adds a picture. In a folder, `name` is the name of its file, without extension. Throws CommandError if
  /// it can't be written.
  void Add(const std::string& name, render::Drawing drawing);
  /// Adds the pages of a PDF document.
  void AddDocument(const std::string& name, std::vector<render::Drawing> pages);
  /// Writes the single file, if the plan has one. Call this after the last picture.
  void Finish();

 private:
  /// Returns all pages as PDF, or the first page in another format.
  std::string BytesOf(std::vector<render::Drawing> pages) const;
  std::string PngOf(const render::Drawing& drawing) const;
  void WriteFile(const std::string& path, const std::string& bytes) const;

  PicturePlan plan_;
  Streams streams_;
  bool list_;
  std::vector<render::Drawing> pages_;  ///< The pages of the single file.
};

}  // namespace plotsmith::cli
