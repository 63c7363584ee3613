#include "render/layout/LegendLayout.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "render/model/StyledShape.h"
#include "render/plot/LegendKey.h"

namespace plotsmith::render {
namespace {

constexpr double kFramePadding = 4;     // points between the frame and its entries
constexpr double kSquareEms = 0.55;     // the edge of a square key
constexpr double kLineKeyEms = 2.0;     // the length of a line key
constexpr double kKeyGapEms = 0.4;      // between a key and its text
constexpr double kEntryGapEms = 0.9;    // between entries side by side
constexpr double kRowGapEms = 0.12;     // between rows
constexpr double kColumnGapEms = 0.35;  // on both sides of a column of entries
constexpr double kMostShare = 0.45;     // share of the chart's width or height that a legend may take
constexpr double kPlotGap = 5;          // points between the legend and the plot area

constexpr double kRounding = 1e-6;  // points that rounding may add

struct Measured {
  const LegendEntry* entry;
  TextBlock text;
};

/// Returns the entries in their order. The order is reversed in a legend beside stacked columns, so that the
/// entries are in the order of the stack.
std::vector<const LegendEntry*> InOrder(const ChartModel& chart, bool upright) {
  std::vector<const LegendEntry*> entries;
  for (const LegendEntry& entry : chart.legend->entries) entries.push_back(&entry);
  const bool piled =
      !chart.groups.empty() && std::all_of(chart.groups.begin(), chart.groups.end(), [](const auto& group) {
        return (group.IsStacked() && !group.horizontal) || !group.bands.empty();
      });
  if (upright && piled) std::reverse(entries.begin(), entries.end());
  return entries;
}

/// Sizes that all entries share, in points.
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

/// The space for a legend. If the user set its size, the legend shows at least one entry, and may be narrower
/// than its texts.
struct Limits {
  double width = 0, height = 0;
  bool byHand = false;

  bool HasHeight(double bottom, bool isFirst) const {
    return bottom <= height - kFramePadding + kRounding || (byHand && isFirst);
  }
};

/// Places entries below each other, in as many columns as the height requires, as long as they fit.
void PlaceInColumns(LegendLayout& layout, const Grid& grid, std::vector<Measured>& entries,
                    const Limits& limits) {
  const double gap = kRowGapEms * grid.em, margin = kFramePadding + kColumnGapEms * grid.em;
  double left = margin, top = kFramePadding, widest = 0;
  for (Measured& measured : entries) {
    const double height = std::max(measured.text.height, grid.row);
    if (top + height > limits.height - kFramePadding && top > kFramePadding) {
      left += grid.WidthOf(widest) + kEntryGapEms * grid.em;
      top = kFramePadding;
      widest = 0;
    }
    const double right = left + grid.WidthOf(measured.text.width) + margin;
    const bool isWide = right <= limits.width + kRounding || (limits.byHand && left == margin);
    if (!isWide || !limits.HasHeight(top + height, layout.entries.empty())) break;
    widest = std::max(widest, measured.text.width);
    Place(layout, grid, measured, left, top, height);
    layout.box.width = std::max(layout.box.width, right);
    layout.box.height = std::max(layout.box.height, top + height + kFramePadding);
    top += height + gap;
  }
}

/// How entries side by side share the width: all in one row, or in columns of equal widths.
struct Columns {
  bool oneRow;
  std::size_t count;
  double width;  ///< the width of a column, in points
};

Columns ColumnsFor(const Grid& grid, const std::vector<Measured>& entries, double room) {
  const double gap = kEntryGapEms * grid.em;
  double all = -gap, widest = 0;
  for (const Measured& measured : entries) {
    widest = std::max(widest, grid.WidthOf(measured.text.width));
    all += grid.WidthOf(measured.text.width) + gap;
  }
  if (all <= room) return {true, entries.size(), widest};
  const double count = std::max(std::floor((room + gap + kRounding) / (widest + gap)), 1.0);
  return {false, static_cast<std::size_t>(count), widest};
}

/// Places entries side by side, in as many rows as the width requires, as long as they fit.
void PlaceInRows(LegendLayout& layout, const Grid& grid, std::vector<Measured>& entries,
                 const Limits& limits) {
  const Columns columns = ColumnsFor(grid, entries, limits.width - 2 * kFramePadding);
  double top = kFramePadding;
  for (std::size_t first = 0; first < entries.size(); first += columns.count) {
    const std::size_t end = std::min(first + columns.count, entries.size());
    double height = grid.row, left = kFramePadding;
    for (std::size_t i = first; i < end; ++i) height = std::max(height, entries[i].text.height);
    const bool isWide =
        columns.oneRow || limits.byHand || columns.width <= limits.width - 2 * kFramePadding + kRounding;
    if (!isWide || !limits.HasHeight(top + height, first == 0)) break;
    for (std::size_t i = first; i < end; ++i) {
      const double width = grid.WidthOf(entries[i].text.width);
      Place(layout, grid, entries[i], left, top, height);
      layout.box.width = std::max(layout.box.width, left + width + kFramePadding);
      left += (columns.oneRow ? width : columns.width) + kEntryGapEms * grid.em;
    }
    layout.box.height = top + height + kFramePadding;
    top += height + kRowGapEms * grid.em;
  }
}

/// Applies a layout that the user set. It moves the legend, and may set its size.
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

/// Moves the box to its side of the free rectangle, and removes the space of the box from that rectangle.
void Dock(const LegendModel& legend, Rect& box, Rect& free) {
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
    const double taken = std::min(box.height + kPlotGap, free.height);
    free.height -= taken;
    if (side == "t") free.top += taken;
  } else {
    const double taken = std::min(box.width + kPlotGap, free.width);
    free.width -= taken;
    if (side == "l") free.left += taken;
  }
}

/// Returns the space for a legend at its side of the chart, or in a box that the user set.
Limits LimitsOf(const LegendModel& legend, const Rect& bounds, const Rect& free) {
  if (legend.layout && legend.layout->width && legend.layout->height) {
    Rect box;
    ApplyLayout(*legend.layout, bounds, box);
    return {box.width, box.height, true};
  }
  const double widest = std::min(kMostShare * bounds.width, free.width - kPlotGap);
  const double highest = std::min(kMostShare * bounds.height, free.height - kPlotGap);
  return legend.IsFlat() ? Limits{free.width, highest} : Limits{widest, free.height};
}

/// Lays out the texts of the entries. Texts that are wider than the legend are wrapped.
std::vector<Measured> MeasureEntries(const std::vector<const LegendEntry*>& order, const Grid& grid,
                                     const Limits& limits, const TextMeasure& measure) {
  const double wrap =
      std::max(limits.width - 2 * kFramePadding - grid.WidthOf(2 * kColumnGapEms * grid.em), 3 * grid.em);
  std::vector<Measured> entries;
  for (const LegendEntry* entry : order) {
    TextStyle style = entry->style;
    style.rotation.reset();
    TextBlock text = LayOut(entry->text, style, measure);
    if (text.width > wrap) text = LayOut(entry->text, style, measure, wrap);
    entries.push_back({entry, std::move(text)});
  }
  return entries;
}

/// Moves the legend to its box, or to its manual layout, and moves the entries to the middle of the legend.
void Settle(LegendLayout& layout, const LegendModel& legend, const Rect& bounds, Rect box) {
  if (legend.layout) {
    ApplyLayout(*legend.layout, bounds, box);
    // A legend that was dragged over the edge is moved back onto the chart.
    box.left = std::max(std::min(box.left, bounds.Right() - box.width), bounds.left);
    box.top = std::max(std::min(box.top, bounds.Bottom() - box.height), bounds.top);
  }
  const double right = std::max(box.width - layout.box.width, 0.0) / 2;
  const double down = std::max(box.height - layout.box.height, 0.0) / 2;
  for (PlacedEntry& entry : layout.entries) {
    entry.key.left += box.left + right;
    entry.key.top += box.top + down;
    entry.textCenter.x += box.left + right;
    entry.textCenter.y += box.top + down;
  }
  layout.box = box;
}

}  // namespace

LegendLayout LayOutLegend(const ChartModel& chart, const Rect& bounds, Rect& free,
                          const TextMeasure& measure) {
  LegendLayout layout;
  const LegendModel& legend = *chart.legend;
  const std::vector<const LegendEntry*> order = InOrder(chart, !legend.IsFlat());
  const bool lineKeys = std::any_of(order.begin(), order.end(), [&](const LegendEntry* entry) {
    return entry->trendline > 0 || HasLineKey(chart, entry->series);
  });
  Grid grid;
  grid.em = legend.text.font.size;
  grid.keyWidth = (lineKeys ? kLineKeyEms : kSquareEms) * grid.em;
  grid.row = measure.Measure("0", legend.text.font).Height();
  const Limits limits = LimitsOf(legend, bounds, free);
  std::vector<Measured> entries = MeasureEntries(order, grid, limits, measure);
  if (limits.byHand ? limits.width > limits.height : legend.IsFlat()) {
    PlaceInRows(layout, grid, entries, limits);
  } else {
    PlaceInColumns(layout, grid, entries, limits);
  }
  layout.leftOut = entries.size() - layout.entries.size();
  if (layout.entries.empty()) return layout;
  Rect box = layout.box;
  Dock(legend, box, free);
  Settle(layout, legend, bounds, box);
  return layout;
}

namespace {

void DrawTrendlineKey(Canvas& canvas, const ChartModel& chart, const LegendEntry& entry, const Rect& box) {
  const SeriesModel* series = chart.FindSeries(entry.series);
  if (series == nullptr) return;
  const double middle = box.Center().y;
  canvas.AddLine({Role::kLegendKey, entry.series}, {box.left, middle}, {box.Right(), middle},
                 series->trendlines[static_cast<std::size_t>(entry.trendline - 1)].style.stroke);
}

void DrawBandKey(Canvas& canvas, const ChartModel& chart, const LegendEntry& entry, const Rect& box) {
  const auto group = std::find_if(chart.groups.begin(), chart.groups.end(),
                                  [](const GroupModel& one) { return !one.bands.empty(); });
  if (group == chart.groups.end()) return;
  const ShapeStyle& style = group->bands[static_cast<std::size_t>(entry.band - 1)].style;
  const Tag tag{Role::kLegendKey, 0, entry.band};
  if (!group->wireframe) return canvas.Add(tag, Path().AddRect(box), style.fill, style.stroke);
  const double middle = box.Center().y;
  canvas.AddLine(tag, {box.left, middle}, {box.Right(), middle}, style.stroke);
}

}  // namespace

void DrawLegend(Canvas& canvas, const ChartModel& chart, const LegendLayout& layout) {
  if (layout.leftOut > 0) {
    canvas.Note(layout.entries.empty() ? "There is no space for the legend, which is left out."
                                       : "The legend has room for " + std::to_string(layout.entries.size()) +
                                             " of its entries; the others are left out.");
  }
  if (layout.entries.empty()) return;
  AddFrame(canvas, {Role::kLegend}, layout.box, chart.legend->style);
  for (const PlacedEntry& placed : layout.entries) {
    const LegendEntry& entry = *placed.entry;
    if (entry.trendline > 0) {
      DrawTrendlineKey(canvas, chart, entry, placed.key);
    } else if (entry.band > 0) {
      DrawBandKey(canvas, chart, entry, placed.key);
    } else {
      DrawKey(canvas, chart, {Role::kLegendKey, entry.series, entry.point}, placed.key);
    }
    DrawBlock(canvas, {Role::kLegendEntry, entry.series, std::max(entry.point, entry.band)}, placed.text,
              placed.textCenter, TextAlign::kStart);
  }
}

}  // namespace plotsmith::render
