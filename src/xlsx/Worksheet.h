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

/// A worksheet. Its cells are read when the first one is asked for. A sheet whose cells are written is
/// written whole, without what a cell had beside its value and style; so a sheet with formulas can't be. The
/// system writes on its own sheets only.
class Worksheet final : public SheetMembers<excel::Worksheet>,
                        public std::enable_shared_from_this<Worksheet> {
 public:
  Worksheet(Workbook& book, std::weak_ptr<SheetEntry> entry, bool isNew);
  ~Worksheet() override;

  excel::CellValue CellValueAt(std::int32_t row, std::int32_t column) override;
  std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) override;
  std::int32_t NextRowAt(std::int32_t row, std::int32_t column) override;
  std::int32_t NextRowShowing(std::int32_t row, std::int32_t column, std::string_view text) override;
  void SetCellValueAt(std::int32_t row, std::int32_t column, const runtime::Variant& value) override;
  excel::Ref<excel::Range> Cells(std::int32_t row, std::int32_t column) override;
  excel::Ref<excel::Range> Range(std::string_view cell1, std::string_view cell2) override;
  excel::Ref<excel::Range> Rows(std::int32_t row) override;
  excel::Ref<excel::Range> UsedRange() override;
  excel::Ref<excel::Shapes> Shapes() override;
  excel::Ref<excel::ChartObjects> ChartObjects() override;

  // for the other classes of this host
  Workbook& Book() const { return book_; }
  const std::string& SheetName() const { return Entry().name; }
  const std::string& Part() const { return Entry().part; }
  auto JournalPath() const { return Path(); }
  /// A cell as it is stored: other than for the port, the serial of a date counts in the workbook's own
  /// system.
  excel::CellValue Stored(std::int32_t row, std::int32_t column);
  std::uint32_t StyleAt(std::int32_t row, std::int32_t column);
  CellRange UsedCells();
  /// Cells of the file with a formula but no result, in the order of the file; they read as empty.
  const std::vector<CellPlace>& FormulasWithoutResult() { return Contents().formulasWithoutResult; }
  void ClearCells(const CellRange& range);
  void SetNumberFormat(const CellRange& range, std::string_view code);
  std::string NumberFormatAt(std::int32_t row, std::int32_t column);
  void InsertRow(std::int32_t row);
  void DeleteRow(std::int32_t row);
  /// Error 1004 on a sheet with merged cells, which would have to move as they are.
  void SortCells(const CellRange& range, const SortOptions& options);
  const SheetGeometry& Geometry();
  /// Cells that are shown as one, as the file has them.
  const std::vector<CellRange>& MergedCells() { return Contents().mergedCells; }
  /// How the workbook's first window shows the sheet.
  SheetView View();
  /// Makes a cell the active one. The file keeps the one that it has.
  void ActivateCell(const CellPlace& cell);
  /// The sheet's drawing; null if it has none, or one without charts that can't be read.
  SheetDrawing* FindDrawing();
  /// The same, made if need be. Error 1004 if there is one that can't be read.
  SheetDrawing& EnsureDrawing();

  /// Changes how the workbook's first window shows the sheet.
  void SetView(const ViewSetting& setting, bool value);

  /// Brings formulas up to date with rows that moved on other sheets since a mark.
  void FollowShifts(std::size_t followed);
  /// Whether this program made the sheet, so that it is free to change it in any way.
  bool IsNew() const { return isNew_; }
  bool NeedsWriting() const;
  /// Brings the part up to date with what was changed.
  void Write();

 private:
  const SheetContents& Contents() { return contents_ ? *contents_ : Read(); }
  const SheetContents& Read();
  std::string_view SharedText(std::uint32_t index) {
    if (sharedTexts_ == nullptr) sharedTexts_ = &book_.SharedStrings();
    return sharedTexts_->At(index);
  }
  /// The cells for writing. Error 1004 on a sheet that isn't ours to write.
  CellGrid& Grid();
  excel::CellValue Unpack(PackedValue value, std::uint32_t style);
  /// The key of a cell for a walk for a text.
  std::uint32_t KeyOf(const GridCell* cell) const;
  void MakeKeys(std::int32_t column);
  /// Forgets the keys where cells of the range are about to change.
  void ForgetKeys(const CellRange& range);

  /// Changes the XML of the part at once; `change` returns whether there was anything to change. What the
  /// part lacks for it is the workbook's damage.
  void ChangePart(const std::function<bool(std::string& text)>& change);

  bool isNew_;
  std::optional<SheetContents> contents_;  ///< as read
  const TextPool* sharedTexts_ = nullptr;  ///< the workbook's, once a cell has asked for one
  std::optional<CellGrid> grid_;           ///< as changed; of contents_ only the geometry counts then
  bool gridChanged_ = false;
  std::optional<SheetGeometry> geometry_;
  std::optional<CellPlace> activeCell_;  ///< since the file was read
  std::unique_ptr<SheetDrawing> drawing_;
  bool drawingSought_ = false;
  std::optional<std::string> drawingDamage_;  ///< why the sheet's drawing can't be read
  std::optional<ColumnKeys> keys_;            ///< of grid_, for the column of the last walk for a text
};

}  // namespace plotsmith::xlsx
