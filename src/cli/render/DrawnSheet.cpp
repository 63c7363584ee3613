#include "cli/render/DrawnSheet.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/render/LoadPainter.h"
#include "cli/render/PictureNames.h"
#include "xlsx/Sheet.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

bool WriteSheet(xlsx::Workbook& workbook, const std::string& book, const xlsx::SheetEntry& sheet,
                render::Paper paper, std::unique_ptr<PictureWriter> writer, const Streams& streams) {
  const PicturePlan& plan = writer->Plan();
  const render::TextMeasure& measure = LoadMeasure(plan.format);
  const bool fontsAreMissing = ReportMissingFonts(measure, streams);
  render::Notes notes;
  std::vector<render::Drawing> pages = render::DrawSheet(workbook, sheet, paper, measure, notes);
  for (const std::string& note : notes) streams.err << "plotsmith: " << sheet.name << ": " << note << '\n';
  if (pages.empty()) {
    throw CommandError(exit_code::kUsage, "the sheet \"" + sheet.name + "\" has nothing to print.");
  }
  CheckPictureCount(plan, pages.size(), "page", streams);
  // declared after `pages`, because its threads use the pages until it ends
  const std::unique_ptr<PictureWriter> pictures = std::move(writer);
  pictures->Open();
  const std::string name = PictureNames(book).NameFor(sheet.name);
  if (plan.format == PictureFormat::kPdf || pages.size() == 1) {
    pictures->Add(name, [&] { return std::move(pages); });
  } else {
    for (std::size_t i = 0; i < pages.size(); ++i) {
      pictures->Add(name + "-" + std::to_string(i + 1),
                    [&page = pages[i]] { return std::vector{std::move(page)}; });
    }
  }
  pictures->Finish();
  return fontsAreMissing || !notes.empty();
}

}  // namespace plotsmith::cli
