#include "render/sheet/SheetPages.h"

#include <algorithm>
#include <optional>
#include <string>

#include "render/Canvas.h"
#include "render/Composition.h"
#include "render/sheet/CellDrawing.h"
#include "render/sheet/PageCuts.h"
#include "render/sheet/SheetReader.h"
#include "render/sheet/SheetShapes.h"
#include "xlsx/Printing.h"
#include "xlsx/Sheet.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/objects/Chart.h"

namespace plotsmith::render {
namespace {

constexpr std::size_t kMostPages = 100;
constexpr double kLargestPage = 14400;  // points, the limit of PDF
constexpr const char* kPrintTitles = "_xlnm.Print_Titles";
constexpr Color kWhite{255, 255, 255, 1};

Drawing EmptyPage(const xlsx::PageSetup& setup, const std::string& title) {
  Drawing page{setup.paperWidth, setup.paperHeight, title, {}, {}};
  const Rect paper{0, 0, page.width, page.height};
  page.items.push_back({{}, PathItem{Path().AddRect(paper), SolidFill{kWhite}, {}}});
  return page;
}

/// Returns a setup of one page that is as large as PDF allows.
xlsx::PageSetup OnePage(const xlsx::PageSetup& setup) {
  xlsx::PageSetup one;
  one.paperWidth = one.paperHeight = kLargestPage;
  one.left = one.top = one.right = one.bottom = 0;
  one.gridLines = setup.gridLines;
  one.hasConditionalFormats = setup.hasConditionalFormats;
  return one;
}

/// Adds notes about parts of printed pages that aren't drawn.
void NoteMissing(const xlsx::Workbook& book, const xlsx::SheetEntry& sheet, const xlsx::PageSetup& setup,
                 Notes& notes) {
  if (setup.hasHeaderOrFooter) notes.emplace_back("Headers and footers aren't drawn.");
  if (setup.hasConditionalFormats) notes.emplace_back("Conditional formats of cells aren't drawn.");
  if (setup.headings) notes.emplace_back("The letters of columns and the numbers of rows aren't drawn.");
  const auto& sheets = book.Tabs().All();
  const bool hasTitles = std::any_of(
      book.DefinedNames().All().begin(), book.DefinedNames().All().end(), [&](const xlsx::NameEntry& name) {
        return name.sheet && *name.sheet < sheets.size() && sheets[*name.sheet].get() == &sheet &&
               name.name == kPrintTitles;
      });
  if (hasTitles) notes.emplace_back("Rows and columns that repeat on each page are drawn once.");
}

/// Draws the pages of a sheet with cells.
class WorksheetPages {
 public:
  WorksheetPages(xlsx::Workbook& book, const xlsx::SheetEntry& sheet, Paper paper, const TextMeasure& measure,
                 Notes& notes)
      : sheet_(sheet),
        reader_(book, *sheet.worksheet),
        paper_(paper),
        setup_(paper == Paper::kOne ? OnePage(xlsx::PageSetupOf(book, sheet))
                                    : xlsx::PageSetupOf(book, sheet)),
        shapes_(DrawShapes(book, *sheet.worksheet, measure, notes)),
        measure_(measure),
        notes_(notes) {
    ranges_ = xlsx::PrintAreaOf(book, sheet);
    if (ranges_.empty()) {
      if (const auto all = AllThatShows()) ranges_.push_back(*all);
    }
    NoteMissing(book, sheet, setup_, notes);
  }

  std::vector<Drawing> Draw() {
    const PageCuts cuts =
        CutPages(setup_, reader_.Geometry(), ranges_, paper_ == Paper::kOne ? 1 : kMostPages);
    if (cuts.count > cuts.pages.size() && paper_ == Paper::kOne) {
      const xlsx::CellRange& drawn = cuts.pages.front();
      notes_.push_back("The sheet is larger than one page can be, which is 14400 by 14400 points; " +
                       xlsx::CellAddress(drawn.row1, drawn.column1) + " to " +
                       xlsx::CellAddress(drawn.row2, drawn.column2) + " is drawn.");
    } else if (cuts.count > cuts.pages.size()) {
      notes_.push_back("The sheet has " + std::to_string(cuts.count) + " pages; the first " +
                       std::to_string(cuts.pages.size()) + " are drawn.");
    }
    std::vector<Drawing> pages;
    for (const xlsx::CellRange& cells : cuts.pages) pages.push_back(DrawPage(cells, cuts.scale));
    return pages;
  }

 private:
  /// Returns the range from A1 to the last cell, chart or shape. Returns nothing for an empty sheet.
  std::optional<xlsx::CellRange> AllThatShows() {
    auto all = reader_.PrintedCells();
    if (all) AddLongTexts(*all);
    for (const DrawnShape& shape : shapes_) {
      if (!all) all = xlsx::CellRange{1, 1, 1, 1};
      all->row2 = std::max(all->row2, LineAt(reader_.Geometry().rows, shape.place.Bottom()));
      all->column2 = std::max(all->column2, LineAt(reader_.Geometry().columns, shape.place.Right()));
    }
    return all;
  }

  /// Extends a range by the columns over which long texts in the last cells of rows extend. In a large sheet,
  /// only the first rows are examined.
  void AddLongTexts(xlsx::CellRange& all) {
    constexpr std::int32_t kMostCells = 200000;
    const std::int32_t columns = all.column2, rows = std::min(all.row2, kMostCells / columns + 1);
    for (std::int32_t row = 1; row <= rows; ++row) {
      std::int32_t column = columns;
      while (column > 0 && reader_.IsEmptyAt(row, column)) --column;
      if (column > 0) all.column2 = std::max(all.column2, LastColumnOfText(reader_, row, column, measure_));
    }
  }

  /// Returns the row or column, from 1, in which a shape ends. `end` is in points.
  static std::int32_t LineAt(const xlsx::GridLines& lines, double end) {
    constexpr double kEdge =
        0.05;  // points; a shape that ends on a grid line isn't in the next row or column
    return lines.IndexAt(end - kEdge).first + 1;
  }

  Drawing DrawPage(const xlsx::CellRange& cells, double scale) {
    const Rect area = reader_.AreaOf(cells);
    if (paper_ == Paper::kOne) {
      setup_.paperWidth = std::max(area.width, 1.0);
      setup_.paperHeight = std::max(area.height, 1.0);
    }
    Drawing content{area.width, area.height, {}, {}, {}};
    {
      Drawing onSheet{area.Right(), area.Bottom(), {}, {}, {}};
      Canvas canvas(onSheet, measure_, notes_);
      DrawCells(reader_, cells, setup_.gridLines, canvas);
      for (const DrawnShape& shape : shapes_) {
        if (Overlap(shape.place, area)) Place(onSheet, shape.drawing, shape.corner);
      }
      Place(content, onSheet, {-area.left, -area.top});
    }
    Drawing page = EmptyPage(setup_, sheet_.name);
    Place(page, content, CornerOn(page, area, scale), scale);
    page.description = DescriptionOf(area);
    return page;
  }

  /// Returns where the cells of a page begin on the paper.
  Point CornerOn(const Drawing& page, const Rect& area, double scale) const {
    Point corner{setup_.left, setup_.top};
    const double restAcross = page.width - setup_.left - setup_.right - area.width * scale;
    const double restDown = page.height - setup_.top - setup_.bottom - area.height * scale;
    if (setup_.centersAcross) corner.x += std::max(restAcross, 0.0) / 2;
    if (setup_.centersDown) corner.y += std::max(restDown, 0.0) / 2;
    return corner;
  }

  /// Returns the description of the charts on a page, for screen readers.
  std::string DescriptionOf(const Rect& area) const {
    std::string text;
    for (const DrawnShape& shape : shapes_) {
      if (!Overlap(shape.place, area) || shape.drawing.title.empty()) continue;
      text += (text.empty() ? "" : "\n") + shape.drawing.title;
      if (!shape.drawing.description.empty()) text += "\n" + shape.drawing.description;
    }
    return text;
  }

  const xlsx::SheetEntry& sheet_;
  SheetReader reader_;
  Paper paper_;
  xlsx::PageSetup setup_;
  std::vector<DrawnShape> shapes_;
  const TextMeasure& measure_;
  Notes& notes_;
  std::vector<xlsx::CellRange> ranges_;
};

/// Draws a chart sheet. Its chart fills the space between the margins.
std::vector<Drawing> DrawChartSheet(xlsx::Workbook& book, const xlsx::SheetEntry& sheet,
                                    const TextMeasure& measure, Notes& notes) {
  const auto chart = book.ChartOf(sheet);
  if (!chart) return {};
  const xlsx::PageSetup setup = xlsx::PageSetupOf(book, sheet);
  NoteMissing(book, sheet, setup, notes);
  Drawing page = EmptyPage(setup, sheet.name);
  const double width = std::max(page.width - setup.left - setup.right, 1.0);
  const double height = std::max(page.height - setup.top - setup.bottom, 1.0);
  const auto& held = dynamic_cast<const xlsx::Chart&>(*chart.shared());
  const Drawing drawing = DrawChart(held.Part(), width, height, measure, notes);
  Place(page, drawing, {setup.left, setup.top});
  page.description = drawing.description;
  return {page};
}

}  // namespace

std::vector<Drawing> DrawSheet(xlsx::Workbook& book, const xlsx::SheetEntry& sheet, Paper paper,
                               const TextMeasure& measure, Notes& notes) {
  if (!sheet.worksheet) return DrawChartSheet(book, sheet, measure, notes);
  return WorksheetPages(book, sheet, paper, measure, notes).Draw();
}

}  // namespace plotsmith::render
