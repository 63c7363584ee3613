#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Worksheet.h"
#include "xlsx/Sheet.h"
#include "xlsx/book/CellSource.h"
#include "xlsx/sheet/CellGrid.h"
#include "xlsx/sheet/CellSort.h"
#include "xlsx/sheet/ColumnKeys.h"
#include "xlsx/sheet/Reference.h"
#include "xlsx/sheet/SheetGeometry.h"
#include "xlsx/sheet/SheetScanner.h"
#include "xlsx/sheet/SheetView.h"

namespace plotsmith::xlsx {

class SheetDrawing;
struct ViewSetting;

/// A worksheet. Its cells are read at the first use. If a cell is written, the whole sheet is rewritten with
/// only values and styles. Therefore a sheet with formulas can't be written. The system writes only to its
/// own sheets.
class Worksheet final : public SheetMembers<excel::Worksheet>,
                        public CellSource,
                        public std::enable_shared_from_this<Worksheet> {
 public:
  /// Makes the sheet of an entry. `isNew` is true for a sheet that this program has added.
  Worksheet(Workbook& book, std::weak_ptr<SheetEntry> entry, bool isNew);
  ~Worksheet() override;

  excel::CellValue CellValueAt(std::int32_t row, std::int32_t column) override;
  std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) override;
  std::int32_t NextRowAt(std::int32_t row, std::int32_t column) override;
  std::int32_t NextRowShowing(std::int32_t row, std::int32_t column, std::string_view text) override;
  std::uint64_t ContentsVersion() override { return version_; }
  void SetCellValueAt(std::int32_t row, std::int32_t column, const runtime::Variant& value) override;
  excel::Ref<excel::Range> Cells(std::int32_t row, std::int32_t column) override;
  excel::Ref<excel::Range> Range(std::string_view cell1, std::string_view cell2) override;
  excel::Ref<excel::Range> Rows(std::int32_t row) override;
  excel::Ref<excel::Range> UsedRange() override;
  excel::Ref<excel::Shapes> Shapes() override;
  excel::Ref<excel::ChartObjects> ChartObjects() override;

  /// The workbook of the sheet.
  Workbook& Book() const { return book_; }
  const std::string& SheetName() const override { return Entry().name; }
  /// The name of the sheet's part.
  const std::string& Part() const { return Entry().part; }
  /// Returns a function that gives the sheet's path in the journal.
  auto JournalPath() const { return Path(); }
  excel::CellValue Stored(std::int32_t row, std::int32_t column) override;
  /// The style of a cell, an index into cellXfs.
  std::uint32_t StyleAt(std::int32_t row, std::int32_t column);
  /// The rectangle around all cells that have a value or a style; A1 in an empty sheet.
  CellRange UsedCells();
  /// The cells whose formula has no result in the file, in the file's order. They count as empty.
  const std::vector<CellPlace>& FormulasWithoutResult() { return Contents().formulasWithoutResult; }
  /// Clears cells, including their styles.
  void ClearCells(const CellRange& range);
  /// Sets the number format of cells. Raises error 1004 for an invalid code.
  void SetNumberFormat(const CellRange& range, std::string_view code);
  std::string NumberFormatAt(std::int32_t row, std::int32_t column) override;
  /// Inserts a row above `row`, which counts from 1. This row and those below it move down.
  void InsertRow(std::int32_t row);
  /// Deletes a row, counted from 1. The rows below it move up.
  void DeleteRow(std::int32_t row);
  /// Sorts the rows of a range. Raises error 1004 on a sheet with merged cells.
  void SortCells(const CellRange& range, const SortOptions& options);
  /// Row heights and column widths.
  const SheetGeometry& Geometry();
  /// The merged cells in the file.
  const std::vector<CellRange>& MergedCells() { return Contents().mergedCells; }
  /// The view of the sheet in the workbook's first window.
  SheetView View();
  /// Makes a cell the active one. The active cell in the file doesn't change.
  void ActivateCell(const CellPlace& cell);
  /// The drawing of the sheet. Null if there is none, or if it contains no charts and can't be read.
  SheetDrawing* FindDrawing();
  /// The drawing of the sheet, which is made if there is none. Raises error 1004 if it can't be read.
  SheetDrawing& EnsureDrawing();

  /// Changes a setting of the view in the workbook's first window.
  void SetView(const ViewSetting& setting, bool value);

  /// Updates formulas for the rows that have moved on other sheets since the mark `followed`.
  void FollowShifts(std::size_t followed);
  /// Returns true if this program has added the sheet and may change all of it.
  bool IsNew() const { return isNew_; }
  /// Returns true if the sheet's part must be written.
  bool NeedsWriting() const;
  /// Puts the changes into the package.
  void Write();

 private:
  const SheetContents& Contents() { return contents_ ? *contents_ : Read(); }
  const SheetContents& Read();
  std::string_view SharedText(std::uint32_t index) {
    if (sharedTexts_ == nullptr) sharedTexts_ = &book_.SharedStrings();
    return sharedTexts_->At(index);
  }
  /// The cells for writing. Raises error 1004 on a sheet that this program may not write to.
  CellGrid& Grid();
  excel::CellValue Unpack(PackedValue value, std::uint32_t style);
  /// The key of a cell for a text search.
  std::uint32_t KeyOf(const GridCell* cell) const;
  void MakeKeys(std::int32_t column);
  /// Discards the keys of cells that are about to change.
  void ForgetKeys(const CellRange& range);

  /// Makes an empty drawing.
  void MakeDrawing();
  /// Makes the `drawing` element refer to the drawing. A program shows no drawing without this element.
  void LinkDrawing();
  /// Changes the XML of the part immediately. `change` returns true if it has changed something. If the part
  /// lacks an element that the change needs, the workbook is damaged.
  void ChangePart(const std::function<bool(std::string& text)>& change);

  bool isNew_;
  std::optional<SheetContents> contents_;  ///< as read
  const TextPool* sharedTexts_ = nullptr;  ///< the workbook's; null until a cell refers to one
  std::optional<CellGrid> grid_;           ///< the changed cells; then contents_ has only the geometry
  bool gridChanged_ = false;
  std::uint64_t version_;  ///< the version of the cells
  std::optional<SheetGeometry> geometry_;
  std::optional<CellPlace> activeCell_;  ///< set since the file was read
  std::unique_ptr<SheetDrawing> drawing_;
  std::string drawingId_;  ///< the id of the relationship to the drawing
  bool drawingSought_ = false;
  std::optional<std::string> drawingDamage_;  ///< why the sheet's drawing can't be read
  std::optional<ColumnKeys> keys_;            ///< of grid_, for the column of the last text search
};

}  // namespace plotsmith::xlsx
