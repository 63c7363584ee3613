#include "cli/render/PictureWriter.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "cli/Command.h"
#include "cli/render/LoadPainter.h"
#include "render/Composition.h"
#include "render/svg/SvgWriter.h"
#include "runtime/Utf8Path.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;

constexpr double kPointsPerInch = 72;

}  // namespace

PictureWriter::PictureWriter(PicturePlan plan, const Streams& streams, bool list)
    : plan_(std::move(plan)), streams_(streams), list_(list) {
  if (plan_.target != PicturePlan::Target::kFolder) return;
  std::error_code error;
  fs::create_directories(runtime::PathOf(plan_.path), error);
  if (error && !fs::is_directory(runtime::PathOf(plan_.path)))
    throw CommandError(exit_code::kFile,
                       "can't make the folder \"" + plan_.path + "\": " + error.message() + ".");
}

std::string PictureWriter::PngOf(const render::Drawing& drawing) const {
  try {
    return LoadPainter().Png(drawing, plan_.scale * plan_.dpi / kPointsPerInch);
  } catch (const std::length_error&) {
    throw CommandError(
        exit_code::kUsage,
        "a picture would have more than a hundred million pixels; use a smaller --dpi or --scale.");
  }
}

std::string PictureWriter::BytesOf(std::vector<render::Drawing> pages) const {
  if (plan_.format == PictureFormat::kPng) return PngOf(pages.front());
  if (plan_.scale != 1) {
    for (render::Drawing& page : pages) page = render::Scaled(page, plan_.scale);
  }
  return plan_.format == PictureFormat::kSvg ? render::MakeSvg(pages.front()) : LoadPainter().Pdf(pages);
}

void PictureWriter::WriteFile(const std::string& path, const std::string& bytes) const {
  std::ofstream file(runtime::PathOf(path), std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush())
    throw CommandError(exit_code::kFile, "can't write \"" + path + "\": " + std::strerror(errno) + ".");
  if (list_) streams_.out << path << '\n';
}

void PictureWriter::Add(const std::string& name, render::Drawing drawing) {
  std::vector<render::Drawing> pages;
  pages.push_back(std::move(drawing));
  AddDocument(name, std::move(pages));
}

void PictureWriter::AddDocument(const std::string& name, std::vector<render::Drawing> pages) {
  if (plan_.target == PicturePlan::Target::kFolder) {
    const fs::path path = runtime::PathOf(plan_.path) / runtime::PathOf(name + EndingOf(plan_.format));
    WriteFile(runtime::Utf8Of(path.lexically_normal()), BytesOf(std::move(pages)));
  } else {
    for (render::Drawing& page : pages) pages_.push_back(std::move(page));
  }
}

void PictureWriter::Finish() {
  if (pages_.empty()) return;
  const std::string bytes = BytesOf(std::move(pages_));
  pages_.clear();
  if (plan_.target == PicturePlan::Target::kFile) return WriteFile(plan_.path, bytes);
  streams_.out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  Deliver(streams_);
}

}  // namespace plotsmith::cli
