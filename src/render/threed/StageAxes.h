#pragma once

#include <string>
#include <utility>
#include <vector>

#include "render/Canvas.h"
#include "render/text/TextBlock.h"
#include "render/threed/Stage.h"

namespace plotsmith::render {

/// The axes of a chart in 3-D with their labels. They are drawn along edges of the box.
class StageAxes {
 public:
  /// Lays out the axes. `stage` and `measure` must outlive this object.
  StageAxes(const Stage& stage, const TextMeasure& measure, xlsx::DateSystem dates);

  /// Returns the rectangle around the box and all labels on the picture.
  Rect BoundsOf(const Projection& projection) const;
  /// Draws the lines, tick marks and labels of all axes.
  void Draw(Canvas& canvas, const Projection& projection) const;

 private:
  struct Label {
    std::string text;
    double share = 0;  ///< The position on the axis, from 0 to 1.
    int number = 0;    ///< The number of the tick, from 1.
  };
  /// The labels and ticks of an axis.
  struct Ruler {
    const AxisModel* axis = nullptr;
    std::vector<Label> labels;
    std::vector<double> ticks;  ///< The positions of the ticks, from 0 to 1.
  };
  /// The side of an axis on which its labels are.
  enum class Beside { kLeft, kBelow, kRight };
  /// An edge of the box, in shares of its extents.
  struct BoxEdge {
    Point3 from, to;
    Beside beside = Beside::kLeft;
  };

  Ruler ReadValues(xlsx::DateSystem dates) const;
  Ruler ReadCategories() const;
  Ruler ReadDates(xlsx::DateSystem dates) const;
  Ruler ReadSeries() const;

  BoxEdge UprightEdge(const Projection& projection) const;
  static BoxEdge LowerOf(const Projection& projection, BoxEdge first, const BoxEdge& second);
  static Beside SideOf(const Projection& projection, const BoxEdge& edge);
  static bool IsSteep(const Projection& projection, const BoxEdge& edge);
  BoxEdge LowerEdge(const Projection& projection) const;
  BoxEdge SeriesEdge(const Projection& projection) const;
  /// An axis with the edge that it is on.
  struct PlacedRuler {
    const Ruler* ruler;
    BoxEdge edge;
  };
  std::vector<PlacedRuler> Place(const Projection& projection) const;
  /// A label with its position.
  struct PlacedLabel {
    const Label* label;
    TextBlock block;
    Point center;

    Rect Bounds() const;
  };
  /// Places the labels of an axis. Some are left out if they would touch each other.
  std::vector<PlacedLabel> LabelsOf(const PlacedRuler& placed, const Projection& projection) const;
  PlacedLabel PlaceLabel(const PlacedRuler& placed, const Label& label, TextBlock block,
                         const Projection& projection) const;
  /// A text of an outer level of categories, and the line between this text and the next one.
  struct PlacedGroup {
    TextBlock block;
    Point center;
    int number = 0;  ///< The number of its first category, from 1.
    std::vector<std::pair<Point, Point>> lines;

    Rect Bounds() const;
  };
  /// The outer levels of categories, outside of the labels of an axis.
  std::vector<PlacedGroup> GroupsOf(const PlacedRuler& placed, const std::vector<PlacedLabel>& labels,
                                    const Projection& projection) const;
  static Point DirectionOf(Beside beside);
  PlacedGroup PlaceGroup(const PlacedRuler& placed, const CategoryGroup& group, double distance,
                         const Projection& projection) const;
  void DrawRuler(Canvas& canvas, const PlacedRuler& placed, const Projection& projection) const;

  const Stage& stage_;
  const TextMeasure& measure_;
  Ruler values_, categories_, series_;
};

}  // namespace plotsmith::render
