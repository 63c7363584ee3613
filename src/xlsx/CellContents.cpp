#include "xlsx/CellContents.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::xlsx {
namespace {

using Kind = excel::CellValue::Kind;

/// Returns a number with `decimals` digits after the decimal point.
std::string Fixed(double number, int decimals) {
  std::array<char, 400> buffer;  // A double has at most 309 digits before the decimal point.
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed, decimals);
  return std::string(buffer.data(), end.ptr);
}

/// Returns the number of decimals that a displayed number can lose. A number with an exponent can hardly be
/// shortened.
int DecimalsOf(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos || text.find('E') != std::string_view::npos) return 0;
  return static_cast<int>(text.size() - point - 1);
}

}  // namespace

CellContents ContentsAt(Worksheet& sheet, std::int32_t row, std::int32_t column) {
  const excel::CellValue value = sheet.Stored(row, column);
  CellContents cell;
  cell.kind = value.kind;
  cell.number = value.number;
  cell.style = sheet.StyleAt(row, column);
  cell.general = value.kind == Kind::kNumber && sheet.Book().Styles().IsGeneral(cell.style);
  std::string scratch;
  if (!cell.IsEmpty()) cell.text = sheet.CellTextAt(row, column, scratch);
  return cell;
}

const CellLook& CellLooks::Of(std::uint32_t style) {
  const auto found = looks_.find(style);
  if (found != looks_.end()) return found->second;
  return looks_.emplace(style, LookOf(book_.Styles(), book_.Theme(), style)).first->second;
}

TextSide SideOf(const CellContents& cell, const CellLook& look) {
  switch (look.horizontal) {
    case HorizontalAlignment::kLeft:
    case HorizontalAlignment::kFill:
      return TextSide::kLeft;
    case HorizontalAlignment::kRight:
      return TextSide::kRight;
    case HorizontalAlignment::kCenter:
    case HorizontalAlignment::kCenterAcross:
      return TextSide::kMiddle;
    case HorizontalAlignment::kGeneral:
      break;
  }
  if (cell.IsNumber()) return TextSide::kRight;
  return cell.kind == Kind::kBoolean || cell.kind == Kind::kError ? TextSide::kMiddle : TextSide::kLeft;
}

bool MaySpread(const CellContents& cell, const CellLook& look) {
  return cell.kind == Kind::kText && !look.wrap && look.horizontal != HorizontalAlignment::kFill;
}

std::string FittedNumber(const CellContents& cell, double width,
                         const std::function<double(std::string_view)>& widthOf) {
  if (widthOf(cell.text) <= width) return cell.text;
  const int decimals = cell.general ? DecimalsOf(cell.text) : 0;
  for (int kept = decimals - 1; kept >= 0; --kept) {
    std::string shorter = Fixed(cell.number, kept);
    if (widthOf(shorter) <= width) return shorter;
  }
  const double mark = std::max(widthOf("#"), 0.1);
  return std::string(static_cast<std::size_t>(std::max(width / mark, 1.0)), '#');
}

}  // namespace plotsmith::xlsx
