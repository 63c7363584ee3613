#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "render/ChartDrawing.h"
#include "render/cairo/Fonts.h"
#include "tests/support/ChartTest.h"

namespace plotsmith::test {

inline constexpr double kNoValue = NAN;

/// Elements of a chart part, for charts that a case makes up. `more` goes where the schema wants what the
/// others don't name.
///@{
std::string SeriesXml(int index, const std::vector<double>& values, const std::string& more = "",
                      const std::string& behind = "", const std::string& categories = "");
/// c:cat with texts.
std::string CategoriesXml(const std::vector<std::string>& texts);
/// A category axis (number 1) and an axis of values (number 2), each with what a case adds; for bars that
/// lie, the category axis is upright.
std::string AxesXml(const std::string& category = "", const std::string& value = "", bool horizontal = false);
/// A group of a kind on those axes.
std::string GroupXml(const std::string& element, const std::string& first, const std::string& series,
                     const std::string& last = "");
/// All of a chart's plot area in a chart without a title.
std::string PlotXml(const std::string& content, const std::string& behind = "");
///@}

/// Draws charts and looks at the list of what was painted.
class DrawingTest : public ChartTest {
 protected:
  /// Opens a workbook with the chart and draws it, at 384 by 270 points if nothing else is said.
  render::Drawing Draw(const std::string& chart, const std::string& behind = "", double width = 384,
                       double height = 270);

  /// The same of a whole chart part.
  render::Drawing DrawPart(const std::string& part, double width = 384, double height = 270);

  static render::Fonts& SharedFonts();
  render::Notes notes_;
};

/// The items of a role, in painting order; of one series or axis if its number is given.
std::vector<render::Item> ItemsOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// Where they are.
std::vector<render::Rect> BoxesOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// Their texts; those that aren't texts are left out.
std::vector<std::string> TextsOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// Around all of them.
render::Rect BoxOf(const render::Drawing& drawing, render::Role role, int series = 0);
/// "#RRGGBB" of a path's solid filling, "none" without one.
std::string FillOf(const render::Item& item);

/// What no chart may have, one complaint a line: text outside of the chart, tick labels of an axis on each
/// other, numbers that are none, clips that don't end.
std::string DrawingComplaints(const render::Drawing& drawing);

}  // namespace plotsmith::test
