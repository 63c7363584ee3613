#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace plotsmith::xlsx {

/// A number for each cell of one column of a sheet that is written to. A search for a text reads these four
/// bytes per row instead of the cells. Rows count from 1.
class ColumnKeys {
 public:
  /// The key of a cell that the caller has to read: the cell is empty, or its displayed text isn't its text.
  static constexpr std::uint32_t kUnknown = 0;
  /// Returns the key of a text.
  static std::uint32_t KeyOf(std::string_view text) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(text)) | 1u;
  }

  /// Makes the keys of a column, counted from 1.
  explicit ColumnKeys(std::int32_t column) : column_(column) {}

  /// The column, from 1.
  std::int32_t Column() const { return column_; }
  /// Sets the key of a row, counted from 1.
  void Set(std::int32_t row, std::uint32_t key) {
    const std::size_t index = IndexOf(row);
    if (index >= keys_.size()) keys_.resize(index + 1, kUnknown);
    keys_[index] = key;
  }
  /// Inserts a row; the keys from there on move down.
  void InsertRow(std::int32_t row) {
    if (IndexOf(row) < keys_.size()) keys_.insert(keys_.begin() + (row - 1), kUnknown);
  }
  /// Deletes a row; the keys below it move up.
  void DeleteRow(std::int32_t row) {
    if (IndexOf(row) < keys_.size()) keys_.erase(keys_.begin() + (row - 1));
  }
  /// Returns the next row below `row` that has the key, or a cell that the caller has to read.
  std::int32_t NextRow(std::int32_t row, std::uint32_t key) const {
    std::size_t index = IndexOf(row) + 1;
    while (index < keys_.size() && keys_[index] != key && keys_[index] != kUnknown) ++index;
    return static_cast<std::int32_t>(index) + 1;
  }

 private:
  static std::size_t IndexOf(std::int32_t row) { return static_cast<std::size_t>(row) - 1; }

  std::int32_t column_;
  std::vector<std::uint32_t> keys_;  ///< From row 1. Rows after the last key have kUnknown.
};

}  // namespace plotsmith::xlsx
