#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "render/TextMeasure.h"
#include "render/cairo/CairoFonts.h"
#include "render/chart/ChartDrawing.h"
#include "tests/support/ChartTest.h"

namespace plotsmith::test {

using render::Drawing, render::Item, render::PathItem, render::PathStep, render::Point, render::Rect,
    render::Role, render::TextItem;
using S = std::string;
using Texts = std::vector<S>;
using Numbers = std::vector<double>;

inline constexpr double kNoValue = NAN;

/// Return elements of a chart part. `more` is inserted where the schema expects further elements.
///@{
S SeriesXml(int index, const Numbers& values, const S& more = "", const S& behind = "",
            const S& categories = "");
/// Returns a series with X and Y values.
S PointsXml(int index, const Numbers& x, const Numbers& y, const S& more = "", const S& behind = "");
/// Returns an element with numbers, such as c:xVal. A point without a value is left out.
S NumbersXml(const S& element, const Numbers& numbers, const S& format = "General");
/// Returns a c:cat element with texts.
S CategoriesXml(const Texts& texts);
/// Returns a c:cat element with several levels, each with the texts of some indexes.
S LevelsXml(int count, const std::vector<std::vector<std::pair<int, S>>>& levels);
/// Returns a category axis (number 1) and a value axis (number 2), each with additional elements. For
/// horizontal bars, the category axis is vertical.
S AxesXml(const S& category = "", const S& value = "", bool horizontal = false);
/// Return the same with an axis of X values, or of dates.
///@{
S ValueAxesXml(const S& x = "", const S& value = "");
S DateAxesXml(const S& category = "", const S& value = "");
///@}
/// Returns the axis of the series in a 3-D chart (number 3).
S DepthAxisXml();
S ScalingXml(const S& least, const S& most, const S& more = "");
S SolidXml(const S& color, const S& more = "");
/// Returns shape properties with a fill, and with a line of two points if its fill isn't empty.
S LookXml(const S& fill, const S& line = "");
/// Returns text properties with attributes of the body, such as rot="2700000".
S BodyXml(const S& attributes);
S TitleXml(const S& text, const S& more = "");
/// Returns a manual layout with the mode "edge" or "factor". `more` follows the position.
S LayoutXml(const S& mode, const S& x, const S& y, const S& more = "");
/// Returns a chart group on these axes.
S GroupXml(const S& element, const S& first, const S& series, const S& last = "");
/// Returns a group of columns, or of bars with the direction "bar".
S ColumnsXml(const S& series, const S& last = "", const S& grouping = "clustered",
             const S& direction = "col");
/// Returns a group of lines.
S LinesXml(const S& series, const S& last = "", const S& grouping = "standard");
/// Returns a chart without a title that contains a plot area.
S PlotXml(const S& content, const S& behind = "");
/// Returns the same in 3-D. `view` has the elements of the view.
S Plot3DXml(const S& view, const S& content, const S& behind = "");
///@}

/// A font whose letters all have the same width, so that drawings don't depend on the installed fonts.
class EvenMeasure : public render::TextMeasure {
 public:
  render::TextExtent Measure(std::string_view line, const render::Font& font) const override;
  bool HasFonts() const override { return true; }
};

/// A test that draws charts and checks the list of painted items.
class DrawingTest : public ChartTest {
 protected:
  /// Opens a workbook with the chart and draws it, by default with 384 by 270 points.
  Drawing Draw(const S& chart, const S& behind = "", double width = 384, double height = 270);

  /// Draws a whole chart part.
  Drawing DrawPart(const S& part, double width = 384, double height = 270);

  /// Opens a workbook with an empty chart that has shapes. `anchors` are the children of their root.
  void OpenShapes(const S& anchors, const S& chart = "<c:plotArea/>");
  /// Draws the chart of the open workbook.
  Drawing DrawOpen(double width = 384, double height = 270);

  static render::CairoFonts& SharedFonts();
  render::Notes notes_;
};

/// Returns the items of a role in painting order, optionally of one series or axis.
std::vector<Item> ItemsOf(const Drawing& drawing, Role role, int series = 0);
/// Returns the rectangles of these items.
std::vector<Rect> BoxesOf(const Drawing& drawing, Role role, int series = 0);
/// Returns the texts of these items, without other items.
Texts TextsOf(const Drawing& drawing, Role role, int series = 0);
/// Returns the rectangle around these items.
Rect BoxOf(const Drawing& drawing, Role role, int series = 0);
/// Returns the solid fill of a path as "#RRGGBB", or "none".
S FillOf(const Item& item);
/// Checks the edges of a rectangle.
void ExpectNear(const Rect& actual, const Rect& expected, const S& what = "", double slack = 1e-6);

/// Returns the pairs of texts of a role that overlap by more than `slack` points, one per line.
S OverlapComplaints(const Drawing& drawing, Role role, double slack);

/// Returns the errors of a drawing, one per line: text outside the chart, overlapping tick labels, invalid
/// numbers, clips that don't end.
S DrawingComplaints(const Drawing& drawing);

}  // namespace plotsmith::test
