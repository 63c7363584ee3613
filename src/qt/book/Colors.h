#pragma once

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <cstdint>

/// Colours of the window. They come from the palette, or are mixed from two of its colours, so that dark and
/// high-contrast themes work. The only others are the cell colours of the workbook.
namespace plotsmith::qtbook {

/// Mixes two colours. `share` is the share of `b`, from 0 to 1.
QColor Between(const QColor& a, const QColor& b, double share);
/// Returns the colour of the palette's texts, faded into their background. `share` is the share of the
/// colour, from 0 to 1.
QColor TextShade(const QPalette& palette, double share);
/// Converts Excel's colour: red + 256 * green + 65536 * blue.
QColor FromExcel(std::int32_t color);
/// Returns `wanted` if it is legible on the background, or the more legible one of the palette's text and
/// background colours.
QColor Readable(const QColor& wanted, const QColor& background, const QPalette& palette);

}  // namespace plotsmith::qtbook
