#include "cli/render/DrawnCharts.h"

#include <memory>
#include <optional>
#include <utility>

#include "cli/render/LoadPainter.h"
#include "cli/render/PictureNames.h"
#include "cli/render/PictureWriter.h"
#include "render/chart/ChartDrawing.h"
#include "runtime/RuntimeError.h"
#include "xlsx/Workbook.h"
#include "xlsx/chart/objects/Chart.h"

namespace plotsmith::cli {
namespace {

/// Returns the drawing of a chart, or nothing and a note if there is nothing to draw.
std::optional<render::Drawing> Draw(xlsx::Workbook& workbook, const excel::Ref<excel::Chart>& chart,
                                    render::Notes& notes) {
  if (!chart) {
    notes.emplace_back("The workbook has its definition, but no chart; nothing is drawn.");
    return std::nullopt;
  }
  try {
    return workbook.Viewed([&] {
      const auto& held = dynamic_cast<const xlsx::Chart&>(*chart.shared());
      const xlsx::Frame size = held.Size();
      return render::DrawChart(held.Part(), size.width, size.height, LoadPainter().Measure(), notes);
    });
  } catch (const runtime::RuntimeError&) {
    notes.emplace_back("The chart can't be read; nothing is drawn.");
    return std::nullopt;
  }
}

}  // namespace

DrawnCounts WriteCharts(xlsx::Workbook& workbook, const std::string& book,
                        const std::vector<ChartToDraw>& charts, const PicturePlan& plan,
                        const Streams& streams, bool list) {
  PictureNames names(book);
  PictureWriter writer(plan, streams, list);
  DrawnCounts counts;
  counts.said = !charts.empty() && SayIfFontsAreMissing(streams);
  for (const ChartToDraw& chart : charts) {
    render::Notes notes;
    auto drawing = Draw(workbook, chart.chart, notes);
    for (const std::string& note : notes) streams.err << "plotsmith: " << chart.label << ": " << note << '\n';
    counts.said = counts.said || !notes.empty();
    const std::string name = names.NameFor(chart.label);
    if (!drawing) continue;
    writer.Add(name, std::move(*drawing));
    ++counts.drawn;
  }
  writer.Finish();
  return counts;
}

}  // namespace plotsmith::cli
