#include "cli/render/DrawnCharts.h"

#include <deque>
#include <optional>
#include <utility>

#include "cli/render/LoadPainter.h"
#include "cli/render/PictureNames.h"
#include "render/chart/ChartDrawing.h"
#include "runtime/RuntimeError.h"
#include "xlsx/Workbook.h"
#include "xlsx/chart/objects/Chart.h"

namespace plotsmith::cli {
namespace {

/// A chart on its way to its picture.
struct DrawnChart {
  std::string label;
  std::optional<render::UndrawnChart> read;
  std::vector<render::Drawing> pages;  ///< The drawing, until it is taken.
  render::Notes notes;
  bool isDrawn = false;
};

void NoteUnreadable(DrawnChart& drawn) {
  drawn.notes.emplace_back("The chart can't be read; nothing is drawn.");
  drawn.isDrawn = false;
}

/// Reads a chart, or notes that there is nothing to draw. A chart that needs the workbook is drawn at once.
void Read(xlsx::Workbook& workbook, const excel::Ref<excel::Chart>& chart, PictureFormat format,
          DrawnChart& drawn) {
  if (!chart) {
    drawn.notes.emplace_back("The workbook has its definition, but no chart; nothing is drawn.");
    return;
  }
  try {
    workbook.Viewed([&] {
      const auto& held = dynamic_cast<const xlsx::Chart&>(*chart.shared());
      const xlsx::Frame size = held.Size();
      render::UndrawnChart read(held.Part(), size.width, size.height, drawn.notes);
      if (read.NeedsWorkbook()) {
        drawn.pages.push_back(std::move(read).Draw(LoadMeasure(format), drawn.notes));
      } else {
        drawn.read = std::move(read);
      }
    });
    drawn.isDrawn = true;
  } catch (const runtime::RuntimeError&) {
    NoteUnreadable(drawn);
  }
}

/// Returns the drawing of a chart that was read.
std::vector<render::Drawing> Draw(DrawnChart& drawn, PictureFormat format) {
  if (drawn.read) {
    try {
      drawn.pages.push_back(std::move(*drawn.read).Draw(LoadMeasure(format), drawn.notes));
    } catch (const runtime::RuntimeError&) {
      NoteUnreadable(drawn);
    }
    drawn.read.reset();
  }
  return std::exchange(drawn.pages, {});
}

}  // namespace

DrawnCounts WriteCharts(xlsx::Workbook& workbook, const std::string& book,
                        const std::vector<ChartToDraw>& charts, std::unique_ptr<PictureWriter> writer,
                        const Streams& streams) {
  PictureNames names(book);
  std::deque<DrawnChart> drawn;
  // declared after `drawn`, because its threads use the charts until it ends
  const std::unique_ptr<PictureWriter> pictures = std::move(writer);
  const PictureFormat format = pictures->Plan().format;
  pictures->Open();
  for (const ChartToDraw& chart : charts) {
    DrawnChart& one = drawn.emplace_back();
    one.label = chart.label;
    Read(workbook, chart.chart, format, one);
    const std::string name = names.NameFor(chart.label);
    if (one.isDrawn) pictures->Add(name, [&one, format] { return Draw(one, format); });
  }
  pictures->Finish();
  DrawnCounts counts;
  counts.hasMessages = !charts.empty() && ReportMissingFonts(LoadMeasure(format), streams);
  for (const DrawnChart& one : drawn) {
    for (const std::string& note : one.notes)
      streams.err << "plotsmith: " << one.label << ": " << note << '\n';
    counts.hasMessages = counts.hasMessages || !one.notes.empty();
    if (one.isDrawn) ++counts.drawn;
  }
  return counts;
}

}  // namespace plotsmith::cli
