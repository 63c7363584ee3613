#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace plotsmith::xlsx {

class Styles;
class Theme;

/// Where a cell's text stands (ST_HorizontalAlignment). With kGeneral it depends on the value: numbers at the
/// right, texts at the left, booleans and error values in the centre.
enum class HorizontalAlignment { kGeneral, kLeft, kCenter, kRight, kFill, kCenterAcross };
/// ST_VerticalAlignment.
enum class VerticalAlignment { kTop, kCenter, kBottom };

/// A line at an edge of a cell (CT_BorderPr). Dashes are left out.
struct BorderLine {
  int width = 0;                      ///< pixels at 96 dots an inch; 0 for no line
  std::optional<std::int32_t> color;  ///< Excel's colour; nothing for that of texts

  bool operator==(const BorderLine&) const = default;
};

/// What a cell style says of the look of a cell, beside its number format.
struct CellLook {
  HorizontalAlignment horizontal = HorizontalAlignment::kGeneral;
  VerticalAlignment vertical = VerticalAlignment::kBottom;
  int indent = 0;     ///< in steps of three blanks
  bool wrap = false;  ///< a long text goes on in the next line of the cell
  bool bold = false, italic = false, underline = false, strike = false;
  std::string font;
  double size = 11;  ///< points
  /// Excel's colours; nothing for the colour of the window.
  ///@{
  std::optional<std::int32_t> textColor, fillColor;
  ///@}

  BorderLine left, top, right, bottom;

  bool operator==(const CellLook&) const = default;
};

/// `style` is an index into the workbook's cell styles. One that isn't there looks as the first font does.
CellLook LookOf(const Styles& styles, const Theme& theme, std::uint32_t style);

}  // namespace plotsmith::xlsx
