#include "render/plot/Curves.h"
#include "render/plot/Plot.h"
#include "tests/render/DrawingTest.h"
#include "xlsx/package/Xml.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Path;

class PlotTest : public DrawingTest {};

/// Returns a path in the notation of SVG, relative to an origin and rounded to hundredths.
S WordsOf(const Path& path, Point origin) {
  const auto number = [](double value) {
    return " " + xlsx::xml::Number(std::round(value * 100) / 100 + 0.0);
  };
  const auto place = [&](Point p) { return number(p.x - origin.x) + number(p.y - origin.y); };
  S words;
  for (const PathStep& step : path.Steps()) {
    switch (step.kind) {
      case PathStep::Kind::kMove:
        words += "M" + place(step.to);
        break;
      case PathStep::Kind::kLine:
        words += "L" + place(step.to);
        break;
      case PathStep::Kind::kCurve:
        words += "C" + place(step.control1) + place(step.control2) + place(step.to);
        break;
      case PathStep::Kind::kClose:
        words += "Z";
    }
  }
  return words;
}

TEST_F(PlotTest, MarkersHaveTheirForm) {
  struct {
    S symbol, form;
    bool filled;
  } const kCases[] = {
      {"square", "M -3 -3L 3 -3L 3 3L -3 3Z", true},
      {"diamond", "M 0 -3L 3 0L 0 3L -3 0Z", true},
      {"triangle", "M 0 -3L 3 3L -3 3Z", true},
      {"circle",
       "M 0 -3C 1.66 -3 3 -1.66 3 0C 3 1.66 1.66 3 0 3C -1.66 3 -3 1.66 -3 0C -3 -1.66 -1.66 -3 0 -3Z", true},
      {"dash", "M -3 -0.9L 3 -0.9L 3 0.9L -3 0.9Z", true},
      {"dot", "M 0 -0.9L 3 -0.9L 3 0.9L 0 0.9Z", true},
      {"x", "M -3 -3L 3 3M 3 -3L -3 3", false},
      {"star", "M -3 -3L 3 3M 3 -3L -3 3M 0 -3L 0 3", false},
      {"plus", "M -3 0L 3 0M 0 -3L 0 3", false},
      {"none", "", false},
      {"picture", "", false},
  };
  for (const auto& test : kCases) {
    const S marker = "<c:marker><c:symbol val=\"" + test.symbol + "\"/><c:size val=\"6\"/></c:marker>";
    const Drawing drawing =
        Draw(PlotXml(LinesXml(SeriesXml(0, {1, 2, 1}, marker)) + AxesXml("", ScalingXml("0", "4"))));
    const auto markers = ItemsOf(drawing, Role::kMarker);
    ASSERT_EQ(markers.size(), test.form.empty() ? 0u : 3u) << test.symbol;
    if (markers.empty()) continue;
    EXPECT_EQ(WordsOf(std::get<PathItem>(markers[1].content).path, BoxOf(drawing, Role::kPlotArea).Center()),
              test.form)
        << test.symbol;
    EXPECT_EQ(FillOf(markers[1]), test.filled ? "#4F81BD" : "none") << test.symbol;
  }
}

TEST_F(PlotTest, CurvesPassTheirPointsInTheDirectionOfTheirNeighbours) {
  const std::vector<Point> points = {{0, 0}, {6, 12}, {18, 6}, {24, 30}};
  struct {
    std::size_t count;
    bool smooth;
    S form;
  } const kCases[] = {
      {0, true, ""},
      {1, true, "M 0 0"},
      {2, true, "M 0 0C 1 2 5 10 6 12"},
      {4, true, "M 0 0C 1 2 3 11 6 12C 9 13 15 3 18 6C 21 9 23 26 24 30"},
      {4, false, "M 0 0L 6 12L 18 6L 24 30"},
  };
  for (const auto& test : kCases) {
    Path path;
    render::AddCurve(path, {points.begin(), points.begin() + static_cast<std::ptrdiff_t>(test.count)},
                     test.smooth);
    EXPECT_EQ(WordsOf(path, {}), test.form) << test.count;
  }
}

TEST_F(PlotTest, DenseLinesKeepTheFirstTheLeastTheGreatestAndTheLastPointOfEachColumn) {
  // Columns of half a point: the heights of the points in each of them, and the places that are kept.
  struct {
    Numbers heights;
    std::vector<std::size_t> kept;
  } const kColumns[] = {
      {{5}, {0}},
      {{5, 5}, {0, 1}},
      {{5, 1, 9, 5}, {0, 1, 2, 3}},
      {{5, 9, 1, 5}, {0, 1, 2, 3}},
      {{1, 5, 5, 9}, {0, 3}},
      {{9, 5, 5, 1}, {0, 3}},
      {{5, 4, 9, 9, 4, 6}, {0, 1, 2, 5}},
      {{3, 3, 3, 3}, {0, 3}},
      {{1, 5, 9, 7, 6}, {0, 2, 4}},
  };
  std::vector<Point> points, kept;
  for (int round = 0; round < 80; ++round) {
    for (const auto& column : kColumns) {
      const double left = points.empty() ? 0 : std::floor(points.back().x) + 1;
      for (std::size_t i = 0; i < column.heights.size(); ++i) {
        points.push_back({left + static_cast<double>(i) / 16, column.heights[i]});
      }
      const std::size_t first = points.size() - column.heights.size();
      for (const std::size_t i : column.kept) kept.push_back(points[first + i]);
    }
  }
  ASSERT_GT(points.size(), 2000u);
  EXPECT_EQ(render::Thinned(points), kept);
  // A column ends half a point behind its first point.
  for (std::size_t i = 0; i < points.size(); ++i) points[i] = {static_cast<double>(i) / 2, 0};
  EXPECT_EQ(render::Thinned(points), points);
  points.assign(2000, {1, 1});
  EXPECT_EQ(render::Thinned(points), points) << "2,000 points aren't dense";
  points.push_back({1, 1});
  EXPECT_EQ(render::Thinned(points), (std::vector<Point>{{1, 1}, {1, 1}}));
}

TEST_F(PlotTest, SymbolsBeyondTheLimitAreLeftOutWithANote) {
  render::Notes notes;
  Drawing drawing;
  render::Canvas canvas(drawing, SharedFonts(), notes);
  const render::ChartModel chart;
  render::Plot plot{chart, {}, canvas, {}, 2};
  EXPECT_TRUE(plot.TakeSymbol());
  EXPECT_TRUE(plot.TakeSymbol());
  EXPECT_EQ(notes, render::Notes());
  EXPECT_FALSE(plot.TakeSymbol());
  EXPECT_EQ(notes,
            (render::Notes{"The chart has more markers or bubbles than are drawn; the rest is left out."}));
}

}  // namespace
}  // namespace plotsmith
