#include "render/layout/LegendLayout.h"

#include <algorithm>
#include <cmath>

#include "render/families/Markers.h"

namespace plotsmith::render {
namespace {

constexpr double kPadding = 4;          // between the frame and its entries
constexpr double kSquareEms = 0.55;     // a key that is a piece of filling
constexpr double kLineKeyEms = 2.0;     // a key that is a line
constexpr double kKeyGapEms = 0.4;      // between a key and its text
constexpr double kEntryGapEms = 0.9;    // between entries side by side
constexpr double kRowGapEms = 0.12;     // between rows, as lines of text keep none
constexpr double kColumnGapEms = 0.35;  // on both sides of a column of entries
constexpr double kWidestShare = 0.45;   // of the chart, for a legend at a side

struct Measured {
  const LegendEntry* entry;
  TextBlock text;
};

bool HasLineKey(const ChartModel& chart, const LegendEntry& entry) {
  const GroupModel* group = chart.GroupOfSeries(entry.series);
  if (group == nullptr || group->is3D) return false;
  return group->family == Family::kLine || group->family == Family::kScatter ||
         group->family == Family::kStock ||
         (group->family == Family::kRadar && group->series.front().style.stroke.width > 0);
}

/// Entries from the first, or where they are piled up beside a pile, from the last.
std::vector<const LegendEntry*> InOrder(const ChartModel& chart, bool upright) {
  std::vector<const LegendEntry*> entries;
  for (const LegendEntry& entry : chart.legend->entries) entries.push_back(&entry);
  const bool piled = !chart.groups.empty() &&
                     std::all_of(chart.groups.begin(), chart.groups.end(),
                                 [](const auto& group) { return group.IsStacked() && !group.horizontal; });
  if (upright && piled) std::reverse(entries.begin(), entries.end());
  return entries;
}

/// What all entries have in common.
struct Grid {
  double em = 10, keyWidth = 0, row = 0;

  double WidthOf(double text) const { return keyWidth + kKeyGapEms * em + text; }
};

void Place(LegendLayout& layout, const Grid& grid, Measured& measured, double left, double top,
           double height) {
  PlacedEntry placed;
  placed.entry = measured.entry;
  const double keyHeight = std::min(kSquareEms * grid.em, height);
  placed.key = {left, top + (height - keyHeight) / 2, grid.keyWidth, keyHeight};
  const double textLeft = left + grid.keyWidth + kKeyGapEms * grid.em;
  placed.textCenter = {textLeft + measured.text.width / 2, top + height / 2};
  placed.text = std::move(measured.text);
  layout.entries.push_back(std::move(placed));
}

/// One below the other, in as many columns as the height asks for.
void PlaceInColumns(LegendLayout& layout, const Grid& grid, std::vector<Measured>& entries,
                    const Rect& limits) {
  const double gap = kRowGapEms * grid.em;
  const double first = kPadding + kColumnGapEms * grid.em;
  double left = first, top = kPadding, widest = 0, bottom = 0;
  for (Measured& measured : entries) {
    const double height = std::max(measured.text.height, grid.row);
    if (top + height > limits.height - kPadding && top > kPadding) {
      left += grid.WidthOf(widest) + kEntryGapEms * grid.em;
      top = kPadding;
      widest = 0;
    }
    if (left + grid.WidthOf(measured.text.width) > limits.width && left > first) break;
    widest = std::max(widest, measured.text.width);
    Place(layout, grid, measured, left, top, height);
    top += height + gap;
    bottom = std::max(bottom, top - gap);
  }
  layout.box.width = left + grid.WidthOf(widest) + kColumnGapEms * grid.em + kPadding;
  layout.box.height = bottom + kPadding;
}

/// Side by side, in as many rows as the width asks for; then in columns of one width.
void PlaceInRows(LegendLayout& layout, const Grid& grid, std::vector<Measured>& entries, const Rect& limits) {
  const double gap = kEntryGapEms * grid.em;
  double widest = 0, all = 0;
  for (const Measured& measured : entries) {
    widest = std::max(widest, grid.WidthOf(measured.text.width));
    all += grid.WidthOf(measured.text.width) + gap;
  }
  const double room = limits.width - 2 * kPadding;
  const bool oneRow = all - gap <= room;
  const auto columns = static_cast<std::size_t>(std::max(std::floor((room + gap) / (widest + gap)), 1.0));
  const double rowHeight = grid.row + kRowGapEms * grid.em;
  double left = kPadding, top = kPadding, right = 0;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!oneRow && i > 0 && i % columns == 0) {
      left = kPadding;
      top += rowHeight;
      if (top + grid.row > limits.height - kPadding) break;
    }
    const double width = grid.WidthOf(entries[i].text.width);
    Place(layout, grid, entries[i], left, top, grid.row);
    right = std::max(right, left + width);
    left += (oneRow ? width : widest) + gap;
  }
  layout.box.width = right + kPadding;
  layout.box.height = top + grid.row + kPadding;
}

/// A layout by hand moves the legend, and may give it a size.
void ApplyLayout(const ManualLayout& layout, const Rect& bounds, Rect& box) {
  if (layout.x) box.left = layout.xIsEdge ? *layout.x * bounds.width : box.left + *layout.x * bounds.width;
  if (layout.y) box.top = layout.yIsEdge ? *layout.y * bounds.height : box.top + *layout.y * bounds.height;
  if (layout.width) {
    const double right = *layout.width * bounds.width;
    box.width = std::max(layout.widthIsEdge ? right - box.left : right, 1.0);
  }
  if (layout.height) {
    const double bottom = *layout.height * bounds.height;
    box.height = std::max(layout.heightIsEdge ? bottom - box.top : bottom, 1.0);
  }
}

/// Puts the box on its side of the free rectangle, and takes its room.
void Dock(const LegendModel& legend, Rect& box, Rect& free, double gap) {
  const std::string& side = legend.position;
  box.left = side == "l" ? free.left : free.Right() - box.width;
  box.top = side == "b" ? free.Bottom() - box.height : free.top;
  if (side == "t" || side == "b") {
    box.left = free.left + (free.width - box.width) / 2;
  } else if (side != "tr") {
    box.top = free.top + (free.height - box.height) / 2;
  }
  if (legend.overlay) return;
  if (side == "t" || side == "b") {
    const double taken = std::min(box.height + gap, free.height * 0.8);
    free.height -= taken;
    if (side == "t") free.top += taken;
  } else {
    const double taken = std::min(box.width + gap, free.width * 0.8);
    free.width -= taken;
    if (side == "l") free.left += taken;
  }
}

}  // namespace

LegendLayout LayOutLegend(const ChartModel& chart, const Rect& bounds, Rect& free,
                          const TextMeasure& measure) {
  constexpr double kGap = 5;  // between the legend and the plot area
  LegendLayout layout;
  const LegendModel& legend = *chart.legend;
  const bool flat = legend.position == "t" || legend.position == "b";
  const std::vector<const LegendEntry*> order = InOrder(chart, !flat);
  const bool lineKeys = std::any_of(order.begin(), order.end(),
                                    [&](const LegendEntry* entry) { return HasLineKey(chart, *entry); });
  Grid grid;
  grid.em = legend.text.font.size;
  grid.keyWidth = (lineKeys ? kLineKeyEms : kSquareEms) * grid.em;
  grid.row = measure.Measure("0", legend.text.font).Height();
  Rect limits = flat ? free : Rect{0, 0, bounds.width * kWidestShare, free.height};
  const bool sized = legend.layout && legend.layout->width && legend.layout->height;
  bool rows = flat;
  if (sized) {
    Rect box;
    ApplyLayout(*legend.layout, bounds, box);
    limits = box;
    rows = box.width > box.height;
  }
  const double wrap =
      std::max(limits.width - 2 * kPadding - grid.WidthOf(2 * kColumnGapEms * grid.em), 3 * grid.em);
  std::vector<Measured> entries;
  for (const LegendEntry* entry : order) {
    TextStyle style = entry->style;
    style.rotation.reset();
    entries.push_back({entry, LayOut(entry->text, style, measure, rows ? kUnlimited : wrap)});
    if (rows && entries.back().text.width > wrap)
      entries.back().text = LayOut(entry->text, style, measure, wrap);
    if (rows) grid.row = std::max(grid.row, entries.back().text.height);
  }
  if (rows) {
    PlaceInRows(layout, grid, entries, limits);
  } else {
    PlaceInColumns(layout, grid, entries, limits);
  }
  Rect box = layout.box;
  Dock(legend, box, free, kGap);
  if (legend.layout) {
    ApplyLayout(*legend.layout, bounds, box);
    // wherever it was dragged, it is on the chart
    box.left = std::max(std::min(box.left, bounds.Right() - box.width), bounds.left);
    box.top = std::max(std::min(box.top, bounds.Bottom() - box.height), bounds.top);
  }
  // entries keep to the middle of a box that is larger than they need
  const double right = std::max(box.width - layout.box.width, 0.0) / 2;
  const double down = std::max(box.height - layout.box.height, 0.0) / 2;
  for (PlacedEntry& entry : layout.entries) {
    entry.key.left += box.left + right;
    entry.key.top += box.top + down;
    entry.textCenter.x += box.left + right;
    entry.textCenter.y += box.top + down;
  }
  layout.box = box;
  return layout;
}

void DrawKey(Canvas& canvas, const ChartModel& chart, Tag tag, const Rect& box) {
  const GroupModel* group = chart.GroupOfSeries(tag.series);
  const SeriesModel* series = chart.FindSeries(tag.series);
  if (group == nullptr || series == nullptr) return;
  const auto point = static_cast<std::size_t>(std::max(tag.point - 1, 0));
  const ShapeStyle& style = tag.point > 0 ? series->StyleOf(point) : series->style;
  if (!HasLineKey(chart, {{}, {}, tag.series, tag.point})) {
    const double side = std::min(box.width, box.height);
    const Point center = box.Center();
    Stroke stroke = style.stroke;
    stroke.width = std::min(stroke.width, 1.5);
    canvas.Add(tag, Path().AddRect({center.x - side / 2, center.y - side / 2, side, side}), style.fill,
               stroke);
    return;
  }
  const double middle = box.Center().y;
  canvas.AddLine(tag, {box.left, middle}, {box.Right(), middle}, style.stroke);
  MarkerModel marker = tag.point > 0 ? series->MarkerOf(point) : series->marker;
  marker.size = std::min(marker.size, 9.0);
  DrawMarker(canvas, tag, marker, box.Center());
}

void DrawLegend(Canvas& canvas, const ChartModel& chart, const LegendLayout& layout) {
  canvas.AddFrame({Role::kLegend}, layout.box, chart.legend->style.fill, chart.legend->style.stroke);
  for (const PlacedEntry& placed : layout.entries) {
    const LegendEntry& entry = *placed.entry;
    DrawKey(canvas, chart, {Role::kLegendKey, entry.series, entry.point}, placed.key);
    DrawBlock(canvas, {Role::kLegendEntry, entry.series, entry.point}, placed.text, placed.textCenter,
              TextAlign::kStart);
  }
}

}  // namespace plotsmith::render
