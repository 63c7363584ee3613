#pragma once

#include <QtCore/QRectF>
#include <QtCore/QString>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/excel/CellValue.h"
#include "host/excel/Chart.h"
#include "xlsx/CellLook.h"
#include "xlsx/sheet/Reference.h"
#include "xlsx/sheet/SheetGeometry.h"
#include "xlsx/sheet/SheetView.h"

namespace plotsmith::xlsx {
class Workbook;
class Worksheet;
struct SheetEntry;
}  // namespace plotsmith::xlsx

namespace plotsmith::qtbook {

/// A cell as a window shows it.
struct ShownCell {
  excel::CellValue::Kind kind = excel::CellValue::Kind::kEmpty;
  double number = 0;        ///< of a number
  bool general = false;     ///< a number without a number format of its own
  std::uint32_t style = 0;  ///< for SheetSource::LookOf
  QString text;             ///< the same as Range.Text

  bool IsEmpty() const { return kind == excel::CellValue::Kind::kEmpty; }
};

/// Something that is drawn on a sheet.
struct ShownFrame {
  QRectF place;  ///< points from the sheet's corner
  bool isChart = false;
  std::string alternativeText;  ///< of a chart that Plotsmith drew, its id
  QString label;                ///< the shape's name, or the text of a text box
  /// The chart; Nothing once it has been deleted, and for what is no chart.
  std::function<excel::Ref<excel::Chart>()> chart;
};

/// Where the chart of an alternative text is among frames; their count if there is none.
std::size_t FindChart(const std::vector<ShownFrame>& frames, const std::string& alternativeText);

/// A worksheet of the embedded host, as far as a window looks at it. Each question is asked of the host as it
/// is now; of the sheet nothing is kept. What can't be read, and what was deleted meanwhile, throws
/// RuntimeError.
class SheetSource {
 public:
  SheetSource(xlsx::Workbook& book, std::weak_ptr<xlsx::SheetEntry> sheet);

  /// Rows and columns from 1.
  bool IsEmptyAt(std::int32_t row, std::int32_t column);
  ShownCell CellAt(std::int32_t row, std::int32_t column);
  const xlsx::CellLook& LookOf(std::uint32_t style);
  /// Until the host is next asked for something else that changes it.
  const xlsx::SheetGeometry& Geometry();
  /// The width of a digit of the Normal font, in pixels at 96 dots an inch, by which columns are measured.
  int DigitWidth() const;
  const std::vector<xlsx::CellRange>& MergedCells();
  xlsx::CellRange UsedCells();
  xlsx::SheetView View();
  /// From back to front.
  std::vector<ShownFrame> Frames();

  /// Drops what is remembered of cell styles, which are of the palette as it was.
  void LookAgain() { looks_.clear(); }
  /// How many cells the host was asked for so far: what a scrolling window costs.
  std::uint64_t CellsAsked() const { return cellsAsked_; }

 private:
  /// Runs a question to the sheet so that damage that it comes upon doesn't keep the workbook from being
  /// saved.
  template <class Question>
  auto Ask(Question&& question);

  xlsx::Workbook& book_;
  std::weak_ptr<xlsx::SheetEntry> sheet_;
  std::map<std::uint32_t, xlsx::CellLook> looks_;  ///< those of styles that were on the screen
  std::uint64_t cellsAsked_ = 0;
};

}  // namespace plotsmith::qtbook
