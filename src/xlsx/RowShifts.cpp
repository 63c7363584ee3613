#include "xlsx/RowShifts.h"

#include <algorithm>

#include "runtime/Strings.h"
#include "xlsx/Formula.h"

namespace plotsmith::xlsx {

void RowShifts::Add(std::string_view sheet, std::int32_t row, std::int32_t count) {
  if (!shifts_.empty() && !marked_) {
    Shift& last = shifts_.back();
    // rows that go in, or out, at one place one by one are one change
    if (last.sheet == sheet && last.row == row && (last.count > 0) == (count > 0)) {
      last.count += count;
      return;
    }
  }
  shifts_.push_back({std::string(sheet), row, count});
  marked_ = false;
}

std::optional<std::string> RowShifts::Follow(std::string_view formula, std::string_view home,
                                             std::size_t followed) const {
  std::optional<std::string> result;
  for (std::size_t i = followed; i < shifts_.size(); ++i) {
    const Shift& shift = shifts_[i];
    const bool atHome = !home.empty() && runtime::EqualsIgnoreCase(home, shift.sheet);
    if (auto next = ShiftRows(result ? std::string_view(*result) : formula, shift.sheet, atHome, shift.row,
                              shift.count)) {
      result = std::move(next);
    }
  }
  return result;
}

bool RowShifts::MayConcern(std::string_view text) const {
  const std::string upper = runtime::UCase(text);
  return std::any_of(shifts_.begin(), shifts_.end(), [&](const Shift& shift) {
    return upper.find(runtime::UCase(shift.sheet)) != std::string::npos;
  });
}

}  // namespace plotsmith::xlsx
