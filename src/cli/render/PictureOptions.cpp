#include "cli/render/PictureOptions.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include "cli/Command.h"
#include "cli/NumberOptions.h"
#include "cli/Session.h"
#include "cli/check/Words.h"
#include "runtime/Strings.h"
#include "runtime/Utf8Path.h"
#include "xlsx/package/WorkbookKind.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;

constexpr double kLeastDpi = 10, kMostDpi = 2400, kLeastScale = 0.01, kMostScale = 100;

struct FormatName {
  const char* name;
  const char* ending;
  PictureFormat format;
};
constexpr std::array kFormats = {FormatName{"svg", ".svg", PictureFormat::kSvg},
                                 FormatName{"png", ".png", PictureFormat::kPng},
                                 FormatName{"pdf", ".pdf", PictureFormat::kPdf}};

CommandError Usage(const std::string& sentence) { return CommandError(exit_code::kUsage, sentence); }

std::optional<PictureFormat> FormatOfName(const std::string& name) {
  for (const FormatName& known : kFormats) {
    if (runtime::EqualsIgnoreCase(name, known.name)) return known.format;
  }
  return std::nullopt;
}

/// Returns the format for a file extension.
std::optional<PictureFormat> FormatOfFile(const std::string& path) {
  const std::string ending = runtime::Utf8Of(runtime::PathOf(path).extension());
  return ending.empty() ? std::nullopt : FormatOfName(ending.substr(1));
}

bool IsFolder(const std::string& path) {
  std::error_code ignored;
  return path.ends_with('/') || fs::is_directory(runtime::PathOf(path), ignored);
}

PictureFormat FormatFor(const PictureOptions& options, const PicturePlan& plan) {
  std::optional<PictureFormat> format;
  if (options.format) {
    format = FormatOfName(*options.format);
    if (!format) throw Usage("--format must be svg, png or pdf, not " + Quoted(*options.format) + ".");
  }
  if (plan.target != PicturePlan::Target::kFile) return format.value_or(PictureFormat::kSvg);
  const auto ofFile = FormatOfFile(plan.path);
  if (!format && !ofFile) {
    throw Usage("the name \"" + plan.path +
                "\" has no known extension: use .svg, .png or .pdf, or --format; the name of a new folder "
                "ends with \"/\".");
  }
  if (xlsx::KindOfName(plan.path) != nullptr) {
    throw Usage("\"" + plan.path + "\" is the name of a workbook; a picture ends with .svg, .png or .pdf.");
  }
  if (format && ofFile && *format != *ofFile)
    throw Usage("\"" + plan.path + "\" and --format " + *options.format + " are different formats.");
  return format.value_or(ofFile.value_or(PictureFormat::kSvg));
}

}  // namespace

const char* EndingOf(PictureFormat format) {
  return std::find_if(kFormats.begin(), kFormats.end(),
                      [&](const FormatName& known) { return known.format == format; })
      ->ending;
}

void DeclarePictureOptions(CLI::App& verb, PictureOptions& options, const std::string& usualFormat) {
  verb.add_option("--format", options.format, "Write svg, png or pdf (default: " + usualFormat + ")")
      ->type_name("KIND");
  DeclareNumber(
      verb, "--dpi", [&options](double dpi) { options.dpi = dpi; },
      "Set the resolution of PNG pictures in pixels per inch (default: 96)");
  DeclareNumber(
      verb, "--scale", [&options](double scale) { options.scale = scale; },
      "Enlarge the picture by this factor");
}

bool LooksLikePicture(const std::string& path) { return !IsFolder(path) && FormatOfFile(path).has_value(); }

PicturePlan PlanPictures(const PictureOptions& options, const std::optional<std::string>& output) {
  if (output && output->empty()) throw Usage("-o needs the name of a file or a folder.");
  PicturePlan plan;
  plan.path = output.value_or(".");
  plan.target = IsStandardOutput(output) ? PicturePlan::Target::kStandardOutput
                : IsFolder(plan.path)    ? PicturePlan::Target::kFolder
                                         : PicturePlan::Target::kFile;
  plan.format = FormatFor(options, plan);
  if (options.dpi && plan.format != PictureFormat::kPng)
    throw Usage("--dpi applies only to PNG; --scale enlarges pictures of all formats.");
  plan.dpi = options.dpi.value_or(plan.dpi);
  if (!(plan.dpi >= kLeastDpi && plan.dpi <= kMostDpi)) throw Usage("--dpi needs a number from 10 to 2400.");
  plan.scale = options.scale.value_or(plan.scale);
  if (!(plan.scale >= kLeastScale && plan.scale <= kMostScale))
    throw Usage("--scale needs a number from 0.01 to 100.");
  return plan;
}

void CheckPictureCount(const PicturePlan& plan, std::size_t count, const std::string& noun,
                       const Streams& streams) {
  const bool toOut = plan.target == PicturePlan::Target::kStandardOutput;
  if (toOut && streams.outTerminal && plan.format != PictureFormat::kSvg)
    throw Usage("a picture isn't written to a terminal; redirect the output, or name a file.");
  if (count < 2 || plan.target == PicturePlan::Target::kFolder || plan.format == PictureFormat::kPdf) return;
  throw Usage((toOut ? "the standard output" : "\"" + plan.path + "\"") +
              " can contain only one picture, but there are " + Counted(count, noun) +
              "; use a folder or a PDF.");
}

}  // namespace plotsmith::cli
