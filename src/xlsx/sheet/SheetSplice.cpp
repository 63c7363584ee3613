#include "xlsx/sheet/SheetSplice.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"

namespace plotsmith::xlsx {
namespace {

/// A stretch of a text, the end outside.
struct Span {
  std::size_t begin = std::string::npos;
  std::size_t end = std::string::npos;
  bool Found() const { return begin != std::string::npos; }
};

struct Tag {
  enum class Kind { kStart, kEnd, kEmpty };
  Span span;
  Kind kind = Kind::kStart;
  std::string_view name;
};

/// The next tag from a place on; comments, instructions and character data hold none.
std::optional<Tag> NextTag(std::string_view text, std::size_t from) {
  constexpr std::pair<std::string_view, std::string_view> kOther[] = {
      {"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
  for (auto i = text.find('<', from); i != std::string_view::npos; i = text.find('<', i)) {
    const std::string_view rest = text.substr(i);
    const auto other = std::find_if(std::begin(kOther), std::end(kOther),
                                    [&](const auto& form) { return rest.starts_with(form.first); });
    if (other != std::end(kOther)) {
      i = text.find(other->second, i + other->first.size());
      continue;
    }
    std::size_t end = i + 1;
    for (char quote = 0; end < text.size() && (quote != 0 || text[end] != '>'); ++end) {
      if (quote != 0) {
        if (text[end] == quote) quote = 0;
      } else if (text[end] == '"' || text[end] == '\'') {
        quote = text[end];
      }
    }
    if (end == text.size()) break;
    Tag tag{{i, end + 1}};
    tag.kind = text[i + 1] == '/'     ? Tag::Kind::kEnd
               : text[end - 1] == '/' ? Tag::Kind::kEmpty
                                      : Tag::Kind::kStart;
    const std::size_t nameBegin = i + (tag.kind == Tag::Kind::kEnd ? 2 : 1);
    tag.name = text.substr(nameBegin, text.find_first_of(" \t\r\n/>", nameBegin) - nameBegin);
    return tag;
  }
  return std::nullopt;
}

/// The next start of an element, up to where the cells begin.
std::optional<Tag> FindInHead(std::string_view text, std::string_view local) {
  for (auto tag = NextTag(text, 0); tag; tag = NextTag(text, tag->span.end)) {
    if (tag->kind != Tag::Kind::kEnd && xml::LocalName(tag->name) == local) return tag;
    if (xml::LocalName(tag->name) == "sheetData") break;
  }
  return std::nullopt;
}

/// The first of the root's own children, from behind one of them on, of which `wanted` is true of its local
/// name; else the root's end tag.
template <class Wanted>
Tag FindChild(std::string_view text, std::size_t from, const Wanted& wanted) {
  int depth = 0;
  for (auto tag = NextTag(text, from); tag; tag = NextTag(text, tag->span.end)) {
    if (depth == 0 && (tag->kind == Tag::Kind::kEnd || wanted(xml::LocalName(tag->name)))) return *tag;
    if (tag->kind == Tag::Kind::kStart) ++depth;
    if (tag->kind == Tag::Kind::kEnd) --depth;
  }
  throw PackageError("its XML is damaged");
}

/// The whole sheetData element, and its prefix.
std::pair<Span, std::string> FindSheetData(std::string_view text) {
  const auto tag = FindInHead(text, "sheetData");
  if (!tag) throw PackageError("it has no cells where they should be");
  Span span = tag->span;
  const std::string prefix(xml::Prefix(tag->name));
  if (tag->kind == Tag::Kind::kEmpty) return {span, prefix};
  const auto at = text.find("</" + prefix + "sheetData", span.end);
  const auto end = at == std::string_view::npos ? at : text.find('>', at);
  if (end == std::string_view::npos) throw PackageError("its XML is damaged");
  span.end = end + 1;
  return {span, prefix};
}

/// An attribute inside a tag, from the blank before it to behind its closing quote.
Span FindAttribute(std::string_view text, const Span& tag, std::string_view name) {
  constexpr std::string_view kBlanks = " \t\r\n";
  for (std::size_t from = tag.begin;;) {
    const auto equals = text.find('=', from);
    const auto open = text.find_first_of("\"'", equals);
    if (equals >= tag.end || open >= tag.end) return {};
    const auto nameEnd = text.find_last_not_of(kBlanks, equals - 1) + 1;
    const auto blank = text.find_last_of(kBlanks, nameEnd - 1);
    const auto close = text.find(text[open], open + 1);
    if (text.substr(blank + 1, nameEnd - blank - 1) == name) return {blank, close + 1};
    from = close + 1;
  }
}

}  // namespace

void ReplaceSheetData(std::string& part, const std::function<std::string(const std::string&)>& sheetData,
                      const CellRange& used) {
  const auto [data, prefix] = FindSheetData(part);
  part.replace(data.begin, data.end - data.begin, sheetData(prefix));
  const auto dimension = FindInHead(std::string_view(part).substr(0, data.begin), "dimension");
  const Span ref = dimension ? FindAttribute(part, dimension->span, "ref") : Span();
  if (!ref.Found()) return;
  std::string address = CellAddress(used.row1, used.column1, false);
  if (used.CellCount() > 1) address += ":" + CellAddress(used.row2, used.column2, false);
  part.replace(ref.begin, ref.end - ref.begin, " ref=\"" + address + "\"");
}

void InsertDrawingLink(std::string& part, std::string_view relationships, std::string_view id) {
  static constexpr std::array<std::string_view, 10> kBehind = {
      "legacyDrawing", "legacyDrawingHF", "drawingHF",  "picture", "oleObjects",
      "controls",      "webPublishItems", "tableParts", "extLst",  "AlternateContent"};
  const auto [data, prefix] = FindSheetData(part);
  const Tag behind = FindChild(part, data.end, [](std::string_view local) {
    return std::find(kBehind.begin(), kBehind.end(), local) != kBehind.end();
  });
  part.insert(behind.span.begin, "<" + prefix + "drawing xmlns:r=\"" + std::string(relationships) +
                                     "\" r:id=\"" + xml::EncodeAttribute(id) + "\"/>");
}

bool SelectTab(std::string& part, bool selected) {
  if (const auto view = FindInHead(part, "sheetView")) {
    const std::size_t nameEnd = view->span.begin + 1 + view->name.size();
    const std::string was =
        AttributeIn(std::string_view(part).substr(nameEnd, view->span.end - nameEnd), "tabSelected");
    if (selected == (was == "1" || was == "true")) return false;
    Span place = FindAttribute(part, view->span, "tabSelected");
    if (!place.Found()) place = {nameEnd, nameEnd};
    part.replace(place.begin, place.end - place.begin, selected ? " tabSelected=\"1\"" : "");
    return true;
  }
  const auto root = NextTag(part, 0);
  if (!selected || !root || root->kind != Tag::Kind::kStart) return false;
  const Tag behind = FindChild(part, root->span.end, [](std::string_view local) {
    return local == "sheetFormatPr" || local == "cols" || local == "sheetData";
  });
  const std::string open = "<" + std::string(xml::Prefix(root->name));
  part.insert(behind.span.begin, open + "sheetViews>" + open +
                                     "sheetView tabSelected=\"1\" workbookViewId=\"0\"/></" + open.substr(1) +
                                     "sheetViews>");
  return true;
}

}  // namespace plotsmith::xlsx
