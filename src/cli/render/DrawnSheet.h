#pragma once

#include <memory>
#include <string>

#include "cli/Streams.h"
#include "cli/render/PictureWriter.h"
#include "render/sheet/SheetPages.h"

namespace plotsmith::xlsx {
class Workbook;
struct SheetEntry;
}  // namespace plotsmith::xlsx

namespace plotsmith::cli {

/// Draws a sheet of the workbook at `book`. Reports on `err` what isn't drawn, and returns true if there is
/// anything to report. Throws CommandError for a sheet without anything to print. The writer ends here.
bool WriteSheet(xlsx::Workbook& workbook, const std::string& book, const xlsx::SheetEntry& sheet,
                render::Paper paper, std::unique_ptr<PictureWriter> writer, const Streams& streams);

}  // namespace plotsmith::cli
