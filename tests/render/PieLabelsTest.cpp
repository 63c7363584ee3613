#include <map>

#include "tests/render/DrawingTest.h"
#include "xlsx/package/Xml.h"

namespace plotsmith {
namespace {

using namespace test;

using xlsx::xml::Number;

/// Returns the point at a distance from the middle of a circle, at an angle clockwise from twelve o'clock.
Point Around(Point middle, double degrees, double distance) {
  return {middle.x + distance * std::sin(degrees * render::kRadian),
          middle.y - distance * std::cos(degrees * render::kRadian)};
}

/// Returns the distance of a point from the nearest point of a line.
double DistanceFrom(Point point, Point from, Point to) {
  const double x = to.x - from.x, y = to.y - from.y, length = x * x + y * y;
  const double share =
      length == 0 ? 0 : std::clamp(((point.x - from.x) * x + (point.y - from.y) * y) / length, 0.0, 1.0);
  return std::hypot(from.x + share * x - point.x, from.y + share * y - point.y);
}

/// Returns an angle in degrees as one from -180 to 180.
double Turned(double degrees) { return std::remainder(degrees, 360); }

/// Draws pies in the middle half of the chart, with labels in filled frames. Their boxes are those of the
/// frames.
class PieLabelsTest : public DrawingTest {
 protected:
  static constexpr Point kMiddle{192, 135};
  static constexpr double kRadius = 67.5;  // points

  Drawing DrawPie(const Numbers& values, const S& labels, double firstAngle = 0, double size = 0.5) {
    const S edge = Number(0.5 - size / 2), extent = Number(size);
    const S inner =
        "<c:w val=\"" + extent + "\"/><c:h val=\"" + extent + "\"/><c:layoutTarget val=\"inner\"/>";
    return Draw(PlotXml(LayoutXml("edge", edge, edge, inner) + "<c:pieChart><c:varyColors val=\"1\"/>" +
                        SeriesXml(0, values,
                                  "<c:dLbls>" + labels + LookXml(SolidXml("FFFFCC")) +
                                      "<c:showVal val=\"1\"/><c:showLeaderLines val=\"1\"/></c:dLbls>") +
                        "<c:firstSliceAng val=\"" + Number(firstAngle) + "\"/></c:pieChart>"));
  }

  /// Returns the label of a slice at a distance from the middle of the slice. Distances are in points.
  static S MovedLabelXml(std::size_t point, Point by) {
    return "<c:dLbl><c:idx val=\"" + std::to_string(point) + "\"/><c:layout><c:manualLayout><c:x val=\"" +
           Number(by.x / 384) + "\"/><c:y val=\"" + Number(by.y / 270) + "\"/></c:manualLayout></c:layout>" +
           LookXml(SolidXml("FFFFCC")) + "<c:dLblPos val=\"ctr\"/><c:showVal val=\"1\"/></c:dLbl>";
  }

  /// Returns the frames of the labels, in the order of the slices.
  static std::vector<Rect> FramesOf(const Drawing& drawing) {
    std::vector<Rect> frames;
    for (const Item& item : ItemsOf(drawing, Role::kDataLabel)) {
      if (std::holds_alternative<PathItem>(item.content)) frames.push_back(BoundsOf(item));
    }
    return frames;
  }
};

/// Checks a leader line from the middle of a slice to its label.
void ExpectShortestWay(const std::vector<PathStep>& steps, Point middle, double radius, double angle,
                       const Rect& label, const S& what) {
  const Point begin = steps.front().to, end = steps.back().to;
  const Point edge = Around(middle, angle, radius);
  EXPECT_NEAR(std::hypot(begin.x - edge.x, begin.y - edge.y), 0, 1e-6) << what;
  // The line ends at the nearest place above or below its beginning, or at the middle of a side.
  const bool isBeside = edge.x < label.left || edge.x > label.Right();
  EXPECT_NEAR(end.x, std::clamp(edge.x, label.left, label.Right()), 1e-6) << what;
  EXPECT_NEAR(end.y, isBeside ? label.Center().y : std::clamp(edge.y, label.top, label.Bottom()), 1e-6)
      << what;
  const double way = Turned(std::atan2(end.x - middle.x, middle.y - end.y) / render::kRadian - angle);
  for (std::size_t i = 1; i + 1 < steps.size(); ++i) {  // four degrees on, two points beside the circle
    const Point at = Around(middle, angle + (way < 0 ? -4.0 : 4.0) * static_cast<double>(i), radius + 2);
    EXPECT_NEAR(std::hypot(steps[i].to.x - at.x, steps[i].to.y - at.y), 0, 1e-6) << what << ' ' << i;
  }
  // It goes round the circle no longer than it must.
  for (std::size_t i = 0; i + 1 < steps.size(); ++i) {
    const bool crosses = DistanceFrom(middle, steps[i].to, end) < 0.99 * radius;
    EXPECT_EQ(crosses, i + 2 < steps.size()) << what << ' ' << i;
  }
}

TEST_F(PieLabelsTest, LeaderLinesTakeTheShortestWayRoundTheCircle) {
  constexpr std::size_t kSlices = 12;
  std::size_t straight = 0, bent = 0;
  for (std::size_t turn = 0; turn < kSlices; ++turn) {
    S labels;
    for (std::size_t i = 0; i < kSlices; ++i) {
      const double angle = 30 * (static_cast<double>(i) + 0.5) + 7;
      const Point from = Around({}, angle, kRadius / 2);
      const Point to = Around({}, angle + 30 * static_cast<double>(turn) + 3, kRadius * 1.5);
      labels += MovedLabelXml(i, {to.x - from.x, to.y - from.y});
    }
    const Drawing drawing = DrawPie(Numbers(kSlices, 1), labels, 7);
    const auto frames = FramesOf(drawing);
    ASSERT_EQ(frames.size(), kSlices);
    for (const Item& line : ItemsOf(drawing, Role::kLeaderLine)) {
      const auto i = static_cast<std::size_t>(line.tag.point - 1);
      const auto& steps = std::get<PathItem>(line.content).path.Steps();
      ++(steps.size() == 2 ? straight : bent);
      ExpectShortestWay(steps, kMiddle, kRadius, 30 * (static_cast<double>(i) + 0.5) + 7, frames[i],
                        std::to_string(turn) + ' ' + std::to_string(i));
    }
  }
  EXPECT_EQ(straight, 42u);
  EXPECT_EQ(bent, 102u);
}

TEST_F(PieLabelsTest, LabelsOfTinySlicesAreTiedToThem) {
  Numbers values(70, 1);
  values.push_back(3000);
  const Drawing drawing = DrawPie(values, "<c:dLblPos val=\"outEnd\"/>");
  std::map<int, Rect> frames;  // by the number of the slice
  for (const Item& item : ItemsOf(drawing, Role::kDataLabel))
    frames.try_emplace(item.tag.point, BoundsOf(item));
  const auto lines = ItemsOf(drawing, Role::kLeaderLine);
  EXPECT_GT(lines.size(), 10u);
  for (const Item& line : lines) {
    ExpectShortestWay(std::get<PathItem>(line.content).path.Steps(), kMiddle, kRadius,
                      360 * (line.tag.point - 0.5) / 3070, frames.at(line.tag.point), "tiny");
  }
}

TEST_F(PieLabelsTest, AMovedLabelKeepsThePlaceThatItsLayoutDoesNotSet) {
  const auto moved = [&](const S& layout) {
    return FramesOf(DrawPie({1, 1}, "<c:dLbl><c:idx val=\"0\"/><c:layout><c:manualLayout>" + layout +
                                        "</c:manualLayout></c:layout>" + LookXml(SolidXml("FFFFCC")) +
                                        "<c:dLblPos val=\"ctr\"/><c:showVal val=\"1\"/></c:dLbl>"))[0]
        .Center();
  };
  const Point own = moved(""), across = moved("<c:x val=\"0.125\"/>"), down = moved("<c:y val=\"0.1\"/>");
  EXPECT_NEAR(across.x, own.x + 48, 1e-6);
  EXPECT_EQ(across.y, own.y);
  EXPECT_EQ(down.x, own.x);
  EXPECT_NEAR(down.y, own.y + 27, 1e-6);
}

TEST_F(PieLabelsTest, LeaderLinesAreDrawnFromFivePointsOn) {
  // The first slice is the right half. Its label is beside it.
  const auto linesWithGap = [&](double gap) {
    const double width = FramesOf(DrawPie({1, 1}, MovedLabelXml(0, {100, 0})))[0].width;
    const Drawing drawing = DrawPie({1, 1}, MovedLabelXml(0, {kRadius / 2 + width / 2 + gap, 0}));
    EXPECT_NEAR(FramesOf(drawing)[0].left, kMiddle.x + kRadius + gap, 1e-6);
    return ItemsOf(drawing, Role::kLeaderLine).size();
  };
  const std::pair<double, std::size_t> cases[] = {{-1, 0}, {1, 0}, {4.9, 0}, {5.1, 1}, {40, 1}};
  for (const auto& [gap, lines] : cases) EXPECT_EQ(linesWithGap(gap), lines) << gap;
}

/// Returns whether a box lies in a slice with the tip at the origin, at most `radius` from it. Angles are
/// degrees.
bool IsInSlice(const Rect& box, double middle, double sweep, double radius) {
  for (const double x : {box.left, box.Right()}) {
    for (const double y : {box.top, box.Bottom()}) {
      const double angle = std::atan2(x, -y) / render::kRadian;
      if (std::hypot(x, y) > radius || std::abs(Turned(angle - middle)) > sweep / 2) return false;
    }
  }
  return true;
}

TEST_F(PieLabelsTest, LabelsAreInTheirSliceAtItsEdgeIfTheyFit) {
  std::size_t inside = 0, outside = 0;
  for (double first = 0; first < 360; first += 24) {
    for (const double size : {0.5, 0.2}) {
      const Numbers values = {1, 2, 3, 6, 12};
      const Drawing drawing = DrawPie(values, "<c:dLblPos val=\"bestFit\"/>", first, size);
      const auto frames = FramesOf(drawing);
      ASSERT_EQ(frames.size(), values.size());
      const double radius = 270 * size / 2, inner = radius - 1.5;
      double angle = first;
      for (std::size_t i = 0; i < values.size(); ++i) {
        const double sweep = values[i] * 15, middle = angle + sweep / 2;
        angle += sweep;
        const auto boxAt = [&](double distance) {
          const Point at = Around({}, middle, distance);
          return Rect{at.x - frames[i].width / 2, at.y - frames[i].height / 2, frames[i].width,
                      frames[i].height};
        };
        double farthest = 0;  // the farthest place at which no corner is beyond the edge
        while (IsInSlice(boxAt(farthest + 0.01), middle, 360, inner)) farthest += 0.01;
        const bool fits = IsInSlice(boxAt(farthest), middle, sweep, inner);
        const Point center = frames[i].Center();
        const double distance = std::hypot(center.x - kMiddle.x, center.y - kMiddle.y);
        if (fits) {
          EXPECT_NEAR(distance, farthest, 0.02) << first << ' ' << size << ' ' << i;
        } else {
          EXPECT_GT(distance, radius) << first << ' ' << size << ' ' << i;
        }
        ++(fits ? inside : outside);
      }
    }
  }
  EXPECT_EQ(inside, 108u);
  EXPECT_EQ(outside, 42u);
}

TEST_F(PieLabelsTest, LabelsThatAreLargerThanThePieAreAtItsMiddle) {
  const S large = "<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr sz=\"4000\"/></a:pPr></a:p></c:txPr>";
  for (const auto& [position, below] : {std::pair("inEnd", 0.0), {"ctr", 13.5}}) {
    const Drawing drawing = DrawPie({123}, large + "<c:dLblPos val=\"" + position + "\"/>", 0, 0.2);
    const Rect frame = FramesOf(drawing)[0];
    EXPECT_GT(frame.width, 60) << position;
    EXPECT_NEAR(frame.Center().x, kMiddle.x, 1e-6) << position;
    EXPECT_NEAR(frame.Center().y, kMiddle.y + below, 1e-6) << position;
  }
}

TEST_F(PieLabelsTest, TheLabelOfAWholeCircleIsInItIfItIsNarrowerThanTheRadius) {
  for (const auto& [value, inside] : {std::pair(1e10, false), {7.0, true}}) {
    const Rect frame = FramesOf(DrawPie({value}, "<c:dLblPos val=\"bestFit\"/>", 0, 0.2))[0];
    EXPECT_NEAR(frame.Center().x, kMiddle.x, 1e-6);
    EXPECT_EQ(frame.Bottom() < kMiddle.y + 27, inside) << frame.width;
    EXPECT_EQ(frame.top > kMiddle.y + 27, !inside) << frame.width;
  }
}

TEST_F(PieLabelsTest, LabelsOutsideAreAsNearAsTheyCanBe) {
  for (double first = 0; first < 360; first += 15) {
    const Drawing drawing = DrawPie({1, 1, 1, 1}, "<c:dLblPos val=\"outEnd\"/>", first);
    const auto frames = FramesOf(drawing);
    ASSERT_EQ(frames.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
      const double middle = first + 90 * static_cast<double>(i) + 45;
      // The label is on the line from the middle of the pie, a point and a half from where it would touch.
      const auto distanceOf = [&](double back) {
        const Point by = Around({}, middle, -back);
        const Rect box{frames[i].left + by.x, frames[i].top + by.y, frames[i].width, frames[i].height};
        return std::hypot(std::clamp(kMiddle.x, box.left, box.Right()) - kMiddle.x,
                          std::clamp(kMiddle.y, box.top, box.Bottom()) - kMiddle.y);
      };
      EXPECT_NEAR(distanceOf(1.5), kRadius, 1e-3) << first << ' ' << i;
      const Point center = frames[i].Center(), at = Around({}, middle, 1);
      EXPECT_NEAR((center.x - kMiddle.x) * at.y - (center.y - kMiddle.y) * at.x, 0, 1e-6) << first << i;
    }
  }
}

TEST_F(PieLabelsTest, TheCircleLeavesRoomForTheLabelsBesideIt) {
  for (int size = 600; size <= 1600; size += 100) {
    const S font = "<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr sz=\"" + std::to_string(size) +
                   "\"/></a:pPr></a:p></c:txPr>";
    for (std::size_t count = 3; count <= 8; ++count) {
      Numbers values;
      for (std::size_t i = 1; i <= count; ++i) values.push_back(1234567.89 * static_cast<double>(i));
      const Drawing drawing =
          Draw(PlotXml("<c:pieChart>" +
                           SeriesXml(0, values,
                                     "<c:dLbls>" + LookXml(SolidXml("FFFFCC")) + font +
                                         "<c:dLblPos val=\"bestFit\"/><c:showVal val=\"1\"/></c:dLbls>") +
                           "</c:pieChart>",
                       "<c:legend><c:legendPos val=\"r\"/></c:legend>"));
      const Rect room = BoxOf(drawing, Role::kPlotArea);
      const auto frames = FramesOf(drawing);
      EXPECT_EQ(frames.size(), count) << size;
      for (const Rect& frame : frames) {
        EXPECT_TRUE(frame.left >= room.left && frame.Right() <= room.Right()) << size << ' ' << count;
      }
    }
  }
}

}  // namespace
}  // namespace plotsmith
