#include "xlsx/chart/rules/AutomaticLayout.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartText.h"
#include "xlsx/chart/rules/ChartTextLook.h"
#include "xlsx/chart/rules/LegendLines.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/TextMetrics.h"
#include "xlsx/numberformat/NumberFormat.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

// Further estimated constants, like those in the header; lengths are in points.
constexpr double kLegendPadding = 8;  // around all entries together
constexpr double kKeyEms = 2.4;       // ems; the width of a legend key with the gaps around it

/// The typeface at the beginning of an element's text.
TextFace FaceOf(ChartPart& part, pugi::xml_node element, TextRole role) {
  const TextLook look = LooksOf(part, element, role).front();
  return {look.typeface, look.points, look.bold};
}

/// Returns the space that a title takes perpendicular to its text, in points; 0 if the title overlays the
/// plot area.
double TitleDepth(ChartPart& part, pugi::xml_node title, TextRole role, double room) {
  if (!title || schema::BooleanVal(title, "overlay", false)) return 0;
  const TextFace face = FaceOf(part, title, role);
  const std::string text = TitleText(part, title);
  double lines = 0;
  for (std::string_view rest = text;;) {
    const auto end = rest.find('\n');
    const double width = TextWidth(rest.substr(0, end), face);
    lines += std::max(1.0, std::ceil(width / std::max(room * kTitleShare, 1.0)));
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
  return lines * LineHeight(face) + kTitlePadding;
}

/// Adds the space of the legend to the taken space.
void SetLegendAside(ChartPart& part, const Frame& chart, Edges& taken) {
  const auto legend = xml::Child(part.Chart(), "legend");
  if (!legend || schema::BooleanVal(legend, "overlay", false)) return;
  const TextFace face = FaceOf(part, legend, TextRole::kOther);
  double widest = 0, all = 0;
  for (const std::string& text : LegendTexts(part)) {
    const double width = TextWidth(text, face) + kKeyEms * face.size;
    widest = std::max(widest, width);
    all += width;
  }
  const std::string position = schema::Val(legend, "legendPos", kLegendPositions.absent);
  if (position == "t" || position == "b") {
    const double rows = std::max(1.0, std::ceil(all / std::max(chart.width - 2 * kChartInset, 1.0)));
    (position == "t" ? taken.top : taken.bottom) += rows * LineHeight(face) + kLegendPadding;
  } else {
    (position == "l" ? taken.left : taken.right) += widest + kLegendPadding;
  }
}

double& SideOf(Edges& edges, std::string_view position) {
  if (position == "l") return edges.left;
  if (position == "r") return edges.right;
  return position == "t" ? edges.top : edges.bottom;
}

template <class Visit>
void ForEachAxis(ChartPart& part, const Visit& visit) {
  for (const pugi::xml_node& axis : part.PlotArea().children()) {
    if (!schema::IsAxis(axis) || schema::BooleanVal(axis, "delete", false)) continue;
    const std::string side = schema::Val(axis, "axPos", xml::Is(axis, "valAx") ? "l" : "b");
    visit(axis, side, side == "l" || side == "r");
  }
}

/// Returns the texts along an axis: the categories, or the smallest and the largest value.
std::vector<std::string> LabelsOf(ChartPart& part, pugi::xml_node axis) {
  std::vector<std::string> labels;
  if (xml::Is(axis, "serAx")) return labels;
  const bool values = xml::Is(axis, "valAx");
  double least = 0, most = 0;
  for (const pugi::xml_node& series : SeriesOf(part)) {
    for (const auto& [point, text] : CachedTexts(values ? FindValues(series) : xml::Child(series, "cat"))) {
      if (!values) labels.push_back(text);
      const double value = xml::ParseDouble(text).value_or(0);
      least = std::min(least, value);
      most = std::max(most, value);
    }
    if (!labels.empty()) break;
  }
  if (!values) return labels;
  auto format = NumberFormat::Parse(xml::Attribute(xml::Child(axis, "numFmt"), "formatCode", "General"));
  if (!format) format = NumberFormat::Parse("General");
  for (const double value : {least, most}) {
    format->AppendNumber(labels.emplace_back(), value, part.Book().Dates());
  }
  return labels;
}

}  // namespace

Frame AutomaticPlotArea(ChartPart& part, const Frame& chart) {
  Edges taken{kChartInset, kChartInset, kChartInset, kChartInset};
  const double title =
      TitleDepth(part, xml::Child(part.Chart(), "title"), TextRole::kChartTitle, chart.width);
  if (title > 0) taken.top += title + kTitleGap;
  SetLegendAside(part, chart, taken);
  ForEachAxis(part, [&](pugi::xml_node axis, const std::string& side, bool upright) {
    SideOf(taken, side) += TitleDepth(part, xml::Child(axis, "title"), TextRole::kAxisTitle,
                                      upright ? chart.height : chart.width);
  });
  return {taken.left, taken.top, std::max(chart.width - taken.left - taken.right, kLeastShare * chart.width),
          std::max(chart.height - taken.top - taken.bottom, kLeastShare * chart.height)};
}

Edges TickLabelRoom(ChartPart& part) {
  Edges room;
  ForEachAxis(part, [&](pugi::xml_node axis, const std::string& side, bool upright) {
    if (schema::Val(axis, "tickLblPos", "nextTo") == "none") return;
    const TextFace face = FaceOf(part, axis, TextRole::kOther);
    double depth = LineHeight(face);
    if (upright) {
      depth = 0;
      for (const std::string& label : LabelsOf(part, axis)) depth = std::max(depth, TextWidth(label, face));
    }
    SideOf(room, side) += depth + kLabelGap;
  });
  return room;
}

}  // namespace plotsmith::xlsx
