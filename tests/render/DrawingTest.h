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
S ScalingXml(const S& least, const S& most, const S& more = "");
S SolidXml(const S& color, const S& more = "");
/// Returns a chart group on these axes.
S GroupXml(const S& element, const S& first, const S& series, const S& last = "");
/// Returns a group of columns, or of bars with the direction "bar".
S ColumnsXml(const S& series, const S& last = "", const S& grouping = "clustered",
             const S& direction = "col");
/// Returns a group of lines.
S LinesXml(const S& series, const S& last = "", const S& grouping = "standard");
/// Returns a chart without a title that contains a plot area.
S PlotXml(const S& content, const S& behind = "");
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

/// Returns the errors of a drawing, one per line: text outside the chart, overlapping tick labels, invalid
/// numbers, clips that don't end.
S DrawingComplaints(const Drawing& drawing);

}  // namespace plotsmith::test
