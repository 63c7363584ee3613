#include "xlsx/SheetSplice.h"

#include <algorithm>
#include <array>

#include "xlsx/PackageError.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {
namespace {

/// A stretch of a text, the end outside.
struct Span {
  std::size_t begin = std::string::npos;
  std::size_t end = std::string::npos;
  bool Found() const { return begin != std::string::npos; }
};

/// The next start tag of an element outside of comments, from a place on.
Span FindStartTag(std::string_view text, std::string_view local, std::size_t from) {
  for (std::size_t i = text.find('<', from); i != std::string_view::npos; i = text.find('<', i + 1)) {
    if (text.substr(i).starts_with("<!--")) {
      i = text.find("-->", i);
      if (i == std::string_view::npos) break;
      continue;
    }
    const auto nameEnd = text.find_first_of(" \t\r\n/>", i + 1);
    if (nameEnd == std::string_view::npos) break;
    if (xml::LocalName(text.substr(i + 1, nameEnd - i - 1)) != local) continue;
    const auto close = text.find('>', nameEnd);
    if (close == std::string_view::npos) break;
    return {i, close + 1};
  }
  return {};
}

std::string PrefixOfTag(std::string_view text, const Span& tag) {
  const auto nameEnd = text.find_first_of(" \t\r\n/>", tag.begin + 1);
  return std::string(xml::Prefix(text.substr(tag.begin + 1, nameEnd - tag.begin - 1)));
}

/// The whole sheetData element.
Span FindSheetData(std::string_view text) {
  Span span = FindStartTag(text, "sheetData", 0);
  if (!span.Found()) throw PackageError("it has no cells where they should be");
  if (text[span.end - 2] == '/') return span;
  const std::string close = "</" + PrefixOfTag(text, span) + "sheetData";
  const auto at = text.find(close, span.end);
  const auto end = at == std::string_view::npos ? at : text.find('>', at);
  if (end == std::string_view::npos) throw PackageError("its XML is damaged");
  span.end = end + 1;
  return span;
}

}  // namespace

void ReplaceSheetData(std::string& part, const std::function<std::string(const std::string&)>& sheetData,
                      const CellRange& used) {
  const Span data = FindSheetData(part);
  part.replace(data.begin, data.end - data.begin, sheetData(PrefixOfTag(part, data)));
  const Span dimension = FindStartTag(part, "dimension", 0);
  if (!dimension.Found() || dimension.begin > data.begin) return;
  const auto open = part.find("ref=", dimension.begin);
  if (open >= dimension.end) return;
  const auto close = part.find(part[open + 4], open + 5);
  std::string address = CellAddress(used.row1, used.column1, false);
  if (used.CellCount() > 1) address += ":" + CellAddress(used.row2, used.column2, false);
  if (close < dimension.end) part.replace(open + 5, close - open - 5, address);
}

void InsertDrawingLink(std::string& part, std::string_view relationships, std::string_view id) {
  static constexpr std::array<std::string_view, 10> kBehind = {
      "legacyDrawing", "legacyDrawingHF", "drawingHF",  "picture", "oleObjects",
      "controls",      "webPublishItems", "tableParts", "extLst",  "AlternateContent"};
  const Span data = FindSheetData(part);
  auto at = part.rfind("</");
  for (const std::string_view name : kBehind) {
    const Span tag = FindStartTag(part, name, data.end);
    if (tag.Found()) at = std::min(at, tag.begin);
  }
  part.insert(at, "<" + PrefixOfTag(part, data) + "drawing xmlns:r=\"" + std::string(relationships) +
                      "\" r:id=\"" + xml::EncodeAttribute(id) + "\"/>");
}

}  // namespace plotsmith::xlsx
