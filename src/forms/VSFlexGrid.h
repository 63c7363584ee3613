#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/Lists.h"

namespace plotsmith::forms {

/// How the rows of a grid are sorted, by the names of the control's library. Both sort ascending.
enum class SortSetting {
  flexSortGenericAscending = 1,       ///< numbers by their values and before texts, texts ignoring case
  flexSortStringNoCaseAscending = 5,  ///< all as texts, ignoring case
};

/// Where the texts of a column are.
enum class ColumnAlignment { flexAlignLeftCenter = 1, flexAlignRightCenter = 7 };

/// A grid of texts, of which whole rows are selected. Rows and columns count from 0; the fixed rows, which
/// hold the heads, come first. Rows and columns outside of the grid are error 381.
class VSFlexGrid : public FontControl {
 public:
  VSFlexGrid(Form& form, const char* name, Control* container, forms::MultiSelect multiSelect,
             std::int32_t cols, std::int32_t fixedRows);
  const char* TypeName() const override { return "VSFlexGrid"; }

  forms::MultiSelect MultiSelect() const { return multiSelect_; }
  /// With the fixed ones. New rows are empty and not selected.
  ///@{
  std::int32_t Rows() const { return static_cast<std::int32_t>(rows_.size()); }
  void SetRows(std::int32_t value);
  ///@}
  std::int32_t FixedRows() const { return fixedRows_; }
  std::int32_t Cols() const { return static_cast<std::int32_t>(columns_.size()); }
  void SetCols(std::int32_t value);

  const std::string& TextMatrix(std::int32_t row, std::int32_t col) const;
  void SetTextMatrix(std::int32_t row, std::int32_t col, std::string value);
  /// A text that belongs to a row and is not shown, such as an id.
  ///@{
  const std::string& RowData(std::int32_t row) const;
  void SetRowData(std::int32_t row, std::string value);
  ///@}

  std::int32_t SelectedRows() const;
  /// The row that is selected at a place among those selected, from 0; -1 behind the last one.
  std::int32_t SelectedRow(std::int32_t index) const;
  bool IsSelected(std::int32_t row) const;
  /// Raises nothing, and leaves the other rows as they are.
  void SetIsSelected(std::int32_t row, bool value);
  /// Moves the cursor to a cell, and selects its row and no other. Raises nothing.
  void Select(std::int32_t row, std::int32_t col);
  /// Sorts the rows below the fixed ones by the column of the cursor. Equal rows keep their order.
  void SetSort(SortSetting setting);

  /// In the units of ClientWidth.
  ///@{
  std::int32_t ColWidth(std::int32_t col) const;
  void SetColWidth(std::int32_t col, std::int32_t width);
  ///@}
  ColumnAlignment ColAlignment(std::int32_t col) const;
  void SetColAlignment(std::int32_t col, ColumnAlignment alignment);
  /// The width inside of the borders, in twips, as the form was designed.
  std::int32_t ClientWidth() const { return 7200; }

  Event Click;
  Event DblClick;
  Event AfterSelChange;

  /// Selects these rows and no others; raises AfterSelChange, then Click.
  bool UserSelect(const std::vector<std::int32_t>& rows);
  /// Selects a row as UserSelect does, then raises DblClick.
  bool UserDoubleClick(std::int32_t row);

 protected:
  const char* KindText() const override { return "grid"; }

 private:
  struct Row {
    std::vector<std::string> cells;
    std::string data;
    bool selected = false;
  };
  struct Column {
    std::int32_t width = 0;
    ColumnAlignment alignment = ColumnAlignment::flexAlignLeftCenter;
  };

  const Row& RowAt(std::int32_t row) const;
  Row& RowAt(std::int32_t row);
  std::size_t ColumnAt(std::int32_t col) const;

  forms::MultiSelect multiSelect_;
  std::int32_t fixedRows_;
  std::int32_t cursorCol_ = 0;
  std::vector<Row> rows_;
  std::vector<Column> columns_;
};

}  // namespace plotsmith::forms
