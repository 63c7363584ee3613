#include "tests/render/DrawingTest.h"

#include <array>
#include <map>
#include <numbers>

#include "runtime/Strings.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::test {

namespace {

S AxisXml(const char* element, int number, int other, const char* side, const S& more) {
  return "<c:" + S(element) + "><c:axId val=\"" + std::to_string(number) + "\"/>" +
         (more.find("<c:scaling>") == S::npos ? "<c:scaling/>" : "") +
         "<c:delete val=\"0\"/><c:axPos val=\"" + side + "\"/>" + more + "<c:crossAx val=\"" +
         std::to_string(other) + "\"/></c:" + element + ">";
}

/// Returns the corners of a rotated text.
std::array<Point, 4> CornersOf(const TextItem& text) {
  using render::TextAlign;
  const double shift = text.align == TextAlign::kStart    ? 0
                       : text.align == TextAlign::kMiddle ? text.width / 2
                                                          : text.width;
  const double angle = text.rotation * std::numbers::pi / 180;
  const auto at = [&](double x, double y) {
    return Point{text.anchor.x + x * std::cos(angle) - y * std::sin(angle),
                 text.anchor.y + x * std::sin(angle) + y * std::cos(angle)};
  };
  return {at(-shift, -text.ascent), at(text.width - shift, -text.ascent),
          at(text.width - shift, text.descent), at(-shift, text.descent)};
}

/// Returns true if a line parallel to an edge of the first text separates two rotated texts.
bool ArePartedBy(const std::array<Point, 4>& a, const std::array<Point, 4>& b) {
  constexpr double kSlack = 0.3;  // points
  for (int edge = 0; edge < 2; ++edge) {
    const Point from = a[static_cast<std::size_t>(edge)], to = a[static_cast<std::size_t>(edge) + 1];
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (length == 0) return true;
    const auto along = [&](Point p) { return (p.x * (to.x - from.x) + p.y * (to.y - from.y)) / length; };
    const auto [leastA, mostA] = std::minmax({along(a[0]), along(a[1]), along(a[2]), along(a[3])});
    const auto [leastB, mostB] = std::minmax({along(b[0]), along(b[1]), along(b[2]), along(b[3])});
    if (mostA <= leastB + kSlack || mostB <= leastA + kSlack) return true;
  }
  return false;
}

S LabelComplaints(const Drawing& drawing) {
  S complaints;
  std::map<int, std::vector<std::pair<int, const TextItem*>>> labels;  // The labels by axis number.
  for (const Item& item : drawing.items) {
    const auto* text = std::get_if<TextItem>(&item.content);
    if (text != nullptr && item.tag.role == Role::kTickLabel)
      labels[item.tag.series].push_back({item.tag.point, text});
  }
  for (const auto& [axis, list] : labels) {
    for (std::size_t i = 1; i < list.size(); ++i) {
      const bool same = list[i].first == list[i - 1].first;  // These are lines of one label.
      const auto a = CornersOf(*list[i - 1].second), b = CornersOf(*list[i].second);
      if (same || ArePartedBy(a, b) || ArePartedBy(b, a)) continue;
      complaints += "axis " + std::to_string(axis) + ": \"" + list[i - 1].second->text + "\" lies on \"" +
                    list[i].second->text + "\"\n";
    }
  }
  return complaints;
}

}  // namespace

S NumbersXml(const S& element, const Numbers& numbers, const S& format) {
  S points;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (std::isnan(numbers[i])) continue;
    points +=
        "<c:pt idx=\"" + std::to_string(i) + "\"><c:v>" + xlsx::xml::Number(numbers[i]) + "</c:v></c:pt>";
  }
  return "<c:" + element + "><c:numLit><c:formatCode>" + format + "</c:formatCode><c:ptCount val=\"" +
         std::to_string(numbers.size()) + "\"/>" + points + "</c:numLit></c:" + element + ">";
}

S CategoriesXml(const Texts& texts) {
  S xml = "<c:cat><c:strLit><c:ptCount val=\"" + std::to_string(texts.size()) + "\"/>";
  for (std::size_t i = 0; i < texts.size(); ++i) {
    xml += "<c:pt idx=\"" + std::to_string(i) + "\"><c:v>" + texts[i] + "</c:v></c:pt>";
  }
  return xml + "</c:strLit></c:cat>";
}

S LevelsXml(int count, const std::vector<std::vector<std::pair<int, S>>>& levels) {
  S xml = "<c:cat><c:multiLvlStrRef><c:f>Sheet1!$A$1:$B$4</c:f><c:multiLvlStrCache><c:ptCount val=\"" +
          std::to_string(count) + "\"/>";
  for (const auto& level : levels) {
    xml += "<c:lvl>";
    for (const auto& [index, text] : level) {
      xml += "<c:pt idx=\"" + std::to_string(index) + "\"><c:v>" + text + "</c:v></c:pt>";
    }
    xml += "</c:lvl>";
  }
  return xml + "</c:multiLvlStrCache></c:multiLvlStrRef></c:cat>";
}

S SeriesXml(int index, const Numbers& values, const S& more, const S& behind, const S& categories) {
  const S number = std::to_string(index);
  return "<c:ser><c:idx val=\"" + number + "\"/><c:order val=\"" + number + "\"/><c:tx><c:v>Series " +
         number + "</c:v></c:tx>" + more + categories + NumbersXml("val", values) + behind + "</c:ser>";
}

S PointsXml(int index, const Numbers& x, const Numbers& y, const S& more, const S& behind) {
  const S number = std::to_string(index);
  return "<c:ser><c:idx val=\"" + number + "\"/><c:order val=\"" + number + "\"/>" + more +
         NumbersXml("xVal", x) + NumbersXml("yVal", y) + behind + "</c:ser>";
}

S AxesXml(const S& category, const S& value, bool horizontal) {
  return AxisXml("catAx", 1, 2, horizontal ? "l" : "b", category) +
         AxisXml("valAx", 2, 1, horizontal ? "b" : "l", value);
}

S ValueAxesXml(const S& x, const S& value) { return runtime::Replace(AxesXml(x, value), "catAx", "valAx"); }

S DateAxesXml(const S& category, const S& value) {
  return runtime::Replace(AxesXml(category, value), "catAx", "dateAx");
}

S DepthAxisXml() { return AxisXml("serAx", 3, 1, "b", ""); }

S ScalingXml(const S& least, const S& most, const S& more) {
  return "<c:scaling>" + more + "<c:max val=\"" + most + "\"/><c:min val=\"" + least + "\"/></c:scaling>";
}

S SolidXml(const S& color, const S& more) {
  return "<a:solidFill><a:srgbClr val=\"" + color + "\">" + more + "</a:srgbClr></a:solidFill>";
}

S LookXml(const S& fill, const S& line) {
  return "<c:spPr>" + fill + (line.empty() ? "" : "<a:ln w=\"25400\">" + line + "</a:ln>") + "</c:spPr>";
}

S BodyXml(const S& attributes) {
  return "<c:txPr><a:bodyPr " + attributes + "/><a:p><a:pPr><a:defRPr/></a:pPr></a:p></c:txPr>";
}

S TitleXml(const S& text, const S& more) {
  return "<c:title><c:tx><c:rich><a:bodyPr/><a:p><a:r><a:t>" + text + "</a:t></a:r></a:p></c:rich></c:tx>" +
         more + "</c:title>";
}

S LayoutXml(const S& mode, const S& x, const S& y, const S& more) {
  return "<c:layout><c:manualLayout><c:xMode val=\"" + mode + "\"/><c:yMode val=\"" + mode +
         "\"/><c:x val=\"" + x + "\"/><c:y val=\"" + y + "\"/>" + more + "</c:manualLayout></c:layout>";
}

S ColumnsXml(const S& series, const S& last, const S& grouping, const S& direction) {
  return GroupXml("barChart", "<c:barDir val=\"" + direction + "\"/><c:grouping val=\"" + grouping + "\"/>",
                  series, last);
}

S LinesXml(const S& series, const S& last, const S& grouping) {
  return GroupXml("lineChart", "<c:grouping val=\"" + grouping + "\"/>", series, last);
}

S GroupXml(const S& element, const S& first, const S& series, const S& last) {
  return "<c:" + element + ">" + first + series + last +
         "<c:axId val=\"1\"/><c:axId val=\"2\"/></c:" + element + ">";
}

S PlotXml(const S& content, const S& behind) {
  return "<c:autoTitleDeleted val=\"1\"/><c:plotArea>" + content + "</c:plotArea>" + behind;
}

S Plot3DXml(const S& view, const S& content, const S& behind) {
  return "<c:autoTitleDeleted val=\"1\"/><c:view3D>" + view + "</c:view3D><c:plotArea>" + content +
         "</c:plotArea>" + behind;
}

render::TextExtent EvenMeasure::Measure(std::string_view line, const render::Font& font) const {
  return {0.5 * font.size * static_cast<double>(runtime::Len(line)), 0.75 * font.size, 0.25 * font.size};
}

render::CairoFonts& DrawingTest::SharedFonts() {
  static render::CairoFonts fonts;
  return fonts;
}

Drawing DrawingTest::Draw(const S& chart, const S& behind, double width, double height) {
  return DrawPart(ChartPartXml(chart, behind), width, height);
}

Drawing DrawingTest::DrawPart(const S& part, double width, double height) {
  OpenChart(part);
  return DrawOpen(width, height);
}

void DrawingTest::OpenShapes(const S& anchors, const S& chart) {
  OpenChart(ChartPartXml(chart,
                         "<c:userShapes r:id=\"rId7\" "
                         "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"/>"),
            "<c:userShapes xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\" "
            "xmlns:cdr=\"http://schemas.openxmlformats.org/drawingml/2006/chartDrawing\" "
            "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\">" +
                anchors + "</c:userShapes>");
}

Drawing DrawingTest::DrawOpen(double width, double height) {
  notes_.clear();
  return render::DrawChart(*Book().Chart("/xl/charts/chart1.xml"), width, height, SharedFonts(), notes_);
}

std::vector<Item> ItemsOf(const Drawing& drawing, Role role, int series) {
  std::vector<Item> items;
  for (const Item& item : drawing.items) {
    if (item.tag.role == role && (series == 0 || item.tag.series == series)) items.push_back(item);
  }
  return items;
}

std::vector<Rect> BoxesOf(const Drawing& drawing, Role role, int series) {
  std::vector<Rect> boxes;
  for (const Item& item : ItemsOf(drawing, role, series)) boxes.push_back(BoundsOf(item));
  return boxes;
}

Texts TextsOf(const Drawing& drawing, Role role, int series) {
  Texts texts;
  for (const Item& item : ItemsOf(drawing, role, series)) {
    if (const auto* text = std::get_if<TextItem>(&item.content)) texts.push_back(text->text);
  }
  return texts;
}

Rect BoxOf(const Drawing& drawing, Role role, int series) {
  const auto boxes = BoxesOf(drawing, role, series);
  if (boxes.empty()) return {};
  Rect all = boxes.front();
  for (const Rect& box : boxes) all = Union(all, box);
  return all;
}

S FillOf(const Item& item) {
  const auto* path = std::get_if<PathItem>(&item.content);
  const auto* solid = path == nullptr ? nullptr : std::get_if<render::SolidFill>(&path->fill);
  return solid == nullptr ? "none" : HexOf(solid->color);
}

void ExpectNear(const Rect& actual, const Rect& expected, const S& what, double slack) {
  EXPECT_NEAR(actual.left, expected.left, slack) << what;
  EXPECT_NEAR(actual.top, expected.top, slack) << what;
  EXPECT_NEAR(actual.width, expected.width, slack) << what;
  EXPECT_NEAR(actual.height, expected.height, slack) << what;
}

S OverlapComplaints(const Drawing& drawing, Role role, double slack) {
  S complaints;
  std::vector<Item> items = ItemsOf(drawing, role);
  std::erase_if(items, [](const Item& item) { return !std::holds_alternative<TextItem>(item.content); });
  for (std::size_t i = 0; i < items.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (!Overlap(BoundsOf(items[i]), BoundsOf(items[j]), slack)) continue;
      complaints += std::get<TextItem>(items[j].content).text + " on " +
                    std::get<TextItem>(items[i].content).text + "\n";
    }
  }
  return complaints;
}

S DrawingComplaints(const Drawing& drawing) {
  S complaints;
  int clips = 0;
  for (const Item& item : drawing.items) {
    clips += std::holds_alternative<render::PushClip>(item.content);
    clips -= std::holds_alternative<render::PopClip>(item.content);
    if (clips < 0) complaints += "a clip ends that didn't begin\n";
    const Rect box = BoundsOf(item);
    if (!std::isfinite(box.left + box.top + box.width + box.height)) {
      complaints += "a " + S(NameOf(item.tag.role)) + " is nowhere\n";
    }
    const auto* text = std::get_if<TextItem>(&item.content);
    constexpr double kSlack = 1;  // points
    const bool outside = box.left < -kSlack || box.top < -kSlack || box.Right() > drawing.width + kSlack ||
                         box.Bottom() > drawing.height + kSlack;
    if (text != nullptr && outside) {
      complaints += S(NameOf(item.tag.role)) + " \"" + text->text + "\" leaves the chart\n";
    }
  }
  if (clips != 0) complaints += "a clip doesn't end\n";
  return complaints + LabelComplaints(drawing);
}

}  // namespace plotsmith::test
