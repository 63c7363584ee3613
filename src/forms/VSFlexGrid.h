#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/Lists.h"

namespace plotsmith::forms {

/// The sort orders of a grid, with the names of the control's library. Both are ascending.
enum class SortSetting {
  flexSortGenericAscending = 1,       ///< Numbers by value and before texts; texts ignoring case.
  flexSortStringNoCaseAscending = 5,  ///< All as texts, ignoring case.
};

/// The alignment of the texts in a column.
enum class ColumnAlignment { flexAlignLeftCenter = 1, flexAlignRightCenter = 7 };

/// A grid of texts in which the user selects whole rows. Rows and columns count from 0. The fixed rows, which
/// contain the headings, come first. Row and column numbers out of range raise error 381.
class VSFlexGrid : public FontControl {
 public:
  /// Makes a grid with `cols` columns and `fixedRows` rows of headings.
  VSFlexGrid(Form& form, const char* name, Control* container, forms::MultiSelect multiSelect,
             std::int32_t cols, std::int32_t fixedRows);
  const char* TypeName() const override { return "VSFlexGrid"; }

  /// Whether several rows can be selected. This can't be changed.
  forms::MultiSelect MultiSelect() const { return multiSelect_; }
  /// The number of rows, including the fixed ones. New rows are empty and not selected.
  ///@{
  std::int32_t Rows() const { return static_cast<std::int32_t>(rows_.size()); }
  void SetRows(std::int32_t value);
  ///@}
  /// The number of fixed rows.
  std::int32_t FixedRows() const { return fixedRows_; }
  /// The number of columns.
  ///@{
  std::int32_t Cols() const { return static_cast<std::int32_t>(columns_.size()); }
  void SetCols(std::int32_t value);
  ///@}

  /// The text of a cell.
  ///@{
  const std::string& TextMatrix(std::int32_t row, std::int32_t col) const;
  void SetTextMatrix(std::int32_t row, std::int32_t col, std::string value);
  ///@}

  /// A hidden text of a row, such as an id.
  ///@{
  const std::string& RowData(std::int32_t row) const;
  void SetRowData(std::int32_t row, std::string value);
  ///@}

  /// The number of selected rows.
  std::int32_t SelectedRows() const;
  /// Returns a selected row by its index among the selected rows, counted from 0, or -1 if there are fewer.
  std::int32_t SelectedRow(std::int32_t index) const;
  /// Returns true if the row is selected.
  bool IsSelected(std::int32_t row) const;
  /// Selects or deselects a row. Other rows don't change. Raises no event.
  void SetIsSelected(std::int32_t row, bool value);
  /// Moves the cursor to a cell and selects only its row. Raises no event.
  void Select(std::int32_t row, std::int32_t col);
  /// Sorts the rows below the fixed rows by the column of the cursor. The sort is stable.
  void SetSort(SortSetting setting);

  /// The width of a column, in the unit of ClientWidth.
  ///@{
  std::int32_t ColWidth(std::int32_t col) const;
  void SetColWidth(std::int32_t col, std::int32_t width);
  ///@}
  /// The alignment of a column.
  ///@{
  ColumnAlignment ColAlignment(std::int32_t col) const;
  void SetColAlignment(std::int32_t col, ColumnAlignment alignment);
  ///@}

  /// The width inside the borders in twips, as designed.
  std::int32_t ClientWidth() const { return 7200; }

  /// Raised when the user clicks a row.
  Event Click;
  /// Raised when the user double-clicks a row.
  Event DblClick;
  /// Raised after the user has changed the selection.
  Event AfterSelChange;

  /// Handles the user's selection of exactly these rows. Raises AfterSelChange, then Click. Returns false if
  /// the user can't use the grid.
  bool UserSelect(const std::vector<std::int32_t>& rows);
  /// Handles a double click by the user: calls UserSelect for the row and, if it succeeds, raises DblClick.
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
