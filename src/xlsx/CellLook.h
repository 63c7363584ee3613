#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace plotsmith::xlsx {

class Styles;
class Theme;

/// The horizontal alignment of a cell (ST_HorizontalAlignment). kGeneral aligns numbers right, texts left,
/// and Booleans and error values in the centre.
enum class HorizontalAlignment { kGeneral, kLeft, kCenter, kRight, kFill, kCenterAcross };
/// The vertical alignment of a cell (ST_VerticalAlignment).
enum class VerticalAlignment { kTop, kCenter, kBottom };

/// A line at an edge of a cell (CT_BorderPr). Its dash pattern isn't stored.
struct BorderLine {
  int width = 0;                      ///< The width in pixels at 96 dots per inch; 0 for no line.
  std::optional<std::int32_t> color;  ///< Red + 256 * green + 65536 * blue; absent for the text colour.

  bool operator==(const BorderLine&) const = default;
};

/// The width of a step of the indent, in spaces.
inline constexpr int kBlanksPerIndent = 3;

/// The format of a cell, except its number format.
struct CellLook {
  /// The horizontal alignment.
  HorizontalAlignment horizontal = HorizontalAlignment::kGeneral;
  /// The vertical alignment.
  VerticalAlignment vertical = VerticalAlignment::kBottom;
  int indent = 0;     ///< The indent in steps of kBlanksPerIndent.
  bool wrap = false;  ///< Whether a long text continues on the next line of the cell.
  /// The font style: whether the text is bold, italic, underlined or struck through.
  bool bold = false, italic = false, underline = false, strike = false;
  std::string font;  ///< The name of the font.
  double size = 11;  ///< The size of the font in points.
  /// The colours as red + 256 * green + 65536 * blue. They are absent for the default colours of the window.
  std::optional<std::int32_t> textColor, fillColor;

  /// The lines at the edges. Neighbouring cells may both have a line at the common edge.
  BorderLine left, top, right, bottom;

  bool operator==(const CellLook&) const = default;
};

/// Returns the format of a cell style by its index, from 0, in the workbook's cell styles. A style that
/// doesn't exist has the first font of the workbook.
CellLook LookOf(const Styles& styles, const Theme& theme, std::uint32_t style);

}  // namespace plotsmith::xlsx
