#include "xlsx/chart/rules/ChartText.h"

#include "host/excel/Constants.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/TextBody.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

std::string TitleText(ChartPart& part, pugi::xml_node title) {
  const auto tx = xml::Child(title, "tx");
  if (const auto rich = xml::Child(tx, "rich")) return BodyText(rich);
  return SourceText(part, tx);
}

std::optional<std::string> ShownTitle(ChartPart& part) {
  const auto title = xml::Child(part.Chart(), "title");
  if (title && xml::Child(title, "tx")) return TitleText(part, title);
  if (!title && schema::BooleanVal(part.Chart(), "autoTitleDeleted", false)) return std::nullopt;
  const auto series = SeriesOf(part);
  if (series.size() == 1) {
    const std::string name = SeriesName(part, series[0]);
    if (title || !name.empty()) return name.empty() ? "Chart Title" : name;
  }
  return title ? std::optional<std::string>("Chart Title") : std::nullopt;
}

void SetTitleText(pugi::xml_node title, std::string_view text) {
  pugi::xml_node tx = schema::Ensure(title, "tx");
  schema::Remove(tx, "strRef");
  const bool fresh = !xml::Child(tx, "rich");
  pugi::xml_node rich = schema::Ensure(tx, "rich");
  pugi::xml_node first = EnsureParagraph(rich);
  if (fresh) {
    // A title that shows a cell's text has its format in text properties.
    if (const auto own = xml::Child(title, "txPr")) {
      rich.remove_children();
      for (const pugi::xml_node& child : own.children()) rich.append_copy(child);
      first = EnsureParagraph(rich);
      schema::Remove(first, "endParaRPr");
    }
  }
  schema::Remove(title, "txPr");

  if (!xml::Child(first, "r", "rPr") && !xml::Child(first, "endParaRPr")) {
    xml::SetAttribute(schema::Ensure(first, "endParaRPr"), "lang", "en-US");
  }
  SetBodyText(rich, text);
}

std::vector<pugi::xml_node> TextBodies(pugi::xml_node element) {
  const auto rich = xml::Child(element, "tx", "rich");
  const pugi::xml_node body = rich ? rich : schema::Ensure(element, "txPr");
  EnsureParagraph(body);
  for (const pugi::xml_node& paragraph : xml::Children(body, "p")) {
    if (!rich && !xml::Child(paragraph, "endParaRPr")) {
      xml::SetAttribute(schema::Ensure(paragraph, "endParaRPr"), "lang", "en-US");
    }
  }
  std::vector<pugi::xml_node> bodies = {body};
  for (const pugi::xml_node& label : xml::Children(element, "dLbl")) {
    if (!xml::Child(label, "tx") && !xml::Child(label, "txPr")) continue;
    const auto own = TextBodies(label);
    bodies.insert(bodies.end(), own.begin(), own.end());
  }
  return bodies;
}

bool SetTextOrientation(pugi::xml_node body, std::int32_t orientation) {
  std::int32_t degrees = 0;
  std::string_view direction = "horz";
  switch (orientation) {
    case excel::xlHorizontal:
      break;
    case excel::xlUpward:
      degrees = 90;
      break;
    case excel::xlDownward:
      degrees = -90;
      break;
    case excel::xlVertical:
      direction = "wordArtVert";
      break;
    default:
      if (orientation < -90 || orientation > 90) return false;
      degrees = orientation;
  }
  const pugi::xml_node properties = schema::Ensure(body, "bodyPr");
  // The file counts clockwise, in units of 1/60,000 degree.
  xml::SetAttribute(properties, "rot", std::to_string(-degrees * 60000));
  xml::SetAttribute(properties, "vert", direction);
  return true;
}

}  // namespace plotsmith::xlsx
