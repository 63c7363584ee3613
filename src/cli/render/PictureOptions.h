#pragma once

#include <CLI/CLI.hpp>
#include <cstddef>
#include <optional>
#include <string>

#include "cli/Streams.h"

namespace plotsmith::cli {

enum class PictureFormat { kSvg, kPng, kPdf };

/// The ending of a file of the format, with its dot.
const char* EndingOf(PictureFormat format);

/// What the command line says of pictures.
struct PictureOptions {
  std::optional<std::string> format;
  std::optional<double> dpi;
  std::optional<double> scale;

  bool AreGiven() const { return format || dpi || scale; }
};
/// `usualFormat` says in the help which format is taken without --format.
void DeclarePictureOptions(CLI::App& verb, PictureOptions& options, const std::string& usualFormat);

/// Where pictures go, and how they are made.
struct PicturePlan {
  enum class Target { kFolder, kFile, kStandardOutput };

  PictureFormat format = PictureFormat::kSvg;
  Target target = Target::kFolder;
  std::string path;  ///< of the folder or the file
  double dpi = 96;   ///< of a PNG
  double scale = 1;
};

/// Whether a path is no folder, and ends as the files of a format do.
bool LooksLikePicture(const std::string& path);

/// The plan for what the options say and `-o` names. Without `-o` the pictures go into the current folder,
/// without any word of the format they are SVG. A CommandError where the options don't go together.
PicturePlan PlanPictures(const PictureOptions& options, const std::optional<std::string>& output);

/// Refuses `count` pictures where the plan has room for one only, and a picture of bytes on a terminal.
/// `noun` is what the pictures are of, "chart".
void CheckRoom(const PicturePlan& plan, std::size_t count, const std::string& noun, const Streams& streams);

}  // namespace plotsmith::cli
