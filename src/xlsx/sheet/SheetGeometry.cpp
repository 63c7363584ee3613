#include "xlsx/sheet/SheetGeometry.h"

#include <algorithm>
#include <cmath>

#include "runtime/Strings.h"
#include "xlsx/Limits.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {
namespace {

constexpr double kPointsPerPixel = 0.75;  // at 96 dots an inch
constexpr double kDefaultRowHeight = 15;
constexpr int kDefaultCharacters = 8;
// What a file says beyond these (Excel's limits) is no size.
constexpr double kMostCharacters = 255, kMostRowHeight = 409.5, kMostFontSize = 409;

/// The width of the widest digit in the Normal font, in pixels, by which column widths count. Known for the
/// fonts that workbooks come with; for others it grows with the size as theirs does.
int DigitWidth(const Styles& styles) {
  struct Known {
    std::string_view font;
    double size;
    int width;
  };
  static constexpr Known kKnown[] = {{"Calibri", 11, 7}, {"Calibri", 10, 6},         {"Calibri", 12, 8},
                                     {"Arial", 10, 7},   {"Arial", 11, 8},           {"Aptos Narrow", 11, 7},
                                     {"Cambria", 11, 7}, {"Times New Roman", 10, 6}, {"Verdana", 10, 8}};
  const std::string name = styles.NormalFontName();
  const double size = std::clamp(styles.NormalFontSize(), 1.0, kMostFontSize);
  for (const Known& known : kKnown) {
    if (runtime::EqualsIgnoreCase(name, known.font) && size == known.size) return known.width;
  }
  // a digit is about half as wide as its font is high
  return std::max(1, static_cast<int>(std::lround(size * 96 / 72 * 0.48)));
}

/// A column's width in the file, in characters, as pixels (ECMA-376-1, 18.3.1.13).
double ColumnPoints(double characters, int digit) {
  return std::floor((256 * characters + std::floor(128.0 / digit)) / 256 * digit) * kPointsPerPixel;
}

/// A width that wasn't written: whole characters, padding of a quarter digit on both sides and a grid line,
/// up to a multiple of eight pixels.
double DefaultColumnPoints(int characters, int digit) {
  const double pixels = characters * digit + 2 * std::ceil(digit / 4.0) + 1;
  return std::ceil(pixels / 8) * 8 * kPointsPerPixel;
}

}  // namespace

void GridLines::SetSize(std::int32_t first, std::int32_t last, double size) {
  last = std::min(last, count_ - 1);
  if (first < 0 || first > last || (!own_.empty() && first <= own_.back().last)) return;
  own_.push_back({first, last, size});
}

double GridLines::SizeOf(std::int32_t index) const {
  const auto own = std::lower_bound(own_.begin(), own_.end(), index,
                                    [](const Own& range, std::int32_t i) { return range.last < i; });
  return own != own_.end() && own->first <= index ? own->size : default_;
}

double GridLines::EdgeOf(std::int32_t index) const {
  double edge = 0;
  std::int32_t at = 0;
  for (const Own& range : own_) {
    if (range.first >= index) break;
    edge += (range.first - at) * default_;
    at = std::min(range.last + 1, index);
    edge += (at - range.first) * range.size;
  }
  return edge + (index - at) * default_;
}

std::pair<std::int32_t, double> GridLines::IndexAt(double points) const {
  points = std::max(points, 0.0);
  std::int32_t at = 0;
  const auto walk = [&](std::int32_t end, double size) {
    const double span = (end - at) * size;
    if (size <= 0 || points >= span) {
      points -= std::max(span, 0.0);
      at = end;
      return false;
    }
    const auto whole = static_cast<std::int32_t>(points / size);
    at += whole;
    points -= whole * size;
    return true;
  };
  for (const Own& range : own_) {
    if (walk(range.first, default_) || walk(range.last + 1, range.size)) return {at, points};
  }
  if (walk(count_, default_)) return {at, points};
  return {count_ - 1, SizeOf(count_ - 1)};
}

SheetGeometry ReadGeometry(const std::string& head,
                           const std::vector<std::pair<std::int32_t, double>>& rowHeights,
                           const Styles& styles) {
  const int digit = DigitWidth(styles);
  double columnWidth = DefaultColumnPoints(kDefaultCharacters, digit), rowHeight = kDefaultRowHeight;
  struct Columns {
    long long first, last;
    double width;
  };
  std::vector<Columns> columns;

  // the head is an element without its end, so it is read as a stream of tags
  MemoryStream source(head);
  XmlStream stream(source);
  for (XmlStream::Tag tag = stream.Next(); tag.kind != XmlStream::Kind::kEndOfInput; tag = stream.Next()) {
    const auto number = [&](std::string_view name, double most) {
      auto value = xml::ParseDouble(AttributeIn(tag.attributes, name));
      if (value) value = std::clamp(*value, 0.0, most);
      return value;
    };
    if (tag.kind == XmlStream::Kind::kEnd) continue;
    if (tag.name == "sheetFormatPr") {
      const auto baseCharacters = number("baseColWidth", kMostCharacters);
      if (baseCharacters) columnWidth = DefaultColumnPoints(static_cast<int>(*baseCharacters), digit);
      if (const auto width = number("defaultColWidth", kMostCharacters))
        columnWidth = ColumnPoints(*width, digit);
      if (const auto height = number("defaultRowHeight", kMostRowHeight)) rowHeight = *height;
      if (BooleanIn(tag.attributes, "zeroHeight")) rowHeight = 0;
    } else if (tag.name == "col") {
      constexpr double kBeyond = limits::kColumns + 1;
      const auto first = number("min", kBeyond), last = number("max", kBeyond);
      const auto width = number("width", kMostCharacters);
      if (!first || !last || *first < 1 || *last > limits::kColumns) continue;
      columns.push_back({static_cast<long long>(*first), static_cast<long long>(*last),
                         BooleanIn(tag.attributes, "hidden") ? 0
                         : width                             ? ColumnPoints(*width, digit)
                                                             : -1});
    }
  }

  SheetGeometry geometry{GridLines(columnWidth, limits::kColumns), GridLines(rowHeight, limits::kRows)};
  std::sort(columns.begin(), columns.end(),
            [](const Columns& a, const Columns& b) { return a.first < b.first; });
  for (const Columns& range : columns) {
    geometry.columns.SetSize(static_cast<std::int32_t>(range.first) - 1,
                             static_cast<std::int32_t>(range.last) - 1,
                             range.width < 0 ? columnWidth : range.width);
  }
  for (const auto& [row, height] : rowHeights) {
    geometry.rows.SetSize(row - 1, row - 1, std::clamp(height, 0.0, kMostRowHeight));
  }
  return geometry;
}

}  // namespace plotsmith::xlsx
