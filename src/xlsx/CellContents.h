#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "host/excel/CellValue.h"
#include "xlsx/CellLook.h"

namespace plotsmith::xlsx {

class Workbook;
class Worksheet;

/// A cell as Excel shows it.
struct CellContents {
  excel::CellValue::Kind kind = excel::CellValue::Kind::kEmpty;  ///< The kind of the value.
  double number = 0;                                             ///< The value of a number or a date.
  bool general = false;     ///< Whether it is a number in General format.
  std::uint32_t style = 0;  ///< The style for CellLooks::Of.
  std::string text;         ///< The displayed text, as in Range.Text.

  /// Returns true if the cell has no value.
  bool IsEmpty() const { return kind == excel::CellValue::Kind::kEmpty; }
  /// Returns true if the cell has a number or a date.
  bool IsNumber() const {
    return kind == excel::CellValue::Kind::kNumber || kind == excel::CellValue::Kind::kDate;
  }
};

/// Returns the contents of a cell. Rows and columns count from 1. Throws RuntimeError if the sheet can't be
/// read.
CellContents ContentsAt(Worksheet& sheet, std::int32_t row, std::int32_t column);

/// The looks of the cell styles of a workbook. Each is made when it is first used.
class CellLooks {
 public:
  /// `book` must outlive the looks.
  explicit CellLooks(Workbook& book) : book_(book) {}

  /// Returns the look of a style. The reference is valid until Clear.
  const CellLook& Of(std::uint32_t style);
  /// Forgets the looks, for example after a change of the palette.
  void Clear() { looks_.clear(); }

 private:
  Workbook& book_;
  std::map<std::uint32_t, CellLook> looks_;
};

/// The horizontal position of a text in its cell.
enum class TextSide { kLeft, kMiddle, kRight };

/// Returns the horizontal position of the text of a cell.
TextSide SideOf(const CellContents& cell, const CellLook& look);
/// Returns true if a text that is too long for its cell extends over empty cells beside it.
bool MaySpread(const CellContents& cell, const CellLook& look);

/// Returns the text that a cell shows for its number. If the displayed text is wider than `width`, a number
/// in General format loses decimals. Other numbers become as many "#" as fit. `widthOf` returns the width of
/// a text, in the unit of `width`.
std::string FittedNumber(const CellContents& cell, double width,
                         const std::function<double(std::string_view)>& widthOf);

}  // namespace plotsmith::xlsx
