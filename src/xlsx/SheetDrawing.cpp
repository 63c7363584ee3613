#include "xlsx/SheetDrawing.h"

#include "xlsx/Worksheet.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::string_view kAnchors[] = {"twoCellAnchor", "oneCellAnchor", "absoluteAnchor"};

}  // namespace

std::string EmptyDrawing(bool strict) {
  const Namespaces& names = strict ? kStrict : kTransitional;
  return std::string(kXmlDeclaration) + "<xdr:wsDr xmlns:xdr=\"" + std::string(names.spreadsheetDrawing) +
         "\" xmlns:a=\"" + std::string(names.drawing) + "\"/>";
}

SheetDrawing::SheetDrawing(Worksheet& sheet, std::string part) : sheet_(sheet) {
  part_ = std::move(part);
  InPart(part_, [&] { xml::Parse(document_, sheet.Book().Package().Read(part_)); });
  ForEachAnchor(xml::Root(document_), kAnchors, [this](pugi::xml_node anchor, pugi::xml_node object) {
    shapes_.push_back(std::make_shared<SheetShape>(*this, anchor, object));
  });
}

SheetDrawing::~SheetDrawing() = default;

std::shared_ptr<SheetShape> SheetDrawing::AddAnchor(const Frame& frame, const std::string& object) {
  const pugi::xml_node root = xml::Root(document_);
  const Namespaces& names = sheet_.Book().Vocabulary();
  const std::string corner = "<@col>0</@col><@colOff>0</@colOff><@row>0</@row><@rowOff>0</@rowOff>";
  const pugi::xml_node anchor =
      AppendTemplate(root,
                     "<@twoCellAnchor><@from>" + corner + "</@from><@to>" + corner + "</@to>" + object +
                         "<@clientData/></@twoCellAnchor>",
                     std::string(xml::Prefix(root.name())), xml::EnsurePrefix(root, names.drawing, "a"));
  auto shape = std::make_shared<SheetShape>(*this, anchor, ObjectOf(anchor));
  shape->Place(frame);
  return shapes_.emplace_back(std::move(shape));
}

// The number in the name of a new shape is its id. Names that Excel gave rarely conflict with it, because
// their number is one less than the id.

std::shared_ptr<SheetShape> SheetDrawing::AddTextbox(const Frame& frame) {
  const unsigned id = NextShapeId(xml::Root(document_));
  return AddAnchor(
      frame, TextboxTemplate(id, FreeName("TextBox", id),
                             R"(<~solidFill><~srgbClr val="FFFFFF"/></~solidFill><~ln w="9525"><~solidFill>)"
                             R"(<~srgbClr val="000000"/></~solidFill></~ln>)"));
}

std::shared_ptr<SheetShape> SheetDrawing::AddAutoShape(std::string_view name, std::string_view preset,
                                                       const Frame& frame) {
  const unsigned id = NextShapeId(xml::Root(document_));
  return AddAnchor(frame, AutoShapeTemplate(id, FreeName(name, id), preset));
}

std::shared_ptr<SheetShape> SheetDrawing::AddChart(const Frame& frame) {
  Workbook& book = sheet_.Book();
  const Namespaces& names = book.Vocabulary();
  const std::string chartPart = book.Package().FreeName(book.Folder() + "charts/chart", ".xml");
  book.Package().Add(chartPart, content_type::kChart, EmptyChart(book.IsStrict()));
  const auto chart = book.Charts().At(chartPart);
  chart->FollowMovedRows();
  chart->MarkChanged();
  const std::string link = book.Package().AddRelationship(part_, names.RelationshipType("chart"), chartPart);
  return AddAnchor(
      frame,
      R"(<@graphicFrame macro=""><@nvGraphicFramePr><@cNvPr id=")" +
          std::to_string(NextShapeId(xml::Root(document_))) + R"(" name=")" +
          FreeName("Chart", shapes_.size() + 1) +
          R"("/><@cNvGraphicFramePr/></@nvGraphicFramePr><@xfrm><~off x="0" y="0"/><~ext cx="0" cy="0"/></@xfrm>)"
          R"(<~graphic><~graphicData uri=")" +
          std::string(names.chart) + R"("><c:chart xmlns:c=")" + std::string(names.chart) + R"(" xmlns:r=")" +
          std::string(names.relationships) + R"(" r:id=")" + link +
          R"("/></~graphicData></~graphic></@graphicFrame>)");
}

void SheetDrawing::RemoveRelationships(const std::set<std::string>& ids) {
  sheet_.Book().Charts().RemoveRelationships(part_, ids);
}

void SheetDrawing::Write() {
  if (!changed_) return;
  sheet_.Book().Package().Replace(part_, xml::Serialize(document_));
  changed_ = false;
}

}  // namespace plotsmith::xlsx
