#include <cstdlib>
#include <fstream>
#include <map>

#include "tests/render/DrawingTest.h"
#include "tests/render/WholeCharts.h"
#include "tests/support/Paths.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith {
namespace {

using namespace test;

/// Returns a number with one decimal.
S Short(double value) { return xlsx::xml::Number(std::floor(value * 10 + 0.5 + 1e-6) / 10 + 0.0); }
S Place(Point at) { return Short(at.x) + "," + Short(at.y); }

S WordsOf(const render::Path& path) {
  using Kind = PathStep::Kind;
  S words;
  for (const auto& step : path.Steps()) {
    if (step.kind == Kind::kMove) words += " M" + Place(step.to);
    if (step.kind == Kind::kLine) words += " " + Place(step.to);
    if (step.kind == Kind::kCurve)
      words += " C" + Place(step.control1) + " " + Place(step.control2) + " " + Place(step.to);
    if (step.kind == Kind::kClose) words += "Z";
  }
  return words;
}

S WordsOf(const render::Color& color) {
  return HexOf(color) + (color.alpha < 1 ? "@" + Short(100 * color.alpha) : "");
}

S WordsOf(const render::Fill& fill) {
  if (const auto* solid = std::get_if<render::SolidFill>(&fill)) return WordsOf(solid->color);
  if (const auto* pattern = std::get_if<render::PatternFill>(&fill)) return pattern->preset;
  if (const auto* gradient = std::get_if<render::GradientFill>(&fill)) {
    S words = gradient->radial ? "radial" + Place(gradient->focus) : "linear" + Short(gradient->angle);
    for (const auto& stop : gradient->stops)
      words += "-" + Short(100 * stop.position) + "%" + WordsOf(stop.color);
    return words;
  }
  return std::holds_alternative<std::monostate>(fill) ? "none" : "picture";
}

S WordsOf(const render::Stroke& stroke) {
  if (stroke.width == 0) return "";
  S words = "/" + WordsOf(stroke.color) + "*" + Short(stroke.width);
  for (const double dash : stroke.dashes) words += "-" + Short(dash);
  return words;
}

/// Returns the look of an item and its place.
std::pair<S, S> WordsOf(const Item& item) {
  if (const auto* path = std::get_if<PathItem>(&item.content))
    return {WordsOf(path->fill) + WordsOf(path->stroke), WordsOf(path->path)};
  if (const auto* text = std::get_if<TextItem>(&item.content)) {
    constexpr const char* kAligns[] = {"<", "|", ">"};
    const S look = WordsOf(text->color) + "~" + Short(text->font.size) + (text->font.bold ? "b" : "") +
                   (text->font.italic ? "i" : "") + (text->font.underline ? "u" : "") +
                   (text->font.family == "Calibri" ? "" : text->font.family) +
                   kAligns[static_cast<int>(text->align)] +
                   (text->rotation == 0 ? "" : Short(text->rotation));
    return {look, " '" + text->text + "'" + Place(text->anchor)};
  }
  if (const auto* clip = std::get_if<render::PushClip>(&item.content))
    return {"", " clip" + WordsOf(clip->path)};
  if (const auto* shadow = std::get_if<render::ShadowItem>(&item.content))
    return {WordsOf(shadow->color) + "*" + Short(shadow->lineWidth) + "%" + Short(shadow->blur),
            WordsOf(shadow->path)};
  return {"", std::holds_alternative<render::PopClip>(item.content) ? " end" : " image"};
}

/// Returns a drawing as text: a line for each element of the chart, with its items. A look in braces applies
/// up to the next one.
S WordsOf(const Drawing& drawing) {
  S words, element, look;
  for (const Item& item : drawing.items) {
    const S of = S(NameOf(item.tag.role)) + " " + std::to_string(item.tag.series);
    if (of != element) words += "\n" + of + ":";
    element = of;
    const auto [itsLook, place] = WordsOf(item);
    if (itsLook != look && !itsLook.empty()) words += " {" + itsLook + "}";
    if (!itsLook.empty()) look = itsLook;
    words += (item.tag.point == 0 ? "" : " " + std::to_string(item.tag.point)) + place;
  }
  return words.substr(1) + "\n";
}

class WholeDrawingsTest : public DrawingTest {};

/// The drawings are in a file, a section for each chart. With PLOTSMITH_WRITE_DRAWINGS set, the test writes
/// it again.
TEST_F(WholeDrawingsTest, AreAsTheyWere) {
  const S path = S(kSourceFolder) + "/tests/render/drawings.txt";
  std::map<S, S> expected;
  std::ifstream file(path);
  for (S line, section; std::getline(file, line);) {
    if (line.starts_with("# "))
      section = line.substr(2);
    else
      expected[section] += line + "\n";
  }
  const EvenMeasure measure;
  std::map<S, S> drawn;
  for (const auto& [name, chart] : WholeCharts()) {
    if (chart.shapes.empty()) {
      OpenChart(ChartPartXml(chart.chart));
    } else {
      OpenShapes(chart.shapes, chart.chart);
    }
    notes_.clear();
    drawn[name] =
        WordsOf(render::DrawChart(*Book().Chart("/xl/charts/chart1.xml"), 384, 270, measure, notes_));
    for (const S& note : notes_) drawn[name] += note + "\n";
  }
  if (std::getenv("PLOTSMITH_WRITE_DRAWINGS") != nullptr) {
    std::ofstream out(path);
    for (const auto& [name, words] : drawn) out << "# " << name << "\n" << words;
    return;
  }
  for (const auto& [name, words] : drawn) EXPECT_EQ(words, expected[name]) << name;
  EXPECT_EQ(drawn.size(), expected.size());
}

}  // namespace
}  // namespace plotsmith
