#include "xlsx/Range.h"

#include <functional>

#include "runtime/RuntimeError.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Limits.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;
using runtime::Variant;

namespace {

class SheetRangeObject final : public excel::Range {
 public:
  /// The unit of Count.
  enum class Unit { kCells, kRows, kColumns };

  SheetRangeObject(std::shared_ptr<Worksheet> sheet, const CellRange& cells, Unit unit)
      : sheet_(std::move(sheet)), cells_(cells), unit_(unit) {}

  SheetCells Where() const { return {*sheet_, cells_}; }

  std::int32_t Row() override { return cells_.row1; }
  std::int32_t Column() override { return cells_.column1; }
  Ref<Range> Rows() override { return std::make_shared<SheetRangeObject>(sheet_, cells_, Unit::kRows); }
  Ref<Range> Columns() override { return std::make_shared<SheetRangeObject>(sheet_, cells_, Unit::kColumns); }

  std::int32_t Count() override {
    if (unit_ == Unit::kRows) return cells_.RowCount();
    if (unit_ == Unit::kColumns) return cells_.ColumnCount();
    if (cells_.CellCount() > INT32_MAX) throw RuntimeError(runtime::error::kOverflow);
    return static_cast<std::int32_t>(cells_.CellCount());
  }

  Ref<Range> Cells(std::int32_t row, std::int32_t column) override {
    return sheet_->Cells(cells_.row1 + row - 1, cells_.column1 + column - 1);
  }
  std::string Address() override { return RangeAddress(cells_); }

  Variant Value() override { return sheet_->CellValueAt(cells_.row1, cells_.column1).ToVariant(); }
  void SetValue(const Variant& value) override { sheet_->SetCellValueAt(cells_.row1, cells_.column1, value); }
  std::string Text() override {
    std::string scratch;
    return std::string(sheet_->CellTextAt(cells_.row1, cells_.column1, scratch));
  }
  void SetNumberFormat(std::string_view format) override {
    Log().Put(Path(), "NumberFormat", format);
    sheet_->SetNumberFormat(cells_, format);
  }
  void Clear() override {
    Log().Call(Path(), "Clear");
    sheet_->ClearCells(cells_);
  }
  void Activate() override {
    Log().Call(Path(), "Activate");
    sheet_->ActivateCell({cells_.row1, cells_.column1});
  }

  void Insert() override {
    CheckWholeRows();
    Log().Call(Path(), "Insert");
    for (std::int32_t i = 0; i < cells_.RowCount(); ++i) sheet_->InsertRow(cells_.row1);
  }
  void Delete(std::int32_t shift) override {
    CheckWholeRows();
    Log().Call(Path(), "Delete", {shift});
    for (std::int32_t i = 0; i < cells_.RowCount(); ++i) sheet_->DeleteRow(cells_.row1);
  }

  void Sort(Ref<Range> key1, std::int32_t order1, std::int32_t header, std::int32_t orderCustom,
            bool matchCase, std::int32_t orientation) override {
    const std::int32_t column = key1 ? key1->Column() : 0;
    Log().Call(Path(), "Sort",
               {key1 ? key1->Address() : std::string(), order1, header, orderCustom, matchCase, orientation});
    // Custom lists and sorting by columns are not supported.
    const bool plain = orderCustom == 1 && orientation == excel::xlTopToBottom;
    // Only the column of the key matters. The key may be a heading above the rows.
    const bool inside = column >= cells_.column1 && column <= cells_.column2;
    if (!plain || (order1 != excel::xlAscending && order1 != excel::xlDescending) ||
        (header != excel::xlYes && header != excel::xlNo)) {
      throw Refusal("Sort method of Range class failed");
    }
    if (!inside) {
      throw Refusal(
          "The sort reference is not valid. Make sure that it's within the data you want to "
          "sort, and the first Sort By box isn't the same or blank.");
    }
    CellRange rows = cells_;
    if (header == excel::xlYes) ++rows.row1;
    sheet_->SortCells(rows, {column, order1 == excel::xlDescending, matchCase});
  }

 private:
  const Journal& Log() const { return sheet_->Book().Journal(); }

  std::function<std::string()> Path() const {
    return [this] {
      const std::string sheet = sheet_->JournalPath()();
      if (cells_.ColumnCount() == limits::kColumns)
        return sheet + ".Rows(" + std::to_string(cells_.row1) + ")";
      return sheet + ".Range(" + Journal::Literal(RangeAddress(cells_)) + ")";
    };
  }

  void CheckWholeRows() const {
    if (cells_.ColumnCount() != limits::kColumns) {
      throw Refusal("Only whole rows can be inserted or deleted.");
    }
  }

  std::shared_ptr<Worksheet> sheet_;
  CellRange cells_;
  Unit unit_;
};

}  // namespace

Ref<excel::Range> MakeRange(std::shared_ptr<Worksheet> sheet, const CellRange& cells) {
  return std::make_shared<SheetRangeObject>(std::move(sheet), cells, SheetRangeObject::Unit::kCells);
}

SheetCells CellsOf(const excel::Range& range) {
  const auto* object = dynamic_cast<const SheetRangeObject*>(&range);
  if (object == nullptr) throw RuntimeError(runtime::error::kTypeMismatch);
  return object->Where();
}

}  // namespace plotsmith::xlsx
