#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/sheet/Formula.h"

namespace plotsmith::xlsx {

/// The rows that were inserted and deleted since the workbook was opened, in order. An object that has
/// references remembers how many of the shifts it has followed, and follows the others when its references
/// are needed. Therefore an inserted row doesn't take time for each chart.
class RowShifts {
 public:
  /// Adds an insertion of `count` rows at `row`, or a deletion if `count` is negative.
  void Add(std::string_view sheet, std::int32_t row, std::int32_t count);
  /// Returns true if no row has moved.
  bool None() const { return count_ == 0; }
  /// Returns true if there are shifts after a mark.
  bool AnyAfter(std::size_t mark) const { return count_ > mark; }
  /// Returns the mark of an object that has followed all shifts.
  std::size_t Mark() {
    marked_ = true;
    return count_;
  }

  /// Adjusts a formula that has followed the shifts up to the mark `followed`. Returns nothing if it doesn't
  /// change. `home` is the sheet of the formula, or empty for a chart or a name.
  std::optional<std::string> Follow(std::string_view formula, std::string_view home,
                                    std::size_t followed) const;
  /// Returns true if a text contains the name of a sheet with shifts.
  bool MayConcern(std::string_view text) const;

 private:
  std::map<std::string, std::vector<RowShift>, std::less<>> shifts_;  ///< By sheet, in upper case.
  std::size_t count_ = 0;
  bool marked_ = false;  ///< Whether an object has followed the last shift, which can't be extended then.
};

}  // namespace plotsmith::xlsx
