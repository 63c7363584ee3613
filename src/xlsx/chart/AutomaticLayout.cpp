#include "xlsx/chart/AutomaticLayout.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "xlsx/Workbook.h"
#include "xlsx/chart/ChartPart.h"
#include "xlsx/chart/PlotGroups.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/TextMetrics.h"
#include "xlsx/numberformat/NumberFormat.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr double kTextSize = 10;       // of what says nothing else
constexpr double kTitleSize = 18;      // of the chart's title, bold
constexpr double kTitlePadding = 7.2;  // above and below a title's text together
constexpr double kTitleGrowth = 1.2;   // of the title over the other texts, where those have a size
constexpr double kTitleShare = 0.8;    // of the chart's width, before a title breaks
constexpr double kLabelGap = 5;        // between an axis and its labels
constexpr double kLegendPadding = 8;
constexpr double kKeyEms = 2.4;  // a legend key with the gaps around it
constexpr double kLeastShare = 0.1;

/// The default run properties of a text body's first paragraph.
pugi::xml_node DefaultsOf(pugi::xml_node body) {
  return schema::Find(schema::Find(schema::Find(body, "p"), "pPr"), "defRPr");
}

/// How an element's text is set: by its first run, by its own default, by the chart's.
TextFace FaceOf(ChartPart& part, pugi::xml_node element, double usual, bool bold, double growth = 1) {
  const auto rich = schema::Find(schema::Find(element, "tx"), "rich");
  const auto run = schema::Find(schema::Find(schema::Find(rich, "p"), "r"), "rPr");
  const auto whole = DefaultsOf(schema::Find(part.Space(), "txPr"));
  TextFace face{"+mn-lt", usual, bold};
  const auto take = [&](pugi::xml_node properties, double factor) {
    if (properties.attribute("sz")) face.size = xml::NumberAttribute(properties, "sz", 0) / 100 * factor;
    face.bold = xml::BooleanAttribute(properties, "b", face.bold);
    face.font = xml::Attribute(schema::Find(properties, "latin"), "typeface", face.font);
  };
  take(whole, growth);
  take(DefaultsOf(rich ? rich : schema::Find(element, "txPr")), 1);
  take(run, 1);
  face.font = part.Theme().Typeface(face.font);
  return face;
}

std::vector<std::string> CachedTexts(pugi::xml_node source) {
  std::vector<std::string> texts;
  for (const pugi::xml_node& reference : source.children()) {
    if (xml::Is(reference, "v")) texts.push_back(xml::Text(reference));
    for (const pugi::xml_node& cache : reference.children()) {
      for (const pugi::xml_node& point : xml::Children(cache, "pt"))
        texts.push_back(xml::Text(xml::Child(point, "v")));
    }
    for (const pugi::xml_node& point : xml::Children(reference, "pt"))
      texts.push_back(xml::Text(xml::Child(point, "v")));
  }
  return texts;
}

/// The lines of a title's text.
std::vector<std::string> Lines(pugi::xml_node title) {
  const auto tx = schema::Find(title, "tx");
  const auto rich = schema::Find(tx, "rich");
  if (!rich) return CachedTexts(tx);
  std::vector<std::string> lines;
  for (const pugi::xml_node& paragraph : xml::Children(rich, "p")) {
    std::string& line = lines.emplace_back();
    for (const pugi::xml_node& run : xml::Children(paragraph, "r")) line += xml::Text(xml::Child(run, "t"));
  }
  return lines;
}

/// What a title takes of the chart across its text; nothing if it lies over the plot area.
double TitleDepth(pugi::xml_node title, const TextFace& face, double room) {
  if (!title || schema::BooleanVal(title, "overlay", false)) return 0;
  double lines = 0;
  for (const std::string& line : Lines(title)) {
    lines += std::max(1.0, std::ceil(TextWidth(line, face) / std::max(room * kTitleShare, 1.0)));
  }
  return std::max(lines, 1.0) * LineHeight(face) + kTitlePadding;
}

std::vector<double> EntryWidths(ChartPart& part, const TextFace& face) {
  std::vector<double> widths;
  for (const pugi::xml_node& series : SeriesOf(part)) {
    const auto name = CachedTexts(schema::Find(series, "tx"));
    widths.push_back(TextWidth(name.empty() ? "Series1" : name[0], face) + kKeyEms * face.size);
  }
  return widths;
}

/// Takes the legend's room from the free one.
void SetLegendAside(ChartPart& part, const Frame& chart, Edges& taken) {
  const auto legend = schema::Find(part.Chart(), "legend");
  if (!legend || schema::BooleanVal(legend, "overlay", false)) return;
  const TextFace face = FaceOf(part, legend, kTextSize, false);
  double widest = 0, all = 0;
  for (const double width : EntryWidths(part, face)) {
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

/// The texts along an axis: the categories, or the least and the greatest value.
std::vector<std::string> LabelsOf(ChartPart& part, pugi::xml_node axis) {
  std::vector<std::string> labels;
  if (xml::Is(axis, "serAx")) return labels;
  const bool values = xml::Is(axis, "valAx");
  double least = 0, most = 0;
  for (const pugi::xml_node& series : SeriesOf(part)) {
    if (!values) {
      labels = CachedTexts(schema::Find(series, "cat"));
      if (!labels.empty()) break;
      continue;
    }
    for (const char* source : {"val", "yVal"}) {
      for (const std::string& text : CachedTexts(schema::Find(series, source))) {
        const double value = xml::ParseDouble(text).value_or(0);
        least = std::min(least, value);
        most = std::max(most, value);
      }
    }
  }
  if (!values) return labels;
  auto format = NumberFormat::Parse(xml::Attribute(schema::Find(axis, "numFmt"), "formatCode", "General"));
  if (!format) format = NumberFormat::Parse("General");
  for (const double value : {least, most}) {
    format->AppendNumber(labels.emplace_back(), value, part.Book().Dates());
  }
  return labels;
}

}  // namespace

Frame AutomaticPlotArea(ChartPart& part, const Frame& chart) {
  Edges taken{kChartInset, kChartInset, kChartInset, kChartInset};
  const auto title = schema::Find(part.Chart(), "title");
  taken.top += TitleDepth(title, FaceOf(part, title, kTitleSize, true, kTitleGrowth), chart.width);
  SetLegendAside(part, chart, taken);
  ForEachAxis(part, [&](pugi::xml_node axis, const std::string& side, bool upright) {
    const auto text = schema::Find(axis, "title");
    SideOf(taken, side) +=
        TitleDepth(text, FaceOf(part, text, kTextSize, true), upright ? chart.height : chart.width);
  });
  return {taken.left, taken.top, std::max(chart.width - taken.left - taken.right, kLeastShare * chart.width),
          std::max(chart.height - taken.top - taken.bottom, kLeastShare * chart.height)};
}

Edges TickLabelRoom(ChartPart& part) {
  Edges room;
  ForEachAxis(part, [&](pugi::xml_node axis, const std::string& side, bool upright) {
    if (schema::Val(axis, "tickLblPos", "nextTo") == "none") return;
    const TextFace face = FaceOf(part, axis, kTextSize, false);
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
