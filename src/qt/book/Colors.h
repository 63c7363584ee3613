#pragma once

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <cstdint>

/// Colours of the window. They are roles of the palette, or lie between two of them, so that dark and
/// high-contrast themes work; the only others are those that the workbook gives its cells.
namespace plotsmith::qtbook {

/// `share` of `b`, from 0 to 1, and the rest of `a`.
QColor Between(const QColor& a, const QColor& b, double share);
/// From Excel's colour: red + 256 * green + 65536 * blue.
QColor FromExcel(std::int32_t color);
/// `wanted` if it can be read on the background, else the palette's colour of texts or of backgrounds,
/// whichever reads better there.
QColor Readable(const QColor& wanted, const QColor& background, const QPalette& palette);

}  // namespace plotsmith::qtbook
