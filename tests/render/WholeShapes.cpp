#include "tests/render/WholeCharts.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::test {
namespace {

using S = std::string;

/// A shape on the chart in a cell of a grid of 6 by 5.
S ShapeXml(int cell, const S& form, const S& adjustments = "", const S& more = "", const S& text = "") {
  const double left = cell % 6 / 6.0, top = cell / 6 / 5.0;
  const auto corner = [](double x, double y) {
    return "<cdr:x>" + xlsx::xml::Number(x) + "</cdr:x><cdr:y>" + xlsx::xml::Number(y) + "</cdr:y>";
  };
  return "<cdr:relSizeAnchor><cdr:from>" + corner(left + 0.01, top + 0.01) + "</cdr:from><cdr:to>" +
         corner(left + 0.15, top + 0.18) +
         "</cdr:to><cdr:sp><cdr:nvSpPr><cdr:cNvPr id=\"2\" name=\"Sign\"/><cdr:cNvSpPr/>"
         "</cdr:nvSpPr><cdr:spPr><a:prstGeom prst=\"" +
         form + "\"><a:avLst>" + adjustments + "</a:avLst></a:prstGeom>" + more + "</cdr:spPr>" + text +
         "</cdr:sp></cdr:relSizeAnchor>";
}
/// Returns adjustments for the form of a cell.
S Adjustments(int cell) {
  const S value = "\" fmla=\"val " + std::to_string(10000 + 1000 * cell) + "\"/>";
  return "<a:gd name=\"adj" + value + "<a:gd name=\"adj1" + value +
         "<a:gd name=\"adj2\" fmla=\"val 40000\"/><a:gd name=\"other\" fmla=\"val 1\"/>"
         "<a:gd name=\"adj\" fmla=\"*/ 1 2 3\"/>";
}

}  // namespace

std::string AllFormsXml(bool adjusted) {
  S xml;
  int cell = 0;
  for (const char* form : {"rect",     "roundRect",  "ellipse", "line",          "straightConnector1",
                           "triangle", "rtTriangle", "diamond", "parallelogram", "trapezoid",
                           "hexagon",  "octagon",    "plus",    "pentagon",      "star4",
                           "star5",    "homePlate",  "chevron", "rightArrow",    "leftArrow",
                           "upArrow",  "downArrow",  "can",     "donut",         "sun"}) {
    xml += ShapeXml(cell, form, adjusted ? Adjustments(cell) : "",
                    "<a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill><a:ln w=\"12700\"><a:solidFill>"
                    "<a:srgbClr val=\"0000FF\"/></a:solidFill></a:ln>");
    ++cell;
  }
  return xml;
}
std::string ShapeTextsXml() {
  struct {
    S box, paragraph, run;
  } const kTexts[] = {
      {"", "", ""},
      {"anchor=\"ctr\"", "algn=\"ctr\"", "b=\"1\" sz=\"700\""},
      {"anchor=\"b\" wrap=\"none\"", "algn=\"r\"", "sz=\"900\" i=\"1\" u=\"sng\""},
      {"lIns=\"0\" tIns=\"0\" rIns=\"0\" bIns=\"0\" wrap=\"none\"", "algn=\"dist\"", "u=\"none\""},
      {"vert=\"vert\"", "", "sz=\"600\""},
      {"vert=\"vert270\"", "algn=\"ctr\"", "sz=\"600\""},
      {"rot=\"1800000\"", "", "sz=\"50\""},
      {"anchor=\"b\" lIns=\"127000\" bIns=\"63500\"", "algn=\"r\"", "sz=\"600\""},
  };
  S xml;
  int cell = 0;
  for (const auto& [box, paragraph, run] : kTexts) {
    xml += ShapeXml(
        cell, "rect", "", cell % 2 == 0 ? "<a:solidFill><a:srgbClr val=\"00B050\"/></a:solidFill>" : "",
        "<cdr:txBody><a:bodyPr " + box + "/><a:p><a:pPr " + paragraph + "/><a:r><a:rPr " + run +
            "><a:solidFill><a:srgbClr val=\"C00000\"/></a:solidFill><a:latin typeface=\"Arial\"/></a:rPr>"
            "<a:t>North and</a:t></a:r><a:br/><a:r><a:rPr/><a:t>East</a:t></a:r></a:p><a:p><a:r><a:t>End"
            "</a:t></a:r></a:p></cdr:txBody>");
    ++cell;
  }
  return xml;
}

}  // namespace plotsmith::test
