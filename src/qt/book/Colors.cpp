#include "qt/book/Colors.h"

#include <algorithm>
#include <cmath>

namespace plotsmith::qtbook {
namespace {

/// Returns the relative luminance (WCAG 2), from 0 to 1.
double Luminance(const QColor& color) {
  const auto linear = [](double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Returns the contrast ratio, from 1 (equal colours) to 21.
double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

/// Common colours on a white background, including grey, don't change.
constexpr double kLeastContrast = 2;

}  // namespace

QColor Between(const QColor& a, const QColor& b, double share) {
  const auto mixed = [&](float from, float to) { return static_cast<float>(from + (to - from) * share); };
  return QColor::fromRgbF(mixed(a.redF(), b.redF()), mixed(a.greenF(), b.greenF()),
                          mixed(a.blueF(), b.blueF()));
}

QColor TextShade(const QPalette& palette, double share) {
  return Between(palette.color(QPalette::Base), palette.color(QPalette::Text), share);
}

QColor FromExcel(std::int32_t color) { return {color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF}; }

QColor Readable(const QColor& wanted, const QColor& background, const QPalette& palette) {
  if (Contrast(wanted, background) >= kLeastContrast) return wanted;
  const QColor text = palette.color(QPalette::Text), base = palette.color(QPalette::Base);
  return Contrast(text, background) >= Contrast(base, background) ? text : base;
}

}  // namespace plotsmith::qtbook
