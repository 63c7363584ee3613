#include "xlsx/sheet/SheetSplice.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
#include "xlsx/package/XmlTags.h"

namespace plotsmith::xlsx {
namespace {

constexpr const char* kNoCells = "it has no element for its cells";

/// Finds the next start tag of an element in the head, which is everything before the cells.
std::optional<XmlTag> FindInHead(std::string_view text, std::string_view local) {
  for (auto tag = NextTag(text, 0); tag; tag = NextTag(text, tag->span.end)) {
    if (tag->kind != XmlTag::Kind::kEnd && xml::LocalName(tag->name) == local) return tag;
    if (xml::LocalName(tag->name) == "sheetData") break;
  }
  return std::nullopt;
}

/// Finds the whole sheetData element and its prefix.
std::pair<TextSpan, std::string> FindSheetData(std::string_view text) {
  const auto tag = FindInHead(text, "sheetData");
  if (!tag) throw PackageError(kNoCells);
  TextSpan span = tag->span;
  const std::string prefix(xml::Prefix(tag->name));
  if (tag->kind == XmlTag::Kind::kEmpty) return {span, prefix};
  const auto at = text.find("</" + prefix + "sheetData", span.end);
  const auto end = at == std::string_view::npos ? at : text.find('>', at);
  if (end == std::string_view::npos) throw PackageError("its XML is damaged");
  span.end = end + 1;
  return {span, prefix};
}

/// Returns the position of an attribute of a view or, if it is missing, the position at which Excel writes
/// it: before the view's window attribute.
TextSpan PlaceOfAttribute(std::string_view part, const XmlTag& view, std::string_view name) {
  if (const TextSpan found = FindAttribute(part, view, name); found.Found()) return found;
  const TextSpan window = FindAttribute(part, view, "workbookViewId");
  const std::size_t place = window.Found() ? window.begin : view.span.begin + 1 + view.name.size();
  return {place, place};
}

/// Adds a view with the attribute to a sheet that has no view.
void InsertView(std::string& part, const std::string& attribute) {
  const auto root = NextTag(part, 0);
  if (!root || root->kind != XmlTag::Kind::kStart) throw PackageError(kNoCells);
  const XmlTag behind = FindChild(part, root->span.end, [](const XmlTag& tag) {
    const std::string_view local = xml::LocalName(tag.name);
    return local == "sheetFormatPr" || local == "cols" || local == "sheetData";
  });
  if (behind.kind == XmlTag::Kind::kEnd) throw PackageError(kNoCells);
  const std::string prefix(xml::Prefix(root->name));
  part.insert(behind.span.begin, "<" + prefix + "sheetViews><" + prefix + "sheetView" + attribute +
                                     " workbookViewId=\"0\"/></" + prefix + "sheetViews>");
}

}  // namespace

void ReplaceSheetData(std::string& part, const std::function<std::string(const std::string&)>& sheetData,
                      const CellRange& used) {
  const auto [data, prefix] = FindSheetData(part);
  const auto dimension = FindInHead(part, "dimension");
  const TextSpan ref = dimension ? FindAttribute(part, *dimension, "ref") : TextSpan();
  part.replace(data.begin, data.end - data.begin, sheetData(prefix));  // The dimension is before the cells.
  if (!ref.Found()) return;
  std::string address = CellAddress(used.row1, used.column1);
  if (used.CellCount() > 1) address += ":" + CellAddress(used.row2, used.column2);
  part.replace(ref.begin, ref.end - ref.begin, " ref=\"" + address + "\"");
}

void SetDrawingLink(std::string& part, std::string_view relationships, std::string_view id) {
  static constexpr std::array<std::string_view, 10> kBehind = {
      "legacyDrawing", "legacyDrawingHF", "drawingHF",  "picture", "oleObjects",
      "controls",      "webPublishItems", "tableParts", "extLst",  "AlternateContent"};
  const auto [data, prefix] = FindSheetData(part);
  RemoveChildren(part, data.end, [](const XmlTag& tag) { return xml::LocalName(tag.name) == "drawing"; });
  const XmlTag behind = FindChild(part, data.end, [](const XmlTag& tag) {
    return std::find(kBehind.begin(), kBehind.end(), xml::LocalName(tag.name)) != kBehind.end();
  });
  part.insert(behind.span.begin, "<" + prefix + "drawing xmlns:r=\"" + std::string(relationships) +
                                     "\" r:id=\"" + xml::EncodeAttribute(id) + "\"/>");
}

bool SetViewSetting(std::string& part, const ViewSetting& setting, bool value) {
  const auto view = FindInHead(part, "sheetView");
  const bool before = view ? BooleanIn(view->attributes, setting.name, setting.ifAbsent) : setting.ifAbsent;
  if (value == before) return false;
  const std::string attribute =
      value == setting.ifAbsent ? "" : " " + std::string(setting.name) + (value ? "=\"1\"" : "=\"0\"");
  if (view) {
    const TextSpan place = PlaceOfAttribute(part, *view, setting.name);
    part.replace(place.begin, place.end - place.begin, attribute);
  } else {
    InsertView(part, attribute);
  }
  return true;
}

}  // namespace plotsmith::xlsx
