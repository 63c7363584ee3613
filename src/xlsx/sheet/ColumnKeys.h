#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace plotsmith::xlsx {

/// A number for each cell of one column of a sheet that is written to, so that a walk for a text reads four
/// bytes a row and not the cells.
class ColumnKeys {
 public:
  /// The key of a cell that has to be looked at: it shows nothing, or something else than the text it holds.
  static constexpr std::uint32_t kUnknown = 0;
  static std::uint32_t KeyOf(std::string_view text) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(text)) | 1u;
  }

  explicit ColumnKeys(std::int32_t column) : column_(column) {}

  std::int32_t Column() const { return column_; }
  void Set(std::int32_t row, std::uint32_t key) {
    const std::size_t index = IndexOf(row);
    if (index >= keys_.size()) keys_.resize(index + 1, kUnknown);
    keys_[index] = key;
  }
  void InsertRow(std::int32_t row) {
    if (IndexOf(row) < keys_.size()) keys_.insert(keys_.begin() + (row - 1), kUnknown);
  }
  void DeleteRow(std::int32_t row) {
    if (IndexOf(row) < keys_.size()) keys_.erase(keys_.begin() + (row - 1));
  }
  /// The next row below with the key, or with a cell that has to be looked at.
  std::int32_t NextRow(std::int32_t row, std::uint32_t key) const {
    std::size_t index = IndexOf(row) + 1;
    while (index < keys_.size() && keys_[index] != key && keys_[index] != kUnknown) ++index;
    return static_cast<std::int32_t>(index) + 1;
  }

 private:
  static std::size_t IndexOf(std::int32_t row) { return static_cast<std::size_t>(row) - 1; }

  std::int32_t column_;
  std::vector<std::uint32_t> keys_;  ///< from row 1; rows behind the end are unknown
};

}  // namespace plotsmith::xlsx
