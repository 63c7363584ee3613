#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "host/excel/CellValue.h"
#include "windows/com/Windows.h"

namespace plotsmith::proxies {

/// Reads cells of one sheet with few calls. One call fetches a stretch of a column, which then answers its
/// cells. A stretch that continues another one is twice as long. A stretch is dropped as soon as any call may
/// have changed something.
///
/// Values are those of Range.Value, which tells dates from numbers. A number in a currency format comes as
/// the language's Currency there, with four decimals, as it would in a macro.
class CellReader {
 public:
  /// How many rows a stretch may have, 16384 unless told. With 1, each cell is read by itself: for
  /// comparisons.
  static void SetLongestStretch(std::int32_t rows);

  /// `sheet` must outlive the reader.
  explicit CellReader(IDispatch* sheet) : sheet_(sheet) {}

  /// The value of a cell. Its text is valid as long as the reader lives.
  excel::CellValue ValueAt(std::int32_t row, std::int32_t column);
  /// The text that a cell shows. The view is valid as long as the reader lives, or it is of `scratch`.
  std::string_view TextAt(std::int32_t row, std::int32_t column, std::string& scratch);
  /// The next row below that may hold anything in the column; 0 if there is none.
  std::int32_t NextRow(std::int32_t row, std::int32_t column);

 private:
  /// Cells of a column that were fetched together.
  struct Stretch {
    std::int32_t first = 0;  ///< row; where a stretch is empty, the row below the cell that was read last
    std::vector<excel::CellValue> values;
    /// Whether Excel shows all texts in these cells as they are, once it was asked for.
    std::optional<bool> plain;

    std::int32_t Size() const { return static_cast<std::int32_t>(values.size()); }
    std::int32_t End() const { return first + Size(); }
    const excel::CellValue& At(std::int32_t row) const {
      return values[static_cast<std::size_t>(row - first)];
    }
    bool Has(std::int32_t row) const { return row >= first && row < End(); }
  };

  /// Drops what was fetched, if it may have changed.
  void Refresh();
  /// The stretch with a cell, fetched if the cell follows the one that was read last in its column. Null if
  /// the cell has to be read by itself.
  Stretch* StretchWith(std::int32_t row, std::int32_t column);
  /// The values of cells from a row on, fewer than `size` at the end of the used range; none if they can't be
  /// told together.
  std::vector<excel::CellValue> Fetch(std::int32_t row, std::int32_t column, std::int32_t size);
  /// Whether Excel shows all texts of a stretch as they are, however wide their column is: the number format
  /// of the cells is General, and no cell shows its formula instead.
  bool IsPlain(const Stretch& stretch, std::int32_t column);
  /// Whether texts of a stretch may be formulas that are shown in the place of their results.
  bool ShowsFormulas(const Stretch& stretch, std::int32_t column, IDispatch* cells);
  /// The last row of the used range.
  std::int32_t Bottom();
  excel::CellValue Kept(const VARIANT& value);

  IDispatch* sheet_;
  std::uint64_t changes_ = 0;                  ///< of com::ChangeCount
  std::map<std::int32_t, Stretch> stretches_;  ///< by column, the latest of each
  std::optional<std::int32_t> bottom_;
  std::optional<bool> showsFormulas_;      ///< of the whole sheet (Window.DisplayFormulas)
  std::unordered_set<std::string> texts_;  ///< of all cells that were fetched, each once
};

}  // namespace plotsmith::proxies
