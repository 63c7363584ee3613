#include "render/layout/ChartLayout.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "render/axes/AxisPlace.h"
#include "xlsx/chart/rules/AutomaticLayout.h"

namespace plotsmith::render {

using xlsx::Edges;
using xlsx::kChartInset;
using xlsx::kLabelGap;
using xlsx::kLeastShare;
using xlsx::kTitleGap;
using xlsx::kTitlePadding;
using xlsx::kTitleShare;

namespace {

constexpr double kDeepestLabels = 0.4;  // share of the chart that the labels of one axis may take
// The share of the chart's width by which a slanted label may push the plot area.
constexpr double kMostOverhang = 0.2;
constexpr double kEdgeMargin = 2;  // points between the labels and the chart's edge

double& RoomAt(Edges& edges, Side side) {
  switch (side) {
    case Side::kLeft:
      return edges.left;
    case Side::kRight:
      return edges.right;
    case Side::kTop:
      return edges.top;
    case Side::kBottom:
      break;
  }
  return edges.bottom;
}

Rect Without(const Rect& rect, const Edges& edges) {
  return {rect.left + edges.left, rect.top + edges.top, rect.width - edges.left - edges.right,
          rect.height - edges.top - edges.bottom};
}

/// Returns the larger distance at each edge.
Edges Widest(const Edges& a, const Edges& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

/// Returns true if labels that need the distances `needed` stay within `around`, up to a part of the margin.
bool Suffices(const Edges& around, const Edges& needed) {
  constexpr double kShare = kEdgeMargin / 4;
  return needed.left <= around.left + kShare && needed.top <= around.top + kShare &&
         needed.right <= around.right + kShare && needed.bottom <= around.bottom + kShare;
}

/// Returns a rectangle enlarged to at least the minimum share of the chart, and moved so that it stays in
/// `room`.
Rect KeepLeast(Rect rect, const Rect& bounds, const Rect& room) {
  const auto keep = [](double& from, double& extent, double least, double end) {
    if (extent >= least) return;
    from = std::min(from, end - least);
    extent = least;
  };
  keep(rect.left, rect.width, kLeastShare * bounds.width, room.Right());
  keep(rect.top, rect.height, kLeastShare * bounds.height, room.Bottom());
  return rect;
}

/// Returns the rectangle of an element with a layout that the user set. `rect` is the automatic one.
Rect Applied(const ManualLayout& layout, const Rect& bounds, Rect rect) {
  const auto apply = [](std::optional<double> place, bool isEdge, std::optional<double> extent,
                        bool extentIsEdge, double whole, double& from, double& length) {
    if (place) from = isEdge ? *place * whole : from + *place * whole;
    if (extent) length = extentIsEdge ? *extent * whole - from : *extent * whole;
  };
  apply(layout.x, layout.xIsEdge, layout.width, layout.widthIsEdge, bounds.width, rect.left, rect.width);
  apply(layout.y, layout.yIsEdge, layout.height, layout.heightIsEdge, bounds.height, rect.top, rect.height);
  return rect;
}

/// Places a title around a point, or where its manual layout places it.
PlacedTitle PlaceTitle(const TitleModel& title, TextBlock block, Point center, const Rect& bounds) {
  PlacedTitle placed;
  const double width = block.TurnedWidth() + kTitlePadding, height = block.TurnedHeight() + kTitlePadding;
  placed.box = {center.x - width / 2, center.y - height / 2, width, height};
  placed.block = std::move(block);
  if (title.layout) {
    ManualLayout place = *title.layout;
    place.width.reset();  // The size of a title is that of its text.
    place.height.reset();
    placed.box = Applied(place, bounds, placed.box);
  }
  const auto keep = [](double from, double extent, double whole) {
    return std::max(std::min(from, whole - extent), 0.0);
  };
  placed.box.left = keep(placed.box.left, width, bounds.width);
  placed.box.top = keep(placed.box.top, height, bounds.height);
  return placed;
}

class Layouter {
 public:
  Layouter(ChartModel& chart, const Rect& bounds, const TextMeasure& measure)
      : chart_(chart), bounds_(bounds), measure_(measure) {}

  ChartLayout Run() {
    layout_.axes.resize(chart_.axes.size());
    free_ = Inset(bounds_, kChartInset, kChartInset);
    SetTitle();
    if (chart_.legend && !chart_.legend->entries.empty()) {
      layout_.legend = LayOutLegend(chart_, bounds_, free_, measure_);
    }
    MeasureAxisTitles();
    SetPlot();
    PlaceAxisTitles();
    return std::move(layout_);
  }

 private:
  void SetTitle() {
    if (!chart_.title || chart_.title->text.IsEmpty()) return;
    TextBlock block = LayOut(chart_.title->text, measure_, bounds_.width * kTitleShare);
    const double height = block.TurnedHeight() + kTitlePadding;
    layout_.title = PlaceTitle(*chart_.title, std::move(block),
                               {bounds_.Center().x, bounds_.top + kChartInset + height / 2}, bounds_);
    if (chart_.title->overlay) return;
    const double taken = std::min(height + kTitleGap, free_.height * 0.8);
    free_.top += taken;
    free_.height -= taken;
  }

  /// Lays out the titles of axes, and adds up the space that they take.
  void MeasureAxisTitles() {
    for (std::size_t i = 0; i < chart_.axes.size(); ++i) {
      const AxisModel& axis = chart_.axes[i];
      if (axis.hidden) continue;
      AddAxisTitle(axis, axis.title, layout_.axes[i].title);
      AddAxisTitle(axis, axis.units.label, layout_.axes[i].units);
    }
  }

  void AddAxisTitle(const AxisModel& axis, const std::optional<TitleModel>& title,
                    std::optional<PlacedTitle>& placed) {
    if (!title || title->text.IsEmpty()) return;
    RichText text = title->text;
    if (!text.rotation && axis.IsUpright()) text.rotation = -90;
    placed.emplace();
    placed->block = LayOut(text, measure_, (axis.IsUpright() ? bounds_.height : bounds_.width) * kTitleShare);
    if (title->overlay) return;
    RoomAt(titles_, PlaceOf(chart_, axis, free_).labelSide) +=
        (axis.IsUpright() ? placed->block.TurnedWidth() : placed->block.TurnedHeight()) + kTitlePadding;
  }

  void SetPlot() {
    layout_.outer = KeepLeast(Without(free_, titles_), bounds_, free_);
    layout_.plot = layout_.outer;
    const bool inner = chart_.layout && chart_.layout->inner;
    if (chart_.layout && !inner) {
      layout_.outer = KeepLeast(Applied(*chart_.layout, bounds_, layout_.outer), bounds_, bounds_);
    }
    FitPlot(inner);
    if (isTableTooNarrow_) {
      RestoreTickLabels();
      FitPlot(inner);
    }
    ShortenSlanted();
    if (inner) {
      layout_.outer = {layout_.plot.left - rooms_.left, layout_.plot.top - rooms_.top,
                       layout_.plot.width + rooms_.left + rooms_.right,
                       layout_.plot.height + rooms_.top + rooms_.bottom};
    }
  }

  /// Fits the plot area and the labels around it. The labels affect the size of the plot area, which in turn
  /// affects the labels.
  void FitPlot(bool inner) {
    constexpr int kFreePasses = 3;  // After these passes, the plot area only shrinks.
    constexpr int kMostPasses = 6;
    Edges around;
    for (int pass = 0; pass < kMostPasses; ++pass) {
      if (pass >= kFreePasses && Suffices(around, rooms_)) return;
      around = pass < kFreePasses ? rooms_ : Widest(around, rooms_);
      const Rect before = layout_.plot;
      layout_.plot = KeepLeast(Without(layout_.outer, around), bounds_, layout_.outer);
      if (inner) layout_.plot = KeepLeast(Applied(*chart_.layout, bounds_, layout_.plot), bounds_, bounds_);
      if (pass > 0 && layout_.plot == before) return;  // The labels would be the same.
      SetTickLabels();
    }
  }

  /// If there is no space for the data table, gives its axis the labels that the table would have replaced.
  void RestoreTickLabels() {
    AxisModel& axis = chart_.axes[static_cast<std::size_t>(chart_.table->axis)];
    axis.tickLabels = chart_.table->tickLabels;
    axis.crossesBetween = chart_.table->crossesBetween;
    layout_.table.emplace().isTooNarrow = true;
    rooms_ = {};
  }

  void SetTickLabels() {
    rooms_ = {};
    Edges overhang;
    for (std::size_t i = 0; i < chart_.axes.size(); ++i) {
      AxisModel& axis = chart_.axes[i];
      const double length = axis.IsUpright() ? layout_.plot.height : layout_.plot.width;
      const double depth = kDeepestLabels * (axis.IsUpright() ? bounds_.width : bounds_.height);
      FitMajorUnit(axis, length, chart_.dates, measure_);
      TickLabels& labels = layout_.axes[i].labels;
      labels = LayOutTickLabels(axis, length, depth, chart_.dates, measure_);
      if (labels.IsEmpty()) continue;
      const AxisPlace place = PlaceOf(chart_, axis, layout_.plot);
      const double inside = std::abs(place.labelsAt - EdgeOf(layout_.plot, place.labelSide));
      double& room = RoomAt(rooms_, place.labelSide);
      room = std::max(room, labels.depth + kLabelGap - inside);
      AddOverhang(axis, labels, length, overhang);
    }
    if (chart_.table && !isTableTooNarrow_) {
      layout_.table = LayOutTable(chart_, bounds_, layout_.plot, measure_);
      isTableTooNarrow_ = layout_.table->isTooNarrow;
      rooms_.left = std::max(rooms_.left, layout_.table->NamesWidth());
      rooms_.bottom = std::max(rooms_.bottom, layout_.table->Height());
    }
    // A label may extend into the inset beyond the ends of an axis, but not beyond the chart.
    const auto widen = [](double& room, double wanted, double available) {
      room = std::max(room, wanted - std::max(available - kEdgeMargin, 0.0));
    };
    widen(rooms_.left, overhang.left, layout_.outer.left - bounds_.left);
    widen(rooms_.right, overhang.right, bounds_.Right() - layout_.outer.Right());
    widen(rooms_.top, overhang.top, layout_.outer.top - bounds_.top);
    widen(rooms_.bottom, overhang.bottom, bounds_.Bottom() - layout_.outer.Bottom());
  }

  void AddOverhang(const AxisModel& axis, const TickLabels& labels, double length, Edges& overhang) const {
    const AxisMap map(axis, 0, length);
    double before = 0, behind = 0;
    for (const TickLabel* label : {&labels.labels.front(), &labels.labels.back()}) {
      const double place = label->category ? map.OfSlot(label->place) : map.OfValue(label->place);
      const double turn = std::sin(labels.rotation * std::numbers::pi / 180);
      const bool slanted = !axis.IsUpright() && std::abs(turn) > 0.05 && std::abs(turn) < 0.99;
      const double along = axis.IsUpright() ? label->block.TurnedHeight() : label->block.TurnedWidth();
      const double start = slanted ? (turn < 0 ? along : 0) : along / 2;
      // A slanted label pushes the plot area up to this limit. A longer one is shortened.
      const double most = slanted ? kMostOverhang * bounds_.width : kUnlimited;
      before = std::max(before, std::min(start - place, most));
      behind = std::max(behind, std::min(along - start - (length - place), most));
    }
    // Vertical axes begin at the bottom.
    double& first = axis.IsUpright() ? overhang.bottom : overhang.left;
    double& second = axis.IsUpright() ? overhang.top : overhang.right;
    first = std::max(first, before);
    second = std::max(second, behind);
  }

  /// Shortens slanted labels below an axis that would begin outside of the chart. They end in dots.
  void ShortenSlanted() {
    for (std::size_t i = 0; i < chart_.axes.size(); ++i) {
      const AxisModel& axis = chart_.axes[i];
      TickLabels& labels = layout_.axes[i].labels;
      const double angle = labels.rotation * std::numbers::pi / 180;
      const bool slanted = std::abs(std::sin(angle)) > 0.05 && std::abs(std::sin(angle)) < 0.99;
      if (axis.IsUpright() || !slanted || labels.IsEmpty()) continue;
      const AxisPlace place = PlaceOf(chart_, axis, layout_.plot);
      const AxisMap map = AxisMap::Along(axis, layout_.plot);
      const bool endsHere = (angle < 0) == (place.labelSide == Side::kBottom);
      for (TickLabel& label : labels.labels) {
        const double along = label.category ? map.OfSlot(label.place) : map.OfValue(label.place);
        const double free = endsHere ? along - bounds_.left : bounds_.Right() - along;
        // Half of the height of a slanted line extends beyond its end.
        const double corner = label.block.height / 2 * std::abs(std::sin(angle));
        Shorten(label.block, (free - kEdgeMargin - corner) / std::abs(std::cos(angle)), measure_);
      }
    }
  }

  void PlaceAxisTitles() {
    Edges used = rooms_;
    for (std::size_t i = 0; i < chart_.axes.size(); ++i) {
      const AxisModel& axis = chart_.axes[i];
      const Side side = PlaceOf(chart_, axis, layout_.plot).labelSide;
      if (auto& units = layout_.axes[i].units)
        PlaceBeside(axis, *axis.units.label, side, Along::kEnd, used, *units);
      if (auto& title = layout_.axes[i].title)
        PlaceBeside(axis, *axis.title, side, Along::kMiddle, used, *title);
    }
  }

  /// The part of an axis beside which a title is.
  enum class Along : std::uint8_t { kMiddle, kEnd };

  /// Places a title on the outer side of the labels of its axis.
  void PlaceBeside(const AxisModel& axis, const TitleModel& title, Side side, Along along, Edges& used,
                   PlacedTitle& placed) {
    const Rect& plot = layout_.plot;
    double& room = RoomAt(used, side);
    const double depth =
        (axis.IsUpright() ? placed.block.TurnedWidth() : placed.block.TurnedHeight()) + kTitlePadding;
    const bool back = side == Side::kLeft || side == Side::kTop;
    const double across = EdgeOf(plot, side) + (back ? -1 : 1) * (room + depth / 2);
    Point center = axis.IsUpright() ? Point{across, plot.Center().y} : Point{plot.Center().x, across};
    if (along == Along::kEnd && axis.IsUpright()) center.y = plot.top + placed.block.TurnedHeight() / 2;
    if (along == Along::kEnd && !axis.IsUpright()) center.x = plot.Right() - placed.block.TurnedWidth() / 2;
    room += depth;
    placed = PlaceTitle(title, std::move(placed.block), center, bounds_);
  }

  ChartModel& chart_;
  const Rect bounds_;
  const TextMeasure& measure_;
  ChartLayout layout_;
  Rect free_;
  Edges titles_, rooms_;
  bool isTableTooNarrow_ = false;  ///< whether the data table had too little space in a pass
};

}  // namespace

ChartLayout LayOutChart(ChartModel& chart, const Rect& bounds, const TextMeasure& measure) {
  return Layouter(chart, bounds, measure).Run();
}

}  // namespace plotsmith::render
