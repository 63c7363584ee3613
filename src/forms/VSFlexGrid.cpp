#include "forms/VSFlexGrid.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith::forms {

using runtime::RuntimeError;

namespace {

/// The sort key of a cell. Numbers come first if they are compared by value.
struct SortKey {
  std::optional<double> number;
  std::string text;  ///< The text in upper case.

  bool operator<(const SortKey& other) const {
    if (number.has_value() != other.number.has_value()) return number.has_value();
    if (number && *number != *other.number) return *number < *other.number;
    return text < other.text;
  }
};

SortKey KeyOf(const std::string& text, SortSetting setting) {
  SortKey key{std::nullopt, runtime::UCase(text)};
  if (setting == SortSetting::flexSortGenericAscending) key.number = runtime::ParseNumber(text);
  return key;
}

}  // namespace

VSFlexGrid::VSFlexGrid(Form& form, const char* name, Control* container, forms::MultiSelect multiSelect,
                       std::int32_t cols, std::int32_t fixedRows)
    : FontControl(form, name, container), multiSelect_(multiSelect), fixedRows_(fixedRows) {
  SetBackColor(kWhite);
  SetCols(cols);
  SetRows(fixedRows);
}

const VSFlexGrid::Row& VSFlexGrid::RowAt(std::int32_t row) const {
  if (row < 0 || row >= Rows()) throw RuntimeError(runtime::error::kInvalidArrayIndex);
  return rows_[static_cast<std::size_t>(row)];
}

VSFlexGrid::Row& VSFlexGrid::RowAt(std::int32_t row) {
  return const_cast<Row&>(std::as_const(*this).RowAt(row));
}

std::size_t VSFlexGrid::ColumnAt(std::int32_t col) const {
  if (col < 0 || col >= Cols()) throw RuntimeError(runtime::error::kInvalidArrayIndex);
  return static_cast<std::size_t>(col);
}

void VSFlexGrid::SetRows(std::int32_t value) {
  if (value < 0) throw RuntimeError(runtime::error::kInvalidPropertyValue);
  rows_.resize(static_cast<std::size_t>(value), Row{std::vector<std::string>(columns_.size()), {}, false});
  Changed();
}

void VSFlexGrid::SetCols(std::int32_t value) {
  if (value < 0) throw RuntimeError(runtime::error::kInvalidPropertyValue);
  columns_.resize(static_cast<std::size_t>(value));
  for (Row& row : rows_) row.cells.resize(columns_.size());
  Changed();
}

const std::string& VSFlexGrid::TextMatrix(std::int32_t row, std::int32_t col) const {
  return RowAt(row).cells[ColumnAt(col)];
}

void VSFlexGrid::SetTextMatrix(std::int32_t row, std::int32_t col, std::string value) {
  RowAt(row).cells[ColumnAt(col)] = std::move(value);
  Changed();
}

const std::string& VSFlexGrid::RowData(std::int32_t row) const { return RowAt(row).data; }

void VSFlexGrid::SetRowData(std::int32_t row, std::string value) { RowAt(row).data = std::move(value); }

std::int32_t VSFlexGrid::SelectedRows() const {
  return static_cast<std::int32_t>(
      std::count_if(rows_.begin(), rows_.end(), [](const Row& row) { return row.selected; }));
}

std::int32_t VSFlexGrid::SelectedRow(std::int32_t index) const {
  for (std::int32_t row = 0; row < Rows(); ++row) {
    if (IsSelected(row) && index-- == 0) return row;
  }
  return -1;
}

bool VSFlexGrid::IsSelected(std::int32_t row) const { return RowAt(row).selected; }

void VSFlexGrid::SetIsSelected(std::int32_t row, bool value) {
  RowAt(row).selected = value;
  Changed();
}

void VSFlexGrid::Select(std::int32_t row, std::int32_t col) {
  Row& selected = RowAt(row);
  cursorCol_ = static_cast<std::int32_t>(ColumnAt(col));
  for (Row& other : rows_) other.selected = &other == &selected;
  Changed();
}

void VSFlexGrid::SetSort(SortSetting setting) {
  std::vector<std::pair<SortKey, Row>> sorted;
  const auto first = rows_.begin() + std::min(fixedRows_, Rows());
  const std::size_t col = ColumnAt(cursorCol_);
  for (auto row = first; row != rows_.end(); ++row) {
    SortKey key = KeyOf(row->cells[col], setting);
    sorted.emplace_back(std::move(key), std::move(*row));
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(sorted.begin(), sorted.end(), first, [](auto& entry) { return std::move(entry.second); });
  Changed();
}

std::int32_t VSFlexGrid::ColWidth(std::int32_t col) const { return columns_[ColumnAt(col)].width; }

void VSFlexGrid::SetColWidth(std::int32_t col, std::int32_t width) {
  columns_[ColumnAt(col)].width = width;
  Changed();
}

ColumnAlignment VSFlexGrid::ColAlignment(std::int32_t col) const { return columns_[ColumnAt(col)].alignment; }

void VSFlexGrid::SetColAlignment(std::int32_t col, ColumnAlignment alignment) {
  columns_[ColumnAt(col)].alignment = alignment;
  Changed();
}

bool VSFlexGrid::UserSelect(const std::vector<std::int32_t>& rows) {
  const auto isNoRow = [this](std::int32_t row) { return row < fixedRows_ || row >= Rows(); };
  if (std::any_of(rows.begin(), rows.end(), isNoRow) ||
      (multiSelect_ == MultiSelect::kNone && rows.size() > 1) || !Reach()) {
    return false;
  }
  for (Row& row : rows_) row.selected = false;
  for (const std::int32_t row : rows) RowAt(row).selected = true;
  Changed();
  Raise(AfterSelChange);
  Raise(Click);
  return true;
}

bool VSFlexGrid::UserDoubleClick(std::int32_t row) {
  if (!UserSelect({row})) return false;
  Raise(DblClick);
  return true;
}

}  // namespace plotsmith::forms
