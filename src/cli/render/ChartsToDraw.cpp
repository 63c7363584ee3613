#include "cli/render/ChartsToDraw.h"

#include <algorithm>
#include <set>
#include <utility>

#include "cli/Failures.h"
#include "cli/check/Words.h"
#include "host/excel/Constants.h"
#include "runtime/Strings.h"
#include "xlsx/Sheet.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::cli {
namespace {

/// Returns the ids and names of charts for FindCharts.
ChartNames NamesOf(const std::vector<DefinedChart>& defined) {
  ChartNames names;
  for (const DefinedChart& one : defined) names.push_back({one.id, one.name});
  return names;
}

/// Returns the charts on a worksheet, or none if its drawing can't be read.
std::vector<std::shared_ptr<xlsx::SheetShape>> ChartShapes(xlsx::Workbook& book,
                                                           const xlsx::SheetEntry& sheet) {
  std::vector<std::shared_ptr<xlsx::SheetShape>> charts;
  if (!sheet.worksheet) return charts;
  try {
    book.Viewed([&] {
      const xlsx::SheetDrawing* const drawing = sheet.worksheet->FindDrawing();
      if (drawing == nullptr) return;
      for (const auto& shape : drawing->Shapes()) {
        if (shape->Type() == excel::msoChart) charts.push_back(shape);
      }
    });
  } catch (const runtime::RuntimeError&) {
    // A drawing that can't be read has no charts.
  }
  return charts;
}

/// Returns the label of a shape's chart.
std::string LabelOf(const xlsx::SheetEntry& sheet, xlsx::SheetShape& shape) {
  return xlsx::QuotedSheetName(sheet.name) + "!" + shape.Name();
}

/// Returns the chart with a name such as "'My sheet'!Chart 1", or the chart of a chart sheet, or Nothing. A
/// sheet name without quotes can also contain an exclamation mark.
ChartToDraw ChartOnSheet(xlsx::Workbook& book, const std::string& name) {
  for (auto mark = name.find('!'); mark != std::string::npos; mark = name.find('!', mark + 1)) {
    std::string_view text(name);
    const std::string sheetName = text.starts_with('\'') ? runtime::TakeQuoted(text) : name.substr(0, mark);
    const auto sheet = book.Tabs().Find(sheetName);
    if (!sheet) continue;
    const std::string shapeName = name.substr(mark + 1);
    for (const auto& shape : ChartShapes(book, *sheet)) {
      if (runtime::EqualsIgnoreCase(shape->Name(), shapeName))
        return {LabelOf(*sheet, *shape), shape->Chart()};
    }
  }
  const auto sheet = book.Tabs().Find(name);
  if (!sheet || sheet->worksheet) return {name, nullptr};
  return {sheet->name, book.ChartOf(*sheet)};
}

CommandError NoSuchChart(xlsx::Workbook& book, const std::vector<DefinedChart>& defined,
                         const std::string& path, const std::string& name) {
  std::vector<std::string> there;
  for (const DefinedChart& one : defined) there.push_back(one.id);
  for (const std::string& other : OtherCharts(book, defined)) there.push_back(Quoted(other));
  return NotInBook(path, "chart", name, there);
}

}  // namespace

std::vector<ChartToDraw> AllToDraw(const std::vector<DefinedChart>& defined) {
  std::vector<ChartToDraw> charts;
  for (const DefinedChart& one : defined) charts.push_back({one.id, one.chart});
  return charts;
}

std::vector<ChartToDraw> NamedChartsToDraw(xlsx::Workbook& book, const std::vector<DefinedChart>& defined,
                                           const std::string& path, const std::vector<std::string>& names) {
  const ChartNames known = NamesOf(defined);
  std::vector<ChartToDraw> charts;
  std::set<std::string> labels;
  const auto add = [&](ChartToDraw chart) {
    if (labels.insert(chart.label).second) charts.push_back(std::move(chart));
  };
  for (const std::string& name : names) {
    const auto places = FindCharts(known, name);
    if (places.size() > 1) throw CommandError(exit_code::kUsage, SeveralCharts(known, places, name) + ".");
    if (!places.empty()) {
      const DefinedChart& found = defined[places.front()];
      add({found.id, found.chart});
    } else if (ChartToDraw found = ChartOnSheet(book, name); found.chart) {
      add(std::move(found));
    } else {
      throw NoSuchChart(book, defined, path, name);
    }
  }
  return charts;
}

std::vector<std::string> OtherCharts(xlsx::Workbook& book, const std::vector<DefinedChart>& defined) {
  std::set<std::string> known;
  for (const DefinedChart& one : defined) known.insert(one.id);
  std::vector<std::string> names;
  for (const auto& sheet : book.Tabs().All()) {
    for (const auto& shape : ChartShapes(book, *sheet)) {
      if (!known.contains(shape->AlternativeText())) names.push_back(LabelOf(*sheet, *shape));
    }
    if (!sheet->worksheet && book.ChartOf(*sheet)) names.push_back(sheet->name);
  }
  return names;
}

}  // namespace plotsmith::cli
