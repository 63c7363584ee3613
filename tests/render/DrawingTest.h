#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "render/cairo/CairoFonts.h"
#include "render/chart/ChartDrawing.h"
#include "tests/support/ChartTest.h"

namespace plotsmith::test {

inline constexpr double kNoValue = NAN;

/// Return elements of a chart part. `more` is inserted where the schema expects further elements.
///@{
std::string SeriesXml(int index, const std::vector<double>& values, const std::string& more = "",
                      const std::string& behind = "", const std::string& categories = "");
/// Returns a c:cat element with texts.
std::string CategoriesXml(const std::vector<std::string>& texts);
/// Returns a category axis (number 1) and a value axis (number 2), each with additional elements. For
/// horizontal bars, the category axis is vertical.
std::string AxesXml(const std::string& category = "", const std::string& value = "", bool horizontal = false);
/// Returns a chart group on these axes.
std::string GroupXml(const std::string& element, const std::string& first, const std::string& series,
                     const std::string& last = "");
/// Returns a chart without a title that contains a plot area.
std::string PlotXml(const std::string& content, const std::string& behind = "");
///@}

/// A test that draws charts and checks the list of painted items.
class DrawingTest : public ChartTest {
 protected:
  /// Opens a workbook with the chart and draws it, by default with 384 by 270 points.
  render::Drawing Draw(const std::string& chart, const std::string& behind = "", double width = 384,
                       double height = 270);

  /// Draws a whole chart part.
  render::Drawing DrawPart(const std::string& part, double width = 384, double height = 270);

  static render::CairoFonts& SharedFonts();
  render::Notes notes_;
};

/// Returns the items of a role in painting order, optionally of one series or axis.
std::vector<render::Item> ItemsOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// Returns the rectangles of these items.
std::vector<render::Rect> BoxesOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// Returns the texts of these items, without other items.
std::vector<std::string> TextsOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// Returns the rectangle around these items.
render::Rect BoxOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// Returns the solid filling of a path as "#RRGGBB", or "none".
std::string FillOf(const render::Item& item);

/// Returns the errors of a drawing, one per line: text outside the chart, overlapping tick labels, invalid
/// numbers, clips that don't end.
std::string DrawingComplaints(const render::Drawing& drawing);

}  // namespace plotsmith::test
