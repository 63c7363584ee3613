#include "xlsx/sheet/RowShifts.h"

#include <algorithm>

#include "runtime/Ascii.h"
#include "runtime/Strings.h"

namespace plotsmith::xlsx {

namespace {

/// Returns true if a text may contain a name, ignoring case. Case is ignored for ASCII letters only. A file
/// may write some characters of a name in another way, so only the longest sequence of plain characters is
/// compared.
bool Mentions(std::string_view text, std::string_view name) {
  const auto plain = [](char c) { return ascii::IsDigit(c) || ascii::IsLetter(c) || c == '_' || c == ' '; };
  std::size_t begin = 0, length = 0;  // the longest sequence of plain characters
  for (std::size_t i = 0; i < name.size();) {
    std::size_t end = i;
    while (end < name.size() && plain(name[end])) ++end;
    if (end - i > length) begin = i, length = end - i;
    i = end + 1;
  }
  if (length == 0) return true;
  return std::search(text.begin(), text.end(), name.begin() + static_cast<std::ptrdiff_t>(begin),
                     name.begin() + static_cast<std::ptrdiff_t>(begin + length),
                     [&](char a, char b) { return ascii::Lower(a) == ascii::Lower(b); }) != text.end();
}

}  // namespace

void RowShifts::Add(std::string_view sheet, std::int32_t row, std::int32_t count) {
  auto& shifts = shifts_[runtime::UCase(sheet)];
  if (!shifts.empty() && shifts.back().number + 1 == count_ && !marked_) {
    RowShift& last = shifts.back();
    // Rows that are inserted or deleted one by one at the same position are one change.
    if (last.row == row && (last.count > 0) == (count > 0)) {
      last.count += count;
      return;
    }
  }
  shifts.push_back({row, count, count_++});
  marked_ = false;
}

std::optional<std::string> RowShifts::Follow(std::string_view formula, std::string_view home,
                                             std::size_t followed) const {
  std::string scratch;
  return ShiftRows(formula, home, [&](std::string_view sheet) -> std::span<const RowShift> {
    const auto found = shifts_.find(runtime::UCase(sheet, scratch));
    if (found == shifts_.end()) return {};
    const auto behind = std::partition_point(found->second.begin(), found->second.end(),
                                             [&](const RowShift& shift) { return shift.number < followed; });
    return {behind, found->second.end()};
  });
}

bool RowShifts::MayConcern(std::string_view text) const {
  return std::any_of(shifts_.begin(), shifts_.end(),
                     [&](const auto& sheet) { return Mentions(text, sheet.first); });
}

}  // namespace plotsmith::xlsx
