#include "render/sheet/CellDrawing.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "render/sheet/CellLines.h"
#include "render/sheet/MergedCells.h"
#include "xlsx/base/Limits.h"

namespace plotsmith::render {
namespace {

using xlsx::BorderLine;
using xlsx::CellContents;
using xlsx::CellLook;
using xlsx::CellRange;
using xlsx::kBlanksPerIndent;
using xlsx::TextSide;
using xlsx::VerticalAlignment;

constexpr double kPointsPerPixel = 0.75;  // at 96 dpi
/// The distance between the edge of a cell and its text, in points.
constexpr double kCellPadding = 1.5;
constexpr double kGridLineWidth = 0.35;
constexpr Color kBlack{0, 0, 0, 1};
/// The number of columns beside the page that are searched for texts that extend into it.
constexpr std::int32_t kMostSpread = 30;
/// The height of a strike-through line above the baseline, and its width, as shares of the font size.
constexpr double kStrikeHeight = 0.28, kStrikeWidth = 0.06;

constexpr Tag kCellTag{Role::kCell, 0, 0}, kTextTag{Role::kCellText, 0, 0};

bool Meet(const CellRange& a, const CellRange& b) {
  return a.row1 <= b.row2 && b.row1 <= a.row2 && a.column1 <= b.column2 && b.column1 <= a.column2;
}

/// Returns the ranges that are on the page at least in part.
std::vector<CellRange> OnPage(const std::vector<CellRange>& ranges, const CellRange& page) {
  std::vector<CellRange> met;
  for (const CellRange& range : ranges) {
    if (Meet(range, page)) met.push_back(range);
  }
  return met;
}

Path RectPath(const Rect& rect) { return Path().AddRect(rect); }

Font FontOf(const CellLook& look) { return {look.font, look.size, look.bold, look.italic, look.underline}; }

/// Returns the width that a cell needs for its text, in points.
double RoomFor(const CellContents& cell, const CellLook& look, const TextMeasure& measure) {
  const Font font = FontOf(look);
  const double indent =
      look.indent == 0 ? 0 : look.indent * kBlanksPerIndent * measure.Measure(" ", font).width;
  return measure.Measure(cell.text, font).width + indent + 2 * kCellPadding;
}

/// Draws the cells of a page.
class CellDrawing {
 public:
  CellDrawing(SheetReader& sheet, const CellRange& page, Canvas& canvas)
      : sheet_(sheet),
        page_(page),
        canvas_(canvas),
        merged_(OnPage(sheet.MergedCells(), page)),
        mergedCells_(merged_) {}

  void DrawGridLines() {
    const Stroke line{kBlack, kGridLineWidth, {}, {}, {}};
    const Rect all = sheet_.AreaOf(page_);
    for (std::int32_t row = page_.row1; row <= page_.row2 + 1; ++row) {
      const double y = sheet_.Geometry().rows.EdgeOf(row - 1);
      canvas_.AddLine(kCellTag, {all.left, y}, {all.Right(), y}, line);
    }
    for (std::int32_t column = page_.column1; column <= page_.column2 + 1; ++column) {
      const double x = sheet_.Geometry().columns.EdgeOf(column - 1);
      canvas_.AddLine(kCellTag, {x, all.top}, {x, all.Bottom()}, line);
    }
  }

  void DrawFills() {
    ForEachCell([&](std::int32_t row, std::int32_t column) {
      const auto& fill = sheet_.LookAt(row, column).fillColor;
      if (!fill || IsMerged(row, column)) return;
      // Neighbouring cells of one colour are one rectangle, so that no seam is visible between them.
      const auto isAlike = [&](std::int32_t other) {
        return sheet_.LookAt(row, other).fillColor == fill && !IsMerged(row, other);
      };
      if (column > page_.column1 && isAlike(column - 1)) return;
      std::int32_t last = column;
      while (last < page_.column2 && isAlike(last + 1)) ++last;
      canvas_.Add(kCellTag, RectPath(sheet_.AreaOf({row, column, row, last})), SolidFill{FromExcel(*fill)});
    });
    for (const CellRange& range : merged_) {
      const auto& fill = sheet_.LookAt(range.row1, range.column1).fillColor;
      const Color color = fill ? FromExcel(*fill) : Color{255, 255, 255, 1};
      canvas_.Add(kCellTag, RectPath(sheet_.AreaOf(range)), SolidFill{color});
    }
  }

  void DrawTexts() {
    for (std::int32_t row = page_.row1; row <= page_.row2; ++row) {
      if (sheet_.Geometry().rows.SizeOf(row - 1) <= 0) continue;
      for (std::int32_t column = std::max(1, page_.column1 - kMostSpread);
           column <= std::min(page_.column2 + kMostSpread, xlsx::limits::kColumns); ++column) {
        const bool onPage = column >= page_.column1 && column <= page_.column2;
        if (!sheet_.IsEmptyAt(row, column) && !IsMerged(row, column)) DrawText(row, column, onPage);
      }
    }
    for (const CellRange& range : merged_) {
      const CellContents cell = sheet_.CellAt(range.row1, range.column1);
      if (!cell.IsEmpty()) DrawIn(cell, sheet_.AreaOf(range), sheet_.AreaOf(range));
    }
  }

  void DrawBorders() {
    ForEachCell([&](std::int32_t row, std::int32_t column) {
      const CellLook& look = sheet_.LookAt(row, column);
      const Rect area = sheet_.AreaOf({row, column, row, column});
      DrawBorder(look.left, {area.left, area.top}, {area.left, area.Bottom()});
      DrawBorder(look.top, {area.left, area.top}, {area.Right(), area.top});
      DrawBorder(look.right, {area.Right(), area.top}, {area.Right(), area.Bottom()});
      DrawBorder(look.bottom, {area.left, area.Bottom()}, {area.Right(), area.Bottom()});
    });
  }

 private:
  /// Calls `visit` for each cell of the page. Hidden rows and columns are skipped.
  template <class Visit>
  void ForEachCell(const Visit& visit) {
    for (std::int32_t row = page_.row1; row <= page_.row2; ++row) {
      if (sheet_.Geometry().rows.SizeOf(row - 1) <= 0) continue;
      for (std::int32_t column = page_.column1; column <= page_.column2; ++column) {
        if (sheet_.Geometry().columns.SizeOf(column - 1) > 0) visit(row, column);
      }
    }
  }

  bool IsMerged(std::int32_t row, std::int32_t column) { return mergedCells_.AreAt(row, column); }

  /// Returns whether the text of a neighbour may extend over the cell.
  bool IsFree(std::int32_t row, std::int32_t column) {
    return sheet_.IsEmptyAt(row, column) && !IsMerged(row, column);
  }

  void DrawBorder(const BorderLine& line, Point from, Point to) {
    if (line.width == 0) return;
    const Stroke stroke{line.color ? FromExcel(*line.color) : kBlack,
                        line.width * kPointsPerPixel,
                        {},
                        LineCap::kSquare,
                        LineJoin::kMiter};
    canvas_.AddLine(kCellTag, from, to, stroke);
  }

  double WidthOfText(std::string_view text, const Font& font) const {
    return canvas_.Measure().Measure(text, font).width;
  }
  double IndentOf(const CellLook& look) const {
    return look.indent == 0 ? 0 : look.indent * kBlanksPerIndent * WidthOfText(" ", FontOf(look));
  }

  /// Draws the text of a cell. A text that is too long extends over empty cells beside it. If the cell isn't
  /// on the page, only a text that extends into the page is drawn.
  void DrawText(std::int32_t row, std::int32_t column, bool onPage) {
    const CellContents cell = sheet_.CellAt(row, column);
    const CellLook& look = sheet_.LookOf(cell.style);
    const Rect own = sheet_.AreaOf({row, column, row, column});
    if (own.width <= 0) return;
    if (!MaySpread(cell, look)) {
      if (onPage) DrawIn(cell, own, own);
      return;
    }
    const double missing = RoomFor(cell, look, canvas_.Measure()) - own.width;
    const TextSide side = SideOf(cell, look);
    const double half = side == TextSide::kMiddle ? missing / 2 : missing;
    Rect seen = own;
    if (side != TextSide::kRight) SpreadRight(row, column, half, seen);
    if (side != TextSide::kLeft) SpreadLeft(row, column, half, seen);
    const Rect page = sheet_.AreaOf(page_);
    if (!onPage && (seen.Right() <= page.left || seen.left >= page.Right())) return;
    // A centred text is centred in its own cell, and not in all cells that it covers.
    Rect area = own;
    if (missing > 0 && side != TextSide::kRight) area.width += half;
    if (missing > 0 && side != TextSide::kLeft) {
      area.left -= half;
      area.width += half;
    }
    DrawIn(cell, area, seen);
  }

  void SpreadRight(std::int32_t row, std::int32_t column, double missing, Rect& seen) {
    while (missing > 0 && column < xlsx::limits::kColumns && IsFree(row, column + 1)) {
      const double width = sheet_.Geometry().columns.SizeOf(column++);
      seen.width += width;
      missing -= width;
    }
  }

  void SpreadLeft(std::int32_t row, std::int32_t column, double missing, Rect& seen) {
    while (missing > 0 && column > 1 && IsFree(row, column - 1)) {
      const double width = sheet_.Geometry().columns.SizeOf(--column - 1);
      seen.left -= width;
      seen.width += width;
      missing -= width;
    }
  }

  std::vector<std::string> LinesOf(const CellContents& cell, const CellLook& look, double width) const {
    const Font font = FontOf(look);
    const auto widthOf = [&](std::string_view text) { return WidthOfText(text, font); };
    if (cell.IsNumber()) return {xlsx::FittedNumber(cell, width, widthOf)};
    if (look.wrap) return WrappedLines(cell.text, width, widthOf);
    // Line breaks have an effect only in cells that wrap.
    std::string line = cell.text;
    std::erase(line, '\r');
    std::replace(line.begin(), line.end(), '\n', ' ');
    return {line};
  }

  /// Draws the text of a cell in `area`, clipped to `seen`.
  void DrawIn(const CellContents& cell, const Rect& area, const Rect& seen) {
    const CellLook& look = sheet_.LookOf(cell.style);
    const TextSide side = SideOf(cell, look);
    const double indent = IndentOf(look);
    Rect inside = Inset(area, kCellPadding, 0);
    if (side == TextSide::kLeft) inside.left += indent;
    inside.width -= side == TextSide::kMiddle ? 0 : indent;
    const std::vector<std::string> lines = LinesOf(cell, look, inside.width);
    const TextExtent extent = canvas_.Measure().Measure("", FontOf(look));
    const double height = extent.Height() * static_cast<double>(lines.size());
    double top = inside.Bottom() - kPointsPerPixel - height;
    if (look.vertical == VerticalAlignment::kTop) top = inside.top + kPointsPerPixel;
    if (look.vertical == VerticalAlignment::kCenter) top = inside.top + (inside.height - height) / 2;
    // If a text is higher than its cell, its beginning is visible.
    if (look.wrap && height > inside.height) top = inside.top;

    const bool sticksOut =
        height > seen.height || Widest(lines, look) > inside.width || Outside(inside, seen);
    if (sticksOut) canvas_.PushClip(RectPath(seen));
    for (const std::string& line : lines) {
      if (top > seen.Bottom()) break;
      DrawLine(line, look, side, inside, top + extent.ascent);
      top += extent.Height();
    }
    if (sticksOut) canvas_.PopClip();
  }

  double Widest(const std::vector<std::string>& lines, const CellLook& look) const {
    double widest = 0;
    for (const std::string& line : lines) widest = std::max(widest, WidthOfText(line, FontOf(look)));
    return widest;
  }
  static bool Outside(const Rect& inside, const Rect& seen) {
    return inside.left < seen.left || inside.Right() > seen.Right();
  }

  void DrawLine(const std::string& line, const CellLook& look, TextSide side, const Rect& inside,
                double baseline) {
    TextItem text;
    text.text = line;
    text.font = FontOf(look);
    text.color = look.textColor ? FromExcel(*look.textColor) : kBlack;
    text.align = side == TextSide::kLeft     ? TextAlign::kStart
                 : side == TextSide::kMiddle ? TextAlign::kMiddle
                                             : TextAlign::kEnd;
    const double x = side == TextSide::kLeft     ? inside.left
                     : side == TextSide::kMiddle ? inside.Center().x
                                                 : inside.Right();
    text.anchor = {x, baseline};
    if (look.strike) DrawStrike(line, text, side);
    canvas_.AddText(kTextTag, std::move(text));
  }

  void DrawStrike(const std::string& line, const TextItem& text, TextSide side) {
    const double width = WidthOfText(line, text.font);
    const double left = text.anchor.x - (side == TextSide::kLeft     ? 0
                                         : side == TextSide::kMiddle ? width / 2
                                                                     : width);
    const double y = text.anchor.y - kStrikeHeight * text.font.size;
    canvas_.AddLine(kTextTag, {left, y}, {left + width, y},
                    {text.color, kStrikeWidth * text.font.size, {}, {}, {}});
  }

  SheetReader& sheet_;
  CellRange page_;
  Canvas& canvas_;
  std::vector<CellRange> merged_;
  MergedCells mergedCells_;  ///< the ranges of `merged_`
};

}  // namespace

std::int32_t LastColumnOfText(SheetReader& sheet, std::int32_t row, std::int32_t column,
                              const TextMeasure& measure) {
  const CellContents cell = sheet.CellAt(row, column);
  const CellLook& look = sheet.LookOf(cell.style);
  if (!MaySpread(cell, look) || SideOf(cell, look) == TextSide::kRight) return column;
  const double width = sheet.Geometry().columns.SizeOf(column - 1);
  const double missing = RoomFor(cell, look, measure) - width;
  if (missing <= 0) return column;
  const double end = sheet.Geometry().columns.EdgeOf(column) +
                     (SideOf(cell, look) == TextSide::kMiddle ? missing / 2 : missing);
  return sheet.Geometry().columns.IndexAt(end).first + 1;
}

void DrawCells(SheetReader& sheet, const CellRange& page, bool gridLines, Canvas& canvas) {
  CellDrawing drawing(sheet, page, canvas);
  drawing.DrawFills();
  if (gridLines) drawing.DrawGridLines();
  drawing.DrawTexts();
  drawing.DrawBorders();
}

}  // namespace plotsmith::render
