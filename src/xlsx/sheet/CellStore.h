#pragma once

#include <bit>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

/// The value of a cell in eight bytes. A number is stored as it is. Everything else is in the payload of a
/// quiet NaN, because no number in a file is a NaN. A text is an index into the workbook's shared strings or
/// into the sheet's own texts.
class PackedValue {
 public:
  /// The type of a value.
  enum class Kind : std::uint8_t { kEmpty, kBoolean, kError, kSharedText, kOwnText, kNumber };

  constexpr PackedValue() : PackedValue(Kind::kEmpty, 0) {}
  /// Makes a value other than a number. `index` is its Boolean, error number or text.
  constexpr PackedValue(Kind kind, std::uint32_t index)
      : bits_(kTag | static_cast<std::uint64_t>(kind) << 32 | index) {}
  /// Makes a number.
  constexpr explicit PackedValue(double number) : bits_(std::bit_cast<std::uint64_t>(number)) {}

  /// The type of the value.
  Kind GetKind() const {
    return (bits_ & kTag) == kTag ? static_cast<Kind>(bits_ >> 32 & 0xFF) : Kind::kNumber;
  }
  /// The number; only for kNumber.
  double Number() const { return std::bit_cast<double>(bits_); }
  /// The Boolean, the error number, or the index of the text.
  std::uint32_t Index() const { return static_cast<std::uint32_t>(bits_); }

 private:
  static constexpr std::uint64_t kTag = std::uint64_t{0xFFF8} << 48;
  std::uint64_t bits_;
};

/// Texts in one block of memory, by index from 0.
class TextPool {
 public:
  /// Adds a text and returns its index.
  std::uint32_t Add(std::string_view text) {
    bytes_.append(text);
    ends_.push_back(bytes_.size());
    return static_cast<std::uint32_t>(ends_.size() - 1);
  }
  /// Returns a text by its index. The view is valid until the next Add.
  std::string_view At(std::uint32_t index) const {
    if (index >= ends_.size()) return {};
    const std::uint64_t begin = index == 0 ? 0 : ends_[index - 1];
    return std::string_view(bytes_).substr(begin, ends_[index] - begin);
  }
  /// Number of texts.
  std::size_t Count() const { return ends_.size(); }

 private:
  std::string bytes_;
  std::vector<std::uint64_t> ends_;
};

/// The cells of a sheet as they were read, by column. A cell takes eight bytes. Styles are stored as runs,
/// because most cells of a column share one. Rows and columns count from 1.
class CellStore {
 public:
  /// Adds a cell. Cells are added in the order of the file.
  void Append(std::int32_t row, std::int32_t column, PackedValue value, std::uint32_t style) {
    if (column > static_cast<std::int32_t>(columns_.size()))
      columns_.resize(static_cast<std::size_t>(column));
    columns_[static_cast<std::size_t>(column) - 1].Append(row, value, style);
    ++count_;
  }
  /// Returns the value of a cell, kEmpty if there is none. Row and column count from 1.
  PackedValue ValueAt(std::int32_t row, std::int32_t column) const {
    if (column < 1 || column > static_cast<std::int32_t>(columns_.size())) return {};
    return columns_[static_cast<std::size_t>(column) - 1].ValueAt(row);
  }
  /// Returns the style of a cell, an index into cellXfs; 0 if there is no cell.
  std::uint32_t StyleAt(std::int32_t row, std::int32_t column) const {
    if (column < 1 || column > static_cast<std::int32_t>(columns_.size())) return 0;
    return columns_[static_cast<std::size_t>(column) - 1].StyleAt(row);
  }

  /// The last column with a cell; 0 if there is none.
  std::int32_t ColumnCount() const { return static_cast<std::int32_t>(columns_.size()); }
  /// Returns the next row below `row` that may have a cell in the column; 0 if there is none.
  std::int32_t NextRow(std::int32_t row, std::int32_t column) const {
    if (column < 1 || column > static_cast<std::int32_t>(columns_.size())) return 0;
    return columns_[static_cast<std::size_t>(column) - 1].NextRow(row);
  }
  /// The number of cells that were added, including empty ones.
  std::uint64_t CellCount() const { return count_; }

  TextPool texts;  ///< The sheet's own texts: inline strings, results of formulas, error values.

 private:
  /// The cells of a column in runs of rows. A gap of a few rows is filled, which costs less than a new run.
  class Column {
   public:
    void Append(std::int32_t row, PackedValue value, std::uint32_t style) {
      if (!runs_.empty() && row == runs_.back().lastRow + 1 && style == lastStyle_) {  // Nearly always.
        values_.push_back(value);
        runs_.back().lastRow = row;
      } else {
        AppendElsewhere(row, value, style);
      }
    }
    PackedValue ValueAt(std::int32_t row) const {
      // Most callers read a column downwards, so the run of the last call is the best guess.
      if (unordered_.empty() && !runs_.empty()) {
        const Run& run = runs_[recentRun_];
        if (row >= run.firstRow && row <= run.lastRow) {
          return values_[run.firstValue + static_cast<std::size_t>(row - run.firstRow)];
        }
      }
      return FindValue(row);
    }
    std::uint32_t StyleAt(std::int32_t row) const;
    std::int32_t NextRow(std::int32_t row) const;

   private:
    static constexpr std::int32_t kFilledGap = 4;
    struct Run {
      std::int32_t firstRow, lastRow;
      std::uint32_t firstValue;  ///< An index into values_.
    };
    struct StyleRun {
      std::int32_t firstRow;
      std::uint32_t style;
    };
    struct UnorderedCell {
      PackedValue value;
      std::uint32_t style;
    };

    void AppendElsewhere(std::int32_t row, PackedValue value, std::uint32_t style);
    PackedValue FindValue(std::int32_t row) const;

    std::vector<PackedValue> values_;
    std::vector<Run> runs_;
    std::vector<StyleRun> styles_;
    std::uint32_t lastStyle_ = 0;
    mutable std::size_t recentRun_ = 0;
    mutable std::size_t recentStyle_ = 0;
    std::map<std::int32_t, UnorderedCell> unordered_;  ///< Cells of a file whose rows aren't in order.
  };

  std::vector<Column> columns_;
  std::uint64_t count_ = 0;
};

}  // namespace plotsmith::xlsx
