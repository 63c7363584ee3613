#include "xlsx/sheet/SheetGeometry.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

#include "runtime/Strings.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {
namespace {

constexpr double kPointsPerPixel = 0.75;  // at 96 dots per inch
constexpr int kDefaultCharacters = 8;
// Excel's limits. Larger values aren't valid sizes.
constexpr double kMostCharacters = 255, kMostRowHeight = 409.5, kMostFontSize = 409;

/// Converts a column's width from the file's unit, characters, to points (ECMA-376-1, 18.3.1.13).
double ColumnPoints(double characters, int digit) {
  return std::floor((256 * characters + std::floor(128.0 / digit)) / 256 * digit) * kPointsPerPixel;
}

/// Returns the default width of columns in points. It consists of whole characters, a padding of a quarter
/// digit on both sides and a grid line, rounded up to a multiple of eight pixels.
double DefaultColumnPoints(int characters, int digit) {
  const double pixels = characters * digit + 2 * std::ceil(digit / 4.0) + 1;
  return std::ceil(pixels / 8) * 8 * kPointsPerPixel;
}

/// Reads the sizes of columns and rows in the part of a sheet before its cells.
class SizesReader {
 public:
  explicit SizesReader(int digitWidth) : digit_(digitWidth) {}

  /// Reads a start tag.
  void Read(const XmlStream::Tag& tag) {
    if (tag.name == "sheetFormatPr") ReadDefaults(tag.attributes);
    if (tag.name == "col") ReadColumns(tag.attributes);
  }

  /// Returns the sizes, without those of single rows.
  SheetGeometry Geometry() {
    SheetGeometry geometry{GridLines(columnWidth_, limits::kColumns), GridLines(rowHeight_, limits::kRows)};
    std::sort(columns_.begin(), columns_.end(),
              [](const Columns& a, const Columns& b) { return a.first < b.first; });
    for (const Columns& range : columns_) {
      geometry.columns.SetSize(range.first - 1, range.last - 1, range.width.value_or(columnWidth_));
    }
    return geometry;
  }

 private:
  struct Columns {
    std::int32_t first, last;     ///< from 1
    std::optional<double> width;  ///< in points; without it, the default width
  };

  void ReadDefaults(std::string_view attributes) {
    if (const auto characters = Number(attributes, "baseColWidth", kMostCharacters))
      columnWidth_ = DefaultColumnPoints(static_cast<int>(*characters), digit_);
    if (const auto width = Number(attributes, "defaultColWidth", kMostCharacters))
      columnWidth_ = ColumnPoints(*width, digit_);
    rowHeight_ = Number(attributes, "defaultRowHeight", kMostRowHeight).value_or(rowHeight_);
    if (BooleanIn(attributes, "zeroHeight")) rowHeight_ = 0;
  }

  void ReadColumns(std::string_view attributes) {
    constexpr double kBeyond = limits::kColumns + 1;
    const auto first = Number(attributes, "min", kBeyond), last = Number(attributes, "max", kBeyond);
    if (!first || !last || *first < 1 || *last > limits::kColumns) return;
    auto width = Number(attributes, "width", kMostCharacters);
    if (width) width = ColumnPoints(*width, digit_);
    if (BooleanIn(attributes, "hidden")) width = 0;
    columns_.push_back({static_cast<std::int32_t>(*first), static_cast<std::int32_t>(*last), width});
  }

  /// Returns a number from 0 to `most`, or nothing if the attribute is absent or not a number.
  static std::optional<double> Number(std::string_view attributes, std::string_view name, double most) {
    auto value = xml::ParseDouble(AttributeIn(attributes, name));
    if (value) value = std::clamp(*value, 0.0, most);
    return value;
  }

  int digit_;
  double columnWidth_ = DefaultColumnPoints(kDefaultCharacters, digit_);
  double rowHeight_ = kDefaultRowHeight;
  std::vector<Columns> columns_;
};

}  // namespace

int DigitWidth(const Styles& styles) {
  // The exact width is known for some common default fonts. For others, it is estimated.
  struct Known {
    std::string_view font;
    double size;
    int width;
  };
  static constexpr Known kKnown[] = {{"Arial", 10, 7}, {"Arial", 11, 8}, {"Verdana", 10, 8}};
  const std::string name = styles.NormalFontName();
  const double size = std::clamp(styles.NormalFontSize(), 1.0, kMostFontSize);
  for (const Known& known : kKnown) {
    if (runtime::EqualsIgnoreCase(name, known.font) && size == known.size) return known.width;
  }
  // A digit is about half as wide as the font is high.
  return std::max(1, static_cast<int>(std::lround(size * 96 / 72 * 0.48)));
}

void GridLines::SetSize(std::int32_t first, std::int32_t last, double size) {
  last = std::min(last, count_ - 1);
  if (first < 0 || first > last || (!own_.empty() && first <= own_.back().last)) return;
  // Some programs write a height for each row. It may be the same for a million rows, which are then one
  // range.
  if (!own_.empty() && first == own_.back().last + 1 && size == own_.back().size) {
    own_.back().last = last;
    return;
  }
  own_.push_back({first, last, size, EdgeOf(first)});
}

double GridLines::SizeOf(std::int32_t index) const {
  const auto own = std::lower_bound(own_.begin(), own_.end(), index,
                                    [](const Own& range, std::int32_t i) { return range.last < i; });
  return own != own_.end() && own->first <= index ? own->size : default_;
}

double GridLines::EdgeOf(std::int32_t index) const {
  const auto next = std::lower_bound(own_.begin(), own_.end(), index,
                                     [](const Own& range, std::int32_t i) { return range.first < i; });
  if (next == own_.begin()) return index * default_;
  const Own& range = *std::prev(next);
  const std::int32_t at = std::min(range.last + 1, index);
  return range.edge + (at - range.first) * range.size + (index - at) * default_;
}

std::pair<std::int32_t, double> GridLines::IndexAt(double points) const {
  points = std::max(points, 0.0);
  const auto next = std::upper_bound(own_.begin(), own_.end(), points,
                                     [](double p, const Own& range) { return p < range.edge; });
  std::int32_t at = 0;
  double edge = 0, size = default_;
  if (next != own_.begin()) {
    const Own& range = *std::prev(next);
    const double span = (range.last + 1 - range.first) * range.size;
    const bool inside = points - range.edge < span;
    at = inside ? range.first : range.last + 1;
    edge = inside ? range.edge : range.edge + span;
    if (inside) size = range.size;
  }
  const bool beyond = next == own_.end() && points - edge >= (count_ - at) * size;
  if (size <= 0 || beyond) return {count_ - 1, SizeOf(count_ - 1)};
  const auto whole = static_cast<std::int32_t>((points - edge) / size);
  return {at + whole, points - edge - whole * size};
}

SheetGeometry ReadGeometry(const std::string& head,
                           const std::vector<std::pair<std::int32_t, double>>& rowHeights,
                           const Styles& styles) {
  SizesReader sizes(DigitWidth(styles));
  // The head has no end tag, so it is read as a stream of tags.
  MemoryStream source(head);
  XmlStream stream(source);
  for (XmlStream::Tag tag = stream.Next(); tag.kind != XmlStream::Kind::kEndOfInput; tag = stream.Next()) {
    if (tag.kind != XmlStream::Kind::kEnd) sizes.Read(tag);
  }
  SheetGeometry geometry = sizes.Geometry();
  for (const auto& [row, height] : rowHeights) {
    geometry.rows.SetSize(row - 1, row - 1, std::clamp(height, 0.0, kMostRowHeight));
  }
  return geometry;
}

}  // namespace plotsmith::xlsx
