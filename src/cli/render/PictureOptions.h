#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "cli/Streams.h"

namespace CLI {
class App;
}

namespace plotsmith::cli {

/// The format of a picture file.
enum class PictureFormat { kSvg, kPng, kPdf };

/// Returns the file extension of a format, including the dot.
const char* EndingOf(PictureFormat format);

/// The picture options of the command line. Options that weren't given are absent.
struct PictureOptions {
  std::optional<std::string> format;  ///< "svg", "png" or "pdf", in any case.
  std::optional<double> dpi;          ///< The pixels per inch of a PNG picture.
  std::optional<double> scale;        ///< The factor by which the picture is enlarged.

  /// Returns true if any of the options was given.
  bool AreGiven() const { return format || dpi || scale; }
};
/// Declares the picture options. `usualFormat` is the default of --format in the help.
void DeclarePictureOptions(CLI::App& verb, PictureOptions& options, const std::string& usualFormat);

/// The destination and the format of pictures.
struct PicturePlan {
  /// The destination of pictures.
  enum class Target { kFolder, kFile, kStandardOutput };

  PictureFormat format = PictureFormat::kSvg;  ///< The format.
  Target target = Target::kFolder;             ///< The destination.
  std::string path;                            ///< The path of the folder or the file.
  double dpi = 96;                             ///< The resolution of a PNG picture in dots per inch.
  double scale = 1;  ///< The size of the picture, as a multiple of the size of the chart.
};

/// Returns true if a path isn't a folder and has the extension of a picture format.
bool LooksLikePicture(const std::string& path);

/// Makes the plan from the options and `-o`. The default destination is the current folder, and the default
/// format is SVG. Throws CommandError if the options contradict each other.
PicturePlan PlanPictures(const PictureOptions& options, const std::optional<std::string>& output);

/// Throws CommandError if `count` pictures don't fit into a single file, or if binary pictures would go to a
/// terminal. `noun` is the subject of the pictures, such as "chart".
void CheckPictureCount(const PicturePlan& plan, std::size_t count, const std::string& noun,
                       const Streams& streams);

}  // namespace plotsmith::cli
