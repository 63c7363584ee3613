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

/// Reads cells of one sheet with few calls. One call fetches a stretch of a column, which then provides its
/// cells. A stretch that continues another one is twice as long. A stretch is dropped after any call that may
/// have changed something.
///
/// Values are those of Range.Value, which distinguishes dates from numbers. It returns a number in a currency
/// format as a Currency with four decimals, as in a macro.
class CellReader {
 public:
  /// Sets the maximum number of rows of a stretch; the default is 16384. With 1, each cell is read by itself,
  /// which tests compare with.
  static void SetLongestStretch(std::int32_t rows);

  /// `sheet` must outlive the reader.
  explicit CellReader(IDispatch* sheet) : sheet_(sheet) {}

  /// Returns the value of a cell. Its text is valid as long as the reader lives.
  excel::CellValue ValueAt(std::int32_t row, std::int32_t column);
  /// Returns the text that a cell shows. The view is valid as long as the reader lives, or refers to
  /// `scratch`.
  std::string_view TextAt(std::int32_t row, std::int32_t column, std::string& scratch);
  /// Returns the next row below that may have content in the column; 0 if there is none.
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
  /// Returns the stretch with a cell. It is fetched if the cell follows the one that was read last in its
  /// column. Null means that the cell has to be read by itself.
  Stretch* StretchWith(std::int32_t row, std::int32_t column);
  /// Returns the values of cells from a row on, fewer than `size` at the end of the used range; none if the
  /// cells can't be read together.
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
