#include "xlsx/Drawing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "runtime/Strings.h"
#include "xlsx/ChartPart.h"
#include "xlsx/FreeNumber.h"
#include "xlsx/Namespaces.h"
#include "xlsx/Shape.h"
#include "xlsx/Worksheet.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr double kEmuPerPoint = 12700;

/// Writers put what only newer programs know beside what all know; Excel takes the first choice that it
/// knows, and so do we.
pugi::xml_node Chosen(pugi::xml_node node) {
  if (!xml::Is(node, "AlternateContent")) return node;
  const auto choice = xml::Child(node, "Choice");
  return choice ? choice : xml::Child(node, "Fallback");
}

constexpr std::string_view kAnchors[] = {"twoCellAnchor", "oneCellAnchor", "absoluteAnchor"};
constexpr std::string_view kObjects[] = {"sp", "grpSp", "graphicFrame", "cxnSp", "pic", "contentPart"};

template <class Names>
bool IsOneOf(pugi::xml_node node, const Names& names) {
  return std::find(std::begin(names), std::end(names), xml::LocalName(node)) != std::end(names);
}

pugi::xml_node ObjectOf(pugi::xml_node anchor) {
  for (const pugi::xml_node& child : anchor.children()) {
    if (IsOneOf(child, kObjects)) return child;
    if (xml::Is(child, "AlternateContent")) {
      if (const auto object = ObjectOf(Chosen(child))) return object;
    }
  }
  return {};
}

std::string Marker(const std::string& prefix, std::string_view name, const GridLines& columns,
                   const GridLines& rows, double x, double y) {
  const auto [column, columnRest] = columns.IndexAt(x);
  const auto [row, rowRest] = rows.IndexAt(y);
  const auto element = [&](std::string_view local, long long value) {
    const std::string tag = prefix + std::string(local);
    return "<" + tag + ">" + std::to_string(value) + "</" + tag + ">";
  };
  const std::string tag = prefix + std::string(name);
  return "<" + tag + ">" + element("col", column) +
         element("colOff", std::llround(columnRest * kEmuPerPoint)) + element("row", row) +
         element("rowOff", std::llround(rowRest * kEmuPerPoint)) + "</" + tag + ">";
}

/// "p:name" for each "@name" and "a:name" for each "~name" of a template.
std::string Prefixed(std::string text, const std::string& prefix, const std::string& drawingMl) {
  text = runtime::Replace(text, "@", prefix);
  return runtime::Replace(text, "~", drawingMl);
}

}  // namespace

std::string EmptyDrawing(bool strict) {
  const Namespaces& names = strict ? kStrict : kTransitional;
  return std::string(kXmlDeclaration) + "<xdr:wsDr xmlns:xdr=\"" + std::string(names.spreadsheetDrawing) +
         "\" xmlns:a=\"" + std::string(names.drawing) + "\"/>";
}

Drawing::Drawing(Worksheet& sheet, std::string part) : sheet_(sheet), part_(std::move(part)) {
  InPart(part_, [&] { xml::Parse(document_, sheet.Book().Package().Read(part_)); });
  Collect(xml::Root(document_));
}

Drawing::~Drawing() = default;

void Drawing::Collect(pugi::xml_node parent) {
  for (const pugi::xml_node& child : parent.children()) {
    if (IsOneOf(child, kAnchors)) {
      if (const auto object = ObjectOf(child))
        shapes_.push_back(std::make_shared<Shape>(*this, child, object));
    } else if (xml::Is(child, "AlternateContent")) {
      Collect(Chosen(child));
    }
  }
}

std::shared_ptr<Shape> Drawing::FindShape(std::string_view name) const {
  for (const auto& shape : shapes_) {
    if (runtime::EqualsIgnoreCase(shape->Name(), name)) return shape;
  }
  return nullptr;
}

std::string Drawing::Prefix() const { return std::string(xml::Prefix(xml::Root(document_).name())); }

std::string Drawing::DrawingMlPrefix() const {
  const Namespaces& names = sheet_.Book().IsStrict() ? kStrict : kTransitional;
  return xml::EnsurePrefix(xml::Root(document_), names.drawing, "a");
}

unsigned Drawing::NextId() const {
  struct Walker : pugi::xml_tree_walker {
    std::set<long long> taken;
    bool for_each(pugi::xml_node& node) override {
      if (xml::Is(node, "cNvPr")) taken.insert(xml::IntegerAttribute(node, "id", 0));
      return true;
    }
  } walker;
  const_cast<pugi::xml_document&>(document_).traverse(walker);
  constexpr long long kFirst = 2;  // Excel's
  return static_cast<unsigned>(FreeNumber(walker.taken, kFirst, std::numeric_limits<std::int32_t>::max()));
}

std::string Drawing::FreeName(const std::string& stem, std::size_t number) const {
  for (;; ++number) {
    std::string name = stem + std::to_string(number);
    if (!FindShape(name)) return name;
  }
}

std::shared_ptr<Shape> Drawing::AddAnchor(double left, double top, double width, double height,
                                          const std::string& object) {
  const std::string prefix = Prefix();
  const SheetGeometry& geometry = sheet_.Geometry();
  const std::string xml = "<" + prefix + "twoCellAnchor>" +
                          Marker(prefix, "from", geometry.columns, geometry.rows, left, top) +
                          Marker(prefix, "to", geometry.columns, geometry.rows, left + width, top + height) +
                          object + "<" + prefix + "clientData/></" + prefix + "twoCellAnchor>";
  pugi::xml_node root = xml::Root(document_);
  root.append_buffer(xml.data(), xml.size(), pugi::parse_default & ~pugi::parse_escapes, pugi::encoding_utf8);
  const pugi::xml_node anchor = root.last_child();
  changed_ = true;
  return shapes_.emplace_back(std::make_shared<Shape>(*this, anchor, ObjectOf(anchor)));
}

std::shared_ptr<Shape> Drawing::AddTextbox(double left, double top, double width, double height) {
  const unsigned number = NextId();
  const std::string id = std::to_string(number);
  const auto emu = [](double points) { return std::to_string(std::llround(points * kEmuPerPoint)); };
  const std::string object = Prefixed(
      R"(<@sp macro="" textlink=""><@nvSpPr><@cNvPr id=")" + id + R"(" name=")" +
          FreeName("TextBox ", number) + R"("/><@cNvSpPr txBox="1"/></@nvSpPr><@spPr><~xfrm><~off x=")" +
          emu(left) + R"(" y=")" + emu(top) + R"("/><~ext cx=")" + emu(width) + R"(" cy=")" + emu(height) +
          R"("/></~xfrm><~prstGeom prst="rect"><~avLst/></~prstGeom><~solidFill><~srgbClr val="FFFFFF"/></~solidFill>)"
          R"(<~ln w="9525"><~solidFill><~srgbClr val="000000"/></~solidFill></~ln></@spPr>)"
          R"(<@txBody><~bodyPr vertOverflow="clip" wrap="square" rtlCol="0"/><~lstStyle/>)"
          R"(<~p><~endParaRPr lang="en-US" sz="1100"><~latin typeface="+mn-lt"/></~endParaRPr></~p></@txBody></@sp>)",
      Prefix(), DrawingMlPrefix());
  return AddAnchor(left, top, width, height, object);
}

std::shared_ptr<Shape> Drawing::AddChart(double left, double top, double width, double height) {
  Workbook& book = sheet_.Book();
  const Namespaces& names = book.IsStrict() ? kStrict : kTransitional;
  const std::string chartPart = book.Package().FreeName(book.Folder() + "charts/chart", ".xml");
  book.Package().Add(chartPart, content_type::kChart, EmptyChart(book.IsStrict()));
  const std::string link = book.Package().AddRelationship(part_, names.RelationshipType("chart"), chartPart);
  const std::string id = std::to_string(NextId());
  const std::string object = Prefixed(
      R"(<@graphicFrame macro=""><@nvGraphicFramePr><@cNvPr id=")" + id + R"(" name=")" +
          FreeName("Chart ", shapes_.size() + 1) +
          R"("/><@cNvGraphicFramePr/></@nvGraphicFramePr><@xfrm><~off x="0" y="0"/><~ext cx="0" cy="0"/></@xfrm>)"
          R"(<~graphic><~graphicData uri=")" +
          std::string(names.chart) + R"("><c:chart xmlns:c=")" + std::string(names.chart) + R"(" xmlns:r=")" +
          std::string(names.relationships) + R"(" r:id=")" + link +
          R"("/></~graphicData></~graphic></@graphicFrame>)",
      Prefix(), DrawingMlPrefix());
  return AddAnchor(left, top, width, height, object);
}

void Drawing::Remove(const Shape& shape) {
  pugi::xml_node anchor = shape.Anchor();
  std::erase_if(shapes_, [&](const auto& other) { return other.get() == &shape; });
  anchor.parent().remove_child(anchor);
  changed_ = true;
}

void Drawing::Write() {
  if (!changed_) return;
  sheet_.Book().Package().Replace(part_, xml::Serialize(document_));
  changed_ = false;
}

}  // namespace plotsmith::xlsx
