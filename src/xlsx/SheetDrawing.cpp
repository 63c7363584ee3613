#include "xlsx/SheetDrawing.h"

#include "runtime/Strings.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/ChartPart.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::string_view kAnchors[] = {"twoCellAnchor", "oneCellAnchor", "absoluteAnchor"};

std::string Marker(const std::string& prefix, std::string_view name, const GridLines& columns,
                   const GridLines& rows, double x, double y) {
  const auto [column, columnRest] = columns.IndexAt(x);
  const auto [row, rowRest] = rows.IndexAt(y);
  const auto element = [&](std::string_view local, long long value) {
    const std::string tag = prefix + std::string(local);
    return "<" + tag + ">" + std::to_string(value) + "</" + tag + ">";
  };
  const std::string tag = prefix + std::string(name);
  return "<" + tag + ">" + element("col", column) + element("colOff", Emu(columnRest)) + element("row", row) +
         element("rowOff", Emu(rowRest)) + "</" + tag + ">";
}

}  // namespace

std::string EmptyDrawing(bool strict) {
  const Namespaces& names = strict ? kStrict : kTransitional;
  return std::string(kXmlDeclaration) + "<xdr:wsDr xmlns:xdr=\"" + std::string(names.spreadsheetDrawing) +
         "\" xmlns:a=\"" + std::string(names.drawing) + "\"/>";
}

SheetDrawing::SheetDrawing(Worksheet& sheet, std::string part) : sheet_(sheet), part_(std::move(part)) {
  InPart(part_, [&] { xml::Parse(document_, sheet.Book().Package().Read(part_)); });
  ForEachAnchor(xml::Root(document_), kAnchors, [this](pugi::xml_node anchor, pugi::xml_node object) {
    shapes_.push_back(std::make_shared<SheetShape>(*this, anchor, object));
  });
}

SheetDrawing::~SheetDrawing() = default;

std::shared_ptr<SheetShape> SheetDrawing::FindShape(std::string_view name) const {
  for (const auto& shape : shapes_) {
    if (runtime::EqualsIgnoreCase(shape->Name(), name)) return shape;
  }
  return nullptr;
}

std::string SheetDrawing::FreeName(const std::string& stem, std::size_t number) const {
  for (;; ++number) {
    std::string name = stem + std::to_string(number);
    if (!FindShape(name)) return name;
  }
}

std::shared_ptr<SheetShape> SheetDrawing::AddAnchor(const Frame& frame, const std::string& object) {
  pugi::xml_node root = xml::Root(document_);
  const std::string prefix(xml::Prefix(root.name()));
  const Namespaces& names = sheet_.Book().IsStrict() ? kStrict : kTransitional;
  const SheetGeometry& geometry = sheet_.Geometry();
  const std::string xml =
      "<" + prefix + "twoCellAnchor>" +
      Marker(prefix, "from", geometry.columns, geometry.rows, frame.left, frame.top) +
      Marker(prefix, "to", geometry.columns, geometry.rows, frame.Right(), frame.Bottom()) +
      Prefixed(object, prefix, xml::EnsurePrefix(root, names.drawing, "a")) + "<" + prefix +
      "clientData/></" + prefix + "twoCellAnchor>";
  root.append_buffer(xml.data(), xml.size(), pugi::parse_default & ~pugi::parse_escapes, pugi::encoding_utf8);
  const pugi::xml_node anchor = root.last_child();
  changed_ = true;
  return shapes_.emplace_back(std::make_shared<SheetShape>(*this, anchor, ObjectOf(anchor)));
}

std::shared_ptr<SheetShape> SheetDrawing::AddTextbox(const Frame& frame) {
  const unsigned id = NextShapeId(xml::Root(document_));
  return AddAnchor(
      frame, TextboxTemplate(id, FreeName("TextBox ", id), frame,
                             R"(<~solidFill><~srgbClr val="FFFFFF"/></~solidFill><~ln w="9525"><~solidFill>)"
                             R"(<~srgbClr val="000000"/></~solidFill></~ln>)"));
}

std::shared_ptr<SheetShape> SheetDrawing::AddAutoShape(std::string_view name, std::string_view preset,
                                                       const Frame& frame) {
  const unsigned id = NextShapeId(xml::Root(document_));
  return AddAnchor(frame, AutoShapeTemplate(id, FreeName(std::string(name) + " ", id), frame, preset));
}

std::shared_ptr<SheetShape> SheetDrawing::AddChart(const Frame& frame) {
  Workbook& book = sheet_.Book();
  const Namespaces& names = book.IsStrict() ? kStrict : kTransitional;
  const std::string chartPart = book.Package().FreeName(book.Folder() + "charts/chart", ".xml");
  book.Package().Add(chartPart, content_type::kChart, EmptyChart(book.IsStrict()));
  const std::string link = book.Package().AddRelationship(part_, names.RelationshipType("chart"), chartPart);
  return AddAnchor(
      frame,
      R"(<@graphicFrame macro=""><@nvGraphicFramePr><@cNvPr id=")" +
          std::to_string(NextShapeId(xml::Root(document_))) + R"(" name=")" +
          FreeName("Chart ", shapes_.size() + 1) +
          R"("/><@cNvGraphicFramePr/></@nvGraphicFramePr><@xfrm><~off x="0" y="0"/><~ext cx="0" cy="0"/></@xfrm>)"
          R"(<~graphic><~graphicData uri=")" +
          std::string(names.chart) + R"("><c:chart xmlns:c=")" + std::string(names.chart) + R"(" xmlns:r=")" +
          std::string(names.relationships) + R"(" r:id=")" + link +
          R"("/></~graphicData></~graphic></@graphicFrame>)");
}

void SheetDrawing::Remove(const SheetShape& shape) {
  pugi::xml_node anchor = shape.Anchor();
  std::erase_if(shapes_, [&](const auto& other) { return other.get() == &shape; });
  anchor.parent().remove_child(anchor);
  changed_ = true;
}

void SheetDrawing::Write() {
  if (!changed_) return;
  sheet_.Book().Package().Replace(part_, xml::Serialize(document_));
  changed_ = false;
}

}  // namespace plotsmith::xlsx
