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

/// Reads cells of one sheet with few calls. One call fetches a stretch of a column, and its cells are then
/// read from the stretch. A stretch that continues the previous one is twice as long. A stretch is dropped
/// after any call that may have changed something.
///
/// Values are those of Range.Value, which distinguishes dates from numbers. For a number in a currency
/// format, Range.Value returns a Currency with four decimals, as in a macro.
class CellReader {
 public:
  /// Sets the maximum number of rows of a stretch; the default is 16384. With 1, each cell is read by itself;
  /// tests use this for comparison.
  static void SetLongestStretch(std::int32_t rows);

  /// Makes a reader for a sheet, which must outlive it.
  explicit CellReader(IDispatch* sheet) : sheet_(sheet) {}

  /// Returns the value of a cell. Its text is valid as long as the reader lives.
  excel::CellValue ValueAt(std::int32_t row, std::int32_t column);
  /// Returns the text that a cell shows. The view is valid as long as the reader lives, or refers to
  /// `scratch`.
  std::string_view TextAt(std::int32_t row, std::int32_t column, std::string& scratch);
  /// Returns the next row below `row` that may have content in the column, or 0 if there is none.
  std::int32_t NextRow(std::int32_t row, std::int32_t column);

 private:
  /// Cells of a column that were fetched together.
  struct Stretch {
    std::int32_t first = 0;  ///< row; if a stretch is empty, the row below the cell that was read last
    std::vector<excel::CellValue> values;
    /// The result of IsPlain for these cells, once it is known.
    std::optional<bool> plain;

    std::int32_t Size() const { return static_cast<std::int32_t>(values.size()); }
    std::int32_t End() const { return first + Size(); }
    const excel::CellValue& At(std::int32_t row) const {
      return values[static_cast<std::size_t>(row - first)];
    }
    bool Has(std::int32_t row) const { return row >= first && row < End(); }
  };

  /// Drops the fetched cells if they may have changed.
  void Refresh();
  /// Returns the stretch that contains a cell, and fetches it if the cell follows the last one that was read
  /// in its column. Returns null if the cell must be read by itself.
  Stretch* StretchWith(std::int32_t row, std::int32_t column);
  /// Returns the values of `size` cells from a row on, or of fewer cells at the end of the used range. The
  /// list is empty if the cells can't be read together.
  std::vector<excel::CellValue> Fetch(std::int32_t row, std::int32_t column, std::int32_t size);
  /// Returns true if Excel shows all texts of a stretch completely, however wide their column is: the number
  /// format of the cells is General, and no cell shows its formula instead.
  bool IsPlain(const Stretch& stretch, std::int32_t column);
  /// Returns true if texts of a stretch may be formulas that are shown instead of their results.
  bool ShowsFormulas(const Stretch& stretch, std::int32_t column, IDispatch* cells);
  /// Returns the last row of the used range.
  std::int32_t Bottom();
  excel::CellValue Kept(const VARIANT& value);

  IDispatch* sheet_;
  std::uint64_t changes_ = 0;                  ///< com::ChangeCount when the cells were fetched
  std::map<std::int32_t, Stretch> stretches_;  ///< by column, the latest of each
  std::optional<std::int32_t> bottom_;
  std::optional<bool> showsFormulas_;      ///< of the whole sheet (Window.DisplayFormulas)
  std::unordered_set<std::string> texts_;  ///< of all fetched cells, each text once
};

}  // namespace plotsmith::proxies
