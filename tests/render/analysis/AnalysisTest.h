#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "tests/render/DrawingTest.h"

namespace plotsmith::test {

inline const S kZeroToTen = ScalingXml("0", "10");

/// Error bars of a kind with an amount. `look` is their last element.
inline S ErrorBarsXml(const S& kind, const S& amount, const S& more = "", const S& ends = "both",
                      const S& look = "") {
  return "<c:errBars>" + (more.find("errDir") == S::npos ? "<c:errDir val=\"y\"/>" : S()) +
         "<c:errBarType val=\"" + ends + "\"/><c:errValType val=\"" + kind + "\"/>" + more + "<c:val val=\"" +
         amount + "\"/>" + look + "</c:errBars>";
}

inline S TrendXml(const S& type, const S& more = "") {
  return "<c:trendline><c:trendlineType val=\"" + type + "\"/>" + more + "</c:trendline>";
}

/// Draws charts with trendlines, error bars, and lines and bars between series.
class AnalysisTest : public DrawingTest {
 protected:
  Drawing DrawGroup(const S& element, const S& first, const S& series, const S& value = kZeroToTen,
                    const S& behind = "") {
    return Draw(PlotXml(GroupXml(element, first, series) + AxesXml("", value), behind));
  }
  Drawing DrawColumns(const Numbers& values, const S& more, const S& value = kZeroToTen) {
    return DrawGroup("barChart", "<c:barDir val=\"col\"/>", SeriesXml(0, values, more), value);
  }
  /// Returns the values, on an axis from 0 to 10, at the upper and the lower ends of items.
  static std::vector<std::pair<double, double>> EndsOf(const Drawing& drawing, Role role) {
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    std::vector<std::pair<double, double>> ends;
    const auto valueAt = [&](double y) { return std::round((plot.Bottom() - y) / plot.height * 1e7) / 1e6; };
    for (const Rect& box : BoxesOf(drawing, role)) ends.emplace_back(valueAt(box.top), valueAt(box.Bottom()));
    return ends;
  }
};

}  // namespace plotsmith::test
