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

/// The rows that were inserted and deleted since the workbook was opened, in order. Whoever holds references
/// remembers how far it has followed, and catches up when its references are next looked at: so a row that
/// goes in costs nothing for each chart there is.
class RowShifts {
 public:
  /// `count` rows at `row`; negative: deleted.
  void Add(std::string_view sheet, std::int32_t row, std::int32_t count);
  bool None() const { return count_ == 0; }
  /// Whether any came behind a mark.
  bool AnyBehind(std::size_t mark) const { return count_ > mark; }
  /// The mark to remember once all shifts are followed.
  std::size_t Mark() {
    marked_ = true;
    return count_;
  }

  /// A formula that has followed `followed` of the shifts, brought up to date; nothing if it stays as it is.
  /// `home` is the sheet that the formula stands on, empty for a chart or a name.
  std::optional<std::string> Follow(std::string_view formula, std::string_view home,
                                    std::size_t followed) const;
  /// Whether a text mentions one of the sheets concerned at all.
  bool MayConcern(std::string_view text) const;

 private:
  std::map<std::string, std::vector<RowShift>, std::less<>> shifts_;  ///< by sheet, in upper case
  std::size_t count_ = 0;
  bool marked_ = false;  ///< the last shift is somebody's mark and must not grow any more
};

}  // namespace plotsmith::xlsx
