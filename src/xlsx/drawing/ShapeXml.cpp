#include "xlsx/drawing/ShapeXml.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>

#include "runtime/Strings.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/FreeNumber.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

/// Returns the element itself. If it has alternatives for newer and older programs, returns the first
/// alternative that is supported, as Excel does.
pugi::xml_node Chosen(pugi::xml_node node) {
  const auto choice = xml::Child(node, "Choice");
  return choice ? choice : xml::Child(node, "Fallback");
}

constexpr std::array<std::string_view, 6> kObjects = {"sp",    "grpSp", "graphicFrame",
                                                      "cxnSp", "pic",   "contentPart"};

bool IsOneOf(pugi::xml_node node, std::span<const std::string_view> names) {
  return std::find(names.begin(), names.end(), xml::LocalName(node)) != names.end();
}

/// Returns the identity and the geometry, which are the first elements of all new objects.
std::string Start(std::string_view kind, unsigned id, std::string_view name, std::string_view properties) {
  return "<@nv" + std::string(kind) + "><@cNvPr id=\"" + std::to_string(id) + "\" name=\"" +
         xml::EncodeAttribute(name) + "\"/>" + std::string(properties) + "</@nv" + std::string(kind) + ">";
}

std::string Pair(std::string_view element, const char* first, const char* second, double x, double y) {
  return "<~" + std::string(element) + " " + first + "=\"" + std::to_string(Emu(x)) + "\" " + second + "=\"" +
         std::to_string(Emu(y)) + "\"/>";
}

constexpr std::string_view kNoPlace = R"(<~off x="0" y="0"/><~ext cx="0" cy="0"/>)";

std::string Form(std::string_view preset) {
  return "<~xfrm>" + std::string(kNoPlace) + "</~xfrm><~prstGeom prst=\"" + std::string(preset) +
         "\"><~avLst/></~prstGeom>";
}

}  // namespace

long long Emu(double points) { return std::llround(points * kEmuPerPoint); }

double PointsOf(pugi::xml_node node, const char* attribute, double fallback) {
  return xml::NumberAttribute(node, attribute, fallback * kEmuPerPoint) / kEmuPerPoint;
}

void SetPair(pugi::xml_node node, const char* first, const char* second, double x, double y) {
  xml::SetAttribute(node, first, std::to_string(Emu(x)));
  xml::SetAttribute(node, second, std::to_string(Emu(y)));
}

void ForEachAnchor(pugi::xml_node root, std::span<const std::string_view> anchors,
                   const std::function<void(pugi::xml_node, pugi::xml_node)>& visit) {
  for (const pugi::xml_node& child : root.children()) {
    if (IsOneOf(child, anchors)) {
      if (const auto object = ObjectOf(child)) visit(child, object);
    } else if (xml::Is(child, "AlternateContent")) {
      ForEachAnchor(Chosen(child), anchors, visit);
    }
  }
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

pugi::xml_node IdentityOf(pugi::xml_node object) {
  // The parent is nvSpPr, nvGraphicFramePr, nvPicPr or the like: the first child of each kind of object.
  for (const pugi::xml_node& child : object.children()) {
    if (const auto identity = xml::Child(child, "cNvPr")) return identity;
  }
  return {};
}

pugi::xml_node KindPropertiesOf(pugi::xml_node object) {
  for (const pugi::xml_node& child : IdentityOf(object).parent().children()) {
    if (xml::LocalName(child).starts_with("cNv") && !xml::Is(child, "cNvPr")) return child;
  }
  return {};
}

pugi::xml_node ShapePropertiesOf(pugi::xml_node object) {
  return xml::Child(object, xml::Is(object, "grpSp") ? "grpSpPr" : "spPr");
}

pugi::xml_node ChartLinkOf(pugi::xml_node object) {
  const auto data = xml::Child(object, "graphic", "graphicData");
  return xml::Attribute(data, "uri").ends_with("/chart") ? xml::Child(data, "chart") : pugi::xml_node();
}

unsigned NextShapeId(pugi::xml_node root) {
  struct Walker : pugi::xml_tree_walker {
    std::set<long long> taken;
    bool for_each(pugi::xml_node& node) override {
      if (xml::Is(node, "cNvPr")) taken.insert(xml::IntegerAttribute(node, "id", 0));
      return true;
    }
  } walker;
  root.traverse(walker);
  constexpr long long kFirst = 2;  // as in Excel
  return static_cast<unsigned>(FreeNumber(walker.taken, kFirst, std::numeric_limits<std::int32_t>::max()));
}

void SetTransform(pugi::xml_node object, const Frame& frame) {
  pugi::xml_node transform;
  if (const auto properties = ShapePropertiesOf(object)) {
    transform = schema::Ensure(properties, "xfrm");
  } else {
    transform = xml::Child(object, "xfrm");
  }
  if (!transform) return;
  SetPair(schema::Ensure(transform, "off"), "x", "y", frame.left, frame.top);
  SetPair(schema::Ensure(transform, "ext"), "cx", "cy", frame.width, frame.height);
}

pugi::xml_node AppendTemplate(pugi::xml_node root, std::string text, const std::string& prefix,
                              const std::string& drawingMl) {
  text = runtime::Replace(text, "@", prefix);
  text = runtime::Replace(text, "~", drawingMl);
  root.append_buffer(text.data(), text.size(), pugi::parse_default & ~pugi::parse_escapes,
                     pugi::encoding_utf8);
  return root.last_child();
}

std::string TextboxTemplate(unsigned id, std::string_view name, std::string_view format) {
  return R"(<@sp macro="" textlink="">)" + Start("SpPr", id, name, R"(<@cNvSpPr txBox="1"/>)") + "<@spPr>" +
         Form("rect") + std::string(format) +
         R"(</@spPr><@txBody><~bodyPr vertOverflow="clip" wrap="square" rtlCol="0"/><~lstStyle/>)"
         R"(<~p><~endParaRPr lang="en-US" sz="1100"><~latin typeface="+mn-lt"/></~endParaRPr></~p></@txBody></@sp>)";
}

std::string AutoShapeTemplate(unsigned id, std::string_view name, std::string_view preset) {
  // Excel gives new shapes a style that refers to the theme.
  return R"(<@sp macro="" textlink="">)" + Start("SpPr", id, name, "<@cNvSpPr/>") + "<@spPr>" + Form(preset) +
         R"(</@spPr><@style><~lnRef idx="2"><~schemeClr val="accent1"><~shade val="50000"/></~schemeClr></~lnRef>)"
         R"(<~fillRef idx="1"><~schemeClr val="accent1"/></~fillRef><~effectRef idx="0"><~schemeClr val="accent1"/>)"
         R"(</~effectRef><~fontRef idx="minor"><~schemeClr val="lt1"/></~fontRef></@style><@txBody>)"
         R"(<~bodyPr vertOverflow="clip" rtlCol="0" anchor="ctr"/><~lstStyle/><~p><~pPr algn="ctr"/>)"
         R"(<~endParaRPr lang="en-US" sz="1100"/></~p></@txBody></@sp>)";
}

std::string GroupTemplate(unsigned id, std::string_view name, const Frame& frame) {
  return "<@grpSp>" + Start("GrpSpPr", id, name, "<@cNvGrpSpPr/>") + "<@grpSpPr><~xfrm>" +
         std::string(kNoPlace) + Pair("chOff", "x", "y", frame.left, frame.top) +
         Pair("chExt", "cx", "cy", frame.width, frame.height) + "</~xfrm></@grpSpPr></@grpSp>";
}

}  // namespace plotsmith::xlsx
