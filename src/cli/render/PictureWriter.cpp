#include "cli/render/PictureWriter.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <utility>

#include "cli/Command.h"
#include "cli/render/LoadPainter.h"
#include "render/Composition.h"
#include "render/svg/SvgWriter.h"
#include "runtime/SystemErrors.h"
#include "runtime/Utf8Path.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;

constexpr double kPointsPerInch = 72;

/// The pages of one PDF are painted one after the other, by one thread.
TaskQueue::Order OrderFor(const PicturePlan& plan) {
  const bool oneFile = plan.target != PicturePlan::Target::kFolder;
  return oneFile ? TaskQueue::Order::kInTurn : TaskQueue::Order::kAny;
}

/// Writes a file. An existing file is overwritten in place and not emptied first. If it were emptied, file
/// systems such as ext4 would write it to the disk when it is closed, which takes longer than drawing. If the
/// disk gets full, the damaged file is removed.
void WriteFile(const std::string& name, const std::string& bytes) {
  const fs::path path = runtime::PathOf(name);
  std::error_code noFile, error;
  const std::uintmax_t formerSize = fs::file_size(path, noFile);  // Only regular files have a size.
  const bool isThere = !noFile;
  const auto mode = std::ios::binary | std::ios::out;
  std::fstream file(path, isThere ? mode | std::ios::in : mode);
  const bool isOpen = file.is_open();
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) {
    error.assign(errno != 0 ? errno : EIO, std::generic_category());
    if (isOpen && fs::is_regular_file(path, noFile)) fs::remove(path, noFile);
  } else if (isThere && formerSize > bytes.size()) {
    fs::resize_file(path, bytes.size(), error);
  }
  if (error) {
    throw CommandError(exit_code::kFile,
                       "can't write \"" + name + "\": " + runtime::SystemErrorText(error.value()) + ".");
  }
}

}  // namespace

PictureWriter::PictureWriter(PicturePlan plan, const Streams& streams, bool list)
    : plan_(std::move(plan)), streams_(streams), list_(list), tasks_(OrderFor(plan_)) {}

void PictureWriter::LoadAhead() {
  tasks_.StartThreads([format = plan_.format] { LoadMeasureAhead(format); });
}

void PictureWriter::Open() {
  if (plan_.target != PicturePlan::Target::kFolder) return;
  const fs::path folder = runtime::PathOf(plan_.path);
  std::error_code error, ignored;
  fs::create_directories(folder, error);
  if (error && !fs::is_directory(folder, ignored))
    throw CommandError(exit_code::kFile, "can't make the folder \"" + plan_.path +
                                             "\": " + runtime::SystemErrorText(error.value()) + ".");
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

std::vector<render::Drawing> PictureWriter::Drawn(const DrawPages& draw) const {
  std::vector<render::Drawing> pages = draw();
  const bool scales = plan_.scale != 1 && plan_.format != PictureFormat::kPng;
  for (render::Drawing& page : pages) {
    if (scales) page = render::Scaled(page, plan_.scale);
  }
  return pages;
}

std::string PictureWriter::BytesOf(const std::vector<render::Drawing>& pages) const {
  if (plan_.format == PictureFormat::kPng) return PngOf(pages.front());
  if (plan_.format == PictureFormat::kSvg) return render::MakeSvg(pages.front());
  const auto document = LoadPainter().NewPdf();
  for (const render::Drawing& page : pages) document->Add(page);
  return document->Finish();
}

void PictureWriter::Add(const std::string& name, DrawPages draw) {
  if (tasks_.HasFailed()) Await();
  if (plan_.target != PicturePlan::Target::kFolder) {
    // Tasks are copied. This task shares its pages, so that the pages aren't.
    tasks_.Add([this, pages = std::make_shared<const std::vector<render::Drawing>>(Drawn(draw))] {
      PaintPages(*pages);
    });
    return;
  }
  const fs::path path = runtime::PathOf(plan_.path) / runtime::PathOf(name + EndingOf(plan_.format));
  PictureFile& file = files_.emplace_back(PictureFile{runtime::Utf8Of(path.lexically_normal())});
  tasks_.Add([this, &file, draw = std::move(draw)] {
    const std::vector<render::Drawing> pages = Drawn(draw);
    if (pages.empty()) return;
    WriteFile(file.path, BytesOf(pages));
    file.isWritten = true;
  });
}

void PictureWriter::PaintPages(const std::vector<render::Drawing>& pages) {
  if (pages.empty()) return;
  if (plan_.format != PictureFormat::kPdf) {
    bytes_ = BytesOf(pages);
    return;
  }
  if (!document_) document_ = LoadPainter().NewPdf();
  for (const render::Drawing& page : pages) document_->Add(page);
}

void PictureWriter::Await() {
  const auto [done, failure] = tasks_.Finish();
  for (std::size_t i = 0; list_ && i < std::min(done, files_.size()); ++i) {
    if (files_[i].isWritten) streams_.out << files_[i].path << '\n';
  }
  files_.clear();
  if (failure) std::rethrow_exception(failure);
}

void PictureWriter::Finish() {
  Await();
  if (document_) bytes_ = document_->Finish();
  if (bytes_.empty()) return;
  if (plan_.target == PicturePlan::Target::kFile) {
    WriteFile(plan_.path, bytes_);
    if (list_) streams_.out << plan_.path << '\n';
    return;
  }
  if (plan_.target != PicturePlan::Target::kStandardOutput) return;
  streams_.out.write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
  FlushOutput(streams_);
}

}  // namespace plotsmith::cli
