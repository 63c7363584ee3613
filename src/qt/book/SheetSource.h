#pragma once

#include <QtCore/QRectF>
#include <QtCore/QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/excel/Chart.h"
#include "xlsx/CellContents.h"
#include "xlsx/sheet/Reference.h"
#include "xlsx/sheet/SheetGeometry.h"
#include "xlsx/sheet/SheetView.h"

namespace plotsmith::xlsx {
class Workbook;
class Worksheet;
struct SheetEntry;
}  // namespace plotsmith::xlsx

namespace plotsmith::qtbook {

/// A shape on a sheet.
struct ShownFrame {
  QRectF place;                 ///< The position in points from the sheet's corner.
  bool isChart = false;         ///< Whether the shape is a chart, which `chart` returns.
  std::string alternativeText;  ///< The alternative text, which is the id of a chart of Plotsmith.
  QString label;                ///< The name of the shape, or the text of a text box.
  /// Returns the chart, or Nothing if it was deleted or the shape isn't a chart.
  std::function<excel::Ref<excel::Chart>()> chart;
};

/// Returns the index of the chart with this alternative text, or the number of frames if there is none.
std::size_t FindChart(const std::vector<ShownFrame>& frames, const std::string& alternativeText);

/// Reads a worksheet of the embedded host for a window. Each function asks the host for the current state;
/// only the looks of styles are kept, until DiscardLooks. Throws RuntimeError if the sheet was deleted or
/// can't be read.
class SheetSource {
 public:
  /// Makes a reader for a sheet. `book` must outlive it.
  SheetSource(xlsx::Workbook& book, std::weak_ptr<xlsx::SheetEntry> sheet);

  /// Returns true if the cell is empty. Rows and columns count from 1.
  bool IsEmptyAt(std::int32_t row, std::int32_t column);
  /// Returns a cell. Rows and columns count from 1.
  xlsx::CellContents CellAt(std::int32_t row, std::int32_t column);
  /// Returns the look of a cell style.
  const xlsx::CellLook& LookOf(std::uint32_t style) { return looks_.Of(style); }
  /// Returns the row heights and column widths. The reference is valid until the next change in the host.
  const xlsx::SheetGeometry& Geometry();
  /// Returns the width of a digit in the Normal font, the unit of column widths, in pixels at 96 dots per
  /// inch.
  int DigitWidth() const;
  /// Returns the merged ranges.
  const std::vector<xlsx::CellRange>& MergedCells();
  /// Returns the used range.
  xlsx::CellRange UsedCells();
  /// Returns the view settings of the sheet.
  xlsx::SheetView View();
  /// Returns the shapes from back to front.
  std::vector<ShownFrame> Frames();

  /// Clears the cache of cell styles, for example after a change of the palette.
  void DiscardLooks() { looks_.Clear(); }
  /// The number of cells that were read from the host. It measures the cost of scrolling.
  std::uint64_t CellsRead() const { return cellsRead_; }

 private:
  /// Calls a function on the sheet. Damage that it finds doesn't prevent saving the workbook.
  template <class Question>
  auto Ask(Question&& question);

  xlsx::Workbook& book_;
  std::weak_ptr<xlsx::SheetEntry> sheet_;
  xlsx::CellLooks looks_;  ///< The looks of styles that were visible.
  std::uint64_t cellsRead_ = 0;
};

}  // namespace plotsmith::qtbook
