#include "tests/support/PlainBook.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <list>
#include <stdexcept>

#include "runtime/Strings.h"
#include "xlsx/package/Archive.h"

namespace plotsmith::test {
namespace {

const std::string kMain = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
const std::string kRel = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
const std::string kDrawing = "http://schemas.openxmlformats.org/drawingml/2006/";
const std::string kPackage = "http://schemas.openxmlformats.org/package/2006/";
const std::string kType = "application/vnd.openxmlformats-officedocument.";

std::string Escaped(const std::string& text) {
  using runtime::Replace;
  return Replace(Replace(Replace(text, "&", "&amp;"), "<", "&lt;"), "\"", "&quot;");
}

std::string Letters(int column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters;
}

std::string DigitsOf(double value) {
  std::array<char, 32> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

std::string Relationships(const std::vector<std::pair<std::string, std::string>>& typesAndTargets) {
  std::string xml = "<?xml version=\"1.0\"?><Relationships xmlns=\"" + kPackage + "relationships\">";
  int id = 0;
  for (const auto& [type, target] : typesAndTargets) {
    xml += "<Relationship Id=\"rId" + std::to_string(++id) + "\" Type=\"" + kRel + "/" + type +
           "\" Target=\"" + target + "\"/>";
  }
  return xml + "</Relationships>";
}

std::string Anchor(const PlainFrame& frame, int number) {
  const auto corner = [](const std::string& name, int column, int row) {
    return "<xdr:" + name + "><xdr:col>" + std::to_string(column) +
           "</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>" + std::to_string(row) +
           "</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:" + name + ">";
  };
  const std::string n = std::to_string(number);
  return "<xdr:twoCellAnchor>" + corner("from", frame.column, frame.row) +
         corner("to", frame.column + frame.width, frame.row + frame.height) +
         "<xdr:graphicFrame macro=\"\"><xdr:nvGraphicFramePr><xdr:cNvPr id=\"" + std::to_string(number + 1) +
         "\" name=\"Chart " + n + "\" descr=\"" + Escaped(frame.alternativeText) +
         "\"/><xdr:cNvGraphicFramePr/></xdr:nvGraphicFramePr><xdr:xfrm><a:off x=\"0\" y=\"0\"/>"
         "<a:ext cx=\"0\" cy=\"0\"/></xdr:xfrm><a:graphic><a:graphicData uri=\"" +
         kDrawing + "chart\"><c:chart xmlns:c=\"" + kDrawing + "chart\" r:id=\"rId" + n +
         "\"/></a:graphicData></a:graphic></xdr:graphicFrame><xdr:clientData/></xdr:twoCellAnchor>";
}

}  // namespace

std::string EmptyFrameChart() {
  return "<?xml version=\"1.0\"?><c:chartSpace xmlns:c=\"" + kDrawing + "chart\" xmlns:a=\"" + kDrawing +
         "main\"><c:chart><c:plotArea><c:layout/></c:plotArea><c:plotVisOnly val=\"1\"/></c:chart>"
         "<c:spPr><a:noFill/></c:spPr></c:chartSpace>";
}

PlainSheet& PlainBook::Sheet(const std::string& name) {
  const auto found =
      std::find_if(sheets.begin(), sheets.end(), [&](const auto& sheet) { return sheet.name == name; });
  if (found == sheets.end()) throw std::logic_error("no sheet " + name);
  return *found;
}

void PlainBook::AddDefinitions(const std::vector<std::string>& definitions) {
  PlainSheet sheet{"VEX_ChartDefinitions"};
  sheet.state = "veryHidden";
  sheet.rows.push_back({std::string("Plotsmith Version 2.0")});
  for (const std::string& definition : definitions) sheet.rows.push_back({definition});
  sheets.push_back(std::move(sheet));
}

void PlainBook::Write(const std::string& path) const {
  std::list<std::string> kept;  // The writer keeps views until the end.
  std::vector<std::pair<std::string, std::string*>> parts;
  const auto add = [&](const std::string& name, std::string bytes) {
    kept.push_back(std::move(bytes));
    parts.emplace_back(name, &kept.back());
  };
  std::vector<std::string> strings;
  const auto sharedIndex = [&](const std::string& text) {
    const auto found = std::find(strings.begin(), strings.end(), text);
    if (found != strings.end()) return found - strings.begin();
    strings.push_back(text);
    return static_cast<std::ptrdiff_t>(strings.size()) - 1;
  };

  std::string types =
      "<?xml version=\"1.0\"?><Types xmlns=\"" + kPackage +
      "content-types\"><Default Extension=\"rels\" ContentType=\"application/vnd.openxmlformats-package."
      "relationships+xml\"/><Default Extension=\"xml\" ContentType=\"application/xml\"/>"
      "<Default Extension=\"bin\" ContentType=\"application/octet-stream\"/>";
  const auto type = [&](const std::string& part, const std::string& suffix) {
    types += "<Override PartName=\"/" + part + "\" ContentType=\"" + kType + suffix + "+xml\"/>";
  };
  type("xl/workbook.xml", "spreadsheetml.sheet.main");

  std::string sheetList;
  std::vector<std::pair<std::string, std::string>> bookLinks;
  int sheetNumber = 0, chartNumber = 0;
  for (const PlainSheet& sheet : sheets) {
    const std::string n = std::to_string(++sheetNumber);
    const std::string part = "xl/worksheets/sheet" + n + ".xml";
    type(part, "spreadsheetml.worksheet");
    bookLinks.emplace_back("worksheet", "worksheets/sheet" + n + ".xml");
    sheetList += "<sheet name=\"" + Escaped(sheet.name) + "\" sheetId=\"" + n + "\" " +
                 (sheet.state.empty() ? "" : "state=\"" + sheet.state + "\" ") + "r:id=\"rId" + n + "\"/>";
    std::string xml = "<?xml version=\"1.0\"?><worksheet xmlns=\"" + kMain + "\" xmlns:r=\"" + kRel + "\">" +
                      sheet.beforeData + "<sheetData>";
    for (std::size_t i = 0; i < sheet.rows.size(); ++i) {
      const std::string row = std::to_string(sheet.top + static_cast<int>(i));
      xml += "<row r=\"" + row + "\">";
      for (std::size_t j = 0; j < sheet.rows[i].size(); ++j) {
        const PlainCell& cell = sheet.rows[i][j];
        const std::string start = "<c r=\"" + Letters(sheet.left + static_cast<int>(j)) + row + "\"";
        if (const auto* number = std::get_if<double>(&cell)) {
          xml += start + "><v>" + DigitsOf(*number) + "</v></c>";
        } else if (const auto* raw = std::get_if<RawCell>(&cell)) {
          xml += start + raw->xml;
        } else if (const auto* text = std::get_if<std::string>(&cell)) {
          xml += sharedStrings ? start + " t=\"s\"><v>" + std::to_string(sharedIndex(*text)) + "</v></c>"
                               : start + " t=\"inlineStr\"><is><t>" + Escaped(*text) + "</t></is></c>";
        }
      }
      xml += "</row>";
    }
    xml += "</sheetData>";
    const bool drawn = !sheet.frames.empty() || !sheet.extraAnchors.empty();
    if (drawn) xml += "<drawing r:id=\"rId1\"/>";
    add(part, xml + sheet.afterData + "</worksheet>");
    if (!drawn) continue;
    const std::string drawing = "drawings/drawing" + n + ".xml";
    add("xl/worksheets/_rels/sheet" + n + ".xml.rels", Relationships({{"drawing", "../" + drawing}}));
    type("xl/" + drawing, "drawing");
    std::string anchors;
    std::vector<std::pair<std::string, std::string>> chartLinks;
    for (const PlainFrame& frame : sheet.frames) {
      const std::string chart = "charts/chart" + std::to_string(++chartNumber) + ".xml";
      chartLinks.emplace_back("chart", "../" + chart);
      anchors += Anchor(frame, static_cast<int>(chartLinks.size()));
      type("xl/" + chart, "drawingml.chart");
      add("xl/" + chart, frame.chartXml.empty() ? EmptyFrameChart() : frame.chartXml);
    }
    add("xl/" + drawing, "<?xml version=\"1.0\"?><xdr:wsDr xmlns:xdr=\"" + kDrawing +
                             "spreadsheetDrawing\" xmlns:a=\"" + kDrawing + "main\" xmlns:r=\"" + kRel +
                             "\">" + anchors + sheet.extraAnchors + "</xdr:wsDr>");
    add("xl/drawings/_rels/drawing" + n + ".xml.rels", Relationships(chartLinks));
  }

  if (sharedStrings) {
    std::string xml = "<?xml version=\"1.0\"?><sst xmlns=\"" + kMain + "\">";
    for (const std::string& text : strings) xml += "<si><t>" + Escaped(text) + "</t></si>";
    add("xl/sharedStrings.xml", xml + "</sst>");
    type("xl/sharedStrings.xml", "spreadsheetml.sharedStrings");
    bookLinks.emplace_back("sharedStrings", "sharedStrings.xml");
  }
  if (!styles.empty()) {
    add("xl/styles.xml", styles);
    type("xl/styles.xml", "spreadsheetml.styles");
    bookLinks.emplace_back("styles", "styles.xml");
  }
  std::string nameList;
  for (const auto& [name, refersTo] : names) {
    nameList += "<definedName name=\"" + Escaped(name) + "\">" + Escaped(refersTo) + "</definedName>";
  }
  if (!nameList.empty()) nameList = "<definedNames>" + nameList + "</definedNames>";
  add("xl/workbook.xml", "<?xml version=\"1.0\"?><workbook xmlns=\"" + kMain + "\" xmlns:r=\"" + kRel +
                             "\">" + workbookExtra + "<sheets>" + sheetList + "</sheets>" + nameList +
                             "</workbook>");
  add("xl/_rels/workbook.xml.rels", Relationships(bookLinks));
  add("_rels/.rels", Relationships({{"officeDocument", "xl/workbook.xml"}}));
  for (const auto& [name, bytes] : extraParts) add(name, bytes);
  add("[Content_Types].xml", types + "</Types>");

  xlsx::ArchiveWriter writer(path);
  for (auto it = parts.rbegin(); it != parts.rend(); ++it) writer.Add(it->first, *it->second);
  writer.Finish();
}

}  // namespace plotsmith::test
