#include "xlsx/sheet/SheetView.h"

#include <algorithm>

#include "xlsx/base/Limits.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"
#include "xlsx/sheet/SheetSplice.h"

namespace plotsmith::xlsx {
namespace {

/// Returns the first cell of a reference in an attribute, or `fallback` if the attribute is missing.
CellPlace CellIn(std::string_view attributes, std::string_view name, const CellPlace& fallback) {
  const auto range = ParseA1(AttributeIn(attributes, name));
  return range ? CellPlace{range->row1, range->column1} : fallback;
}

std::int32_t CountIn(std::string_view attributes, std::string_view name, std::int32_t most) {
  const auto count = xml::ParseInteger(AttributeIn(attributes, name)).value_or(0);
  return static_cast<std::int32_t>(std::clamp(count, 0LL, static_cast<long long>(most)));
}

void ReadPane(std::string_view attributes, SheetView& view) {
  view.topLeft = CellIn(attributes, "topLeftCell", view.topLeft);
  if (!AttributeIn(attributes, "state").starts_with("frozen")) return;  // A split is measured in points.
  view.frozenRows = CountIn(attributes, "ySplit", limits::kRows - 1);
  view.frozenColumns = CountIn(attributes, "xSplit", limits::kColumns - 1);
}

}  // namespace

SheetView ReadSheetView(Archive::Stream& part) {
  SheetView view;
  XmlStream stream(part);
  bool inView = false;
  std::string activePane = "topLeft";
  for (auto tag = stream.Next(); tag.kind != XmlStream::Kind::kEndOfInput; tag = stream.Next()) {
    if (tag.name == "sheetData" || (tag.kind == XmlStream::Kind::kEnd && tag.name == "sheetView")) break;
    if (tag.kind == XmlStream::Kind::kEnd) continue;
    if (tag.name == "sheetView") {
      inView = true;
      view.gridLines = BooleanIn(tag.attributes, kShowGridLines.name, kShowGridLines.ifAbsent);
      view.headings = BooleanIn(tag.attributes, kShowHeadings.name, kShowHeadings.ifAbsent);
      view.selected = BooleanIn(tag.attributes, kTabSelected.name, kTabSelected.ifAbsent);
      view.topLeft = CellIn(tag.attributes, "topLeftCell", view.topLeft);
      if (tag.kind == XmlStream::Kind::kEmpty) break;
    } else if (inView && tag.name == "pane") {
      const std::string pane = AttributeIn(tag.attributes, "activePane");
      if (!pane.empty()) activePane = pane;
      ReadPane(tag.attributes, view);
    } else if (inView && tag.name == "selection") {
      // Each pane has its own selection.
      const std::string pane = AttributeIn(tag.attributes, "pane");
      if (pane == activePane || (pane.empty() && activePane == "topLeft"))
        view.activeCell = CellIn(tag.attributes, "activeCell", view.activeCell);
    }
  }
  return view;
}

}  // namespace plotsmith::xlsx
