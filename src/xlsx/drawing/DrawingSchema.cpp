#include "xlsx/drawing/DrawingSchema.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx::schema {
namespace {

/// The order of a type's children. Names at the same position are joined by "|". Related types whose orders
/// don't contradict each other share a table. There is one table for the series of all groups, one for all
/// groups, and one for all axes.
using Order = std::span<const std::string_view>;

constexpr std::string_view kGroups =
    "areaChart|area3DChart|lineChart|line3DChart|stockChart|radarChart|scatterChart|pieChart|pie3DChart|"
    "doughnutChart|barChart|bar3DChart|ofPieChart|surfaceChart|surface3DChart|bubbleChart";
constexpr std::string_view kAxes = "valAx|catAx|dateAx|serAx";
constexpr std::string_view kFills = "noFill|solidFill|gradFill|blipFill|pattFill|grpFill";

constexpr std::string_view kChartSpace[] = {
    "date1904",      "lang",       "roundedCorners", "AlternateContent",
    "style",         "clrMapOvr",  "pivotSource",    "protection",
    "chart",         "spPr",       "txPr",           "externalData",
    "printSettings", "userShapes", "extLst"};
constexpr std::string_view kChart[] = {"title",  "autoTitleDeleted", "pivotFmts",    "view3D",
                                       "floor",  "sideWall",         "backWall",     "plotArea",
                                       "legend", "plotVisOnly",      "dispBlanksAs", "showDLblsOverMax",
                                       "extLst"};
constexpr std::string_view kPlotArea[] = {"layout", kGroups, kAxes, "dTable", "spPr", "extLst"};
constexpr std::string_view kGroup[] = {
    "barDir",         "grouping",      "ofPieType",  "radarStyle", "scatterStyle", "wireframe",
    "varyColors",     "ser",           "dLbls",      "gapWidth",   "overlap",      "serLines",
    "dropLines",      "hiLowLines",    "upDownBars", "marker",     "smooth",       "gapDepth",
    "shape",          "firstSliceAng", "holeSize",   "bubble3D",   "bubbleScale",  "showNegBubbles",
    "sizeRepresents", "bandFmts",      "axId",       "extLst"};
constexpr std::string_view kSeries[] = {
    "idx",    "order",     "tx",    "spPr",  "invertIfNegative", "pictureOptions",
    "marker", "explosion", "dPt",   "dLbls", "trendline",        "errBars",
    "cat",    "xVal",      "val",   "yVal",  "bubbleSize",       "bubble3D",
    "smooth", "shape",     "extLst"};
constexpr std::string_view kAxis[] = {
    "axId",           "scaling",       "delete",        "axPos",         "majorGridlines",
    "minorGridlines", "title",         "numFmt",        "majorTickMark", "minorTickMark",
    "tickLblPos",     "spPr",          "txPr",          "crossAx",       "crosses|crossesAt",
    "crossBetween",   "auto",          "lblAlgn",       "lblOffset",     "baseTimeUnit",
    "majorUnit",      "majorTimeUnit", "minorUnit",     "minorTimeUnit", "dispUnits",
    "tickLblSkip",    "tickMarkSkip",  "noMultiLvlLbl", "extLst"};
constexpr std::string_view kScaling[] = {"logBase", "orientation", "max", "min", "extLst"};
constexpr std::string_view kTitle[] = {"tx", "layout", "overlay", "spPr", "txPr", "extLst"};
constexpr std::string_view kTx[] = {"strRef|rich|v"};
constexpr std::string_view kLegend[] = {"legendPos", "legendEntry", "layout", "overlay",
                                        "spPr",      "txPr",        "extLst"};
constexpr std::string_view kLayout[] = {"manualLayout", "extLst"};
constexpr std::string_view kManualLayout[] = {
    "layoutTarget", "xMode", "yMode", "wMode", "hMode", "x", "y", "w", "h", "extLst"};
constexpr std::string_view kLabels[] = {"idx",
                                        "dLbl",
                                        "delete",
                                        "layout",
                                        "tx",
                                        "numFmt",
                                        "spPr",
                                        "txPr",
                                        "dLblPos",
                                        "showLegendKey",
                                        "showVal",
                                        "showCatName",
                                        "showSerName",
                                        "showPercent",
                                        "showBubbleSize",
                                        "separator",
                                        "showLeaderLines",
                                        "leaderLines",
                                        "extLst"};
constexpr std::string_view kLegendEntry[] = {"idx", "delete|txPr", "extLst"};
constexpr std::string_view kMarker[] = {"symbol", "size", "spPr", "extLst"};
constexpr std::string_view kDisplayUnitOrder[] = {"builtInUnit|custUnit", "dispUnitsLbl", "extLst"};
constexpr std::string_view kView3D[] = {"rotX",   "hPercent",    "rotY",  "depthPercent",
                                        "rAngAx", "perspective", "extLst"};
constexpr std::string_view kSurface[] = {"thickness", "spPr", "pictureOptions", "extLst"};
constexpr std::string_view kReference[] = {"f", "numCache|strCache|multiLvlStrCache", "extLst"};
constexpr std::string_view kCache[] = {"formatCode", "ptCount", "pt", "extLst"};
constexpr std::string_view kDataSource[] = {"numRef|strRef|multiLvlStrRef|numLit|strLit"};
constexpr std::string_view kShape[] = {
    "xfrm", "custGeom|prstGeom", kFills, "ln", "effectLst|effectDag", "scene3d", "sp3d", "extLst"};
constexpr std::string_view kLine[] = {kFills,    "prstDash|custDash", "round|bevel|miter",
                                      "headEnd", "tailEnd",           "extLst"};
constexpr std::string_view kText[] = {"bodyPr", "lstStyle", "p"};
constexpr std::string_view kParagraph[] = {"pPr", "r|br|fld", "endParaRPr"};
constexpr std::string_view kParagraphProperties[] = {"lnSpc",  "spcBef", "spcAft",
                                                     "tabLst", "defRPr", "extLst"};
constexpr std::string_view kRun[] = {"rPr", "pPr", "t"};
constexpr std::string_view kRunProperties[] = {
    "ln", kFills, "effectLst|effectDag", "highlight",      "uLnTx|uLn", "uFillTx|uFill", "latin", "ea",
    "cs", "sym",  "hlinkClick",          "hlinkMouseOver", "rtl",       "extLst"};
constexpr std::string_view kPattern[] = {"fgClr", "bgClr"};
constexpr std::string_view kTransform[] = {"off", "ext", "chOff", "chExt"};
constexpr std::string_view kBodyProperties[] = {"prstTxWarp", "noAutofit|normAutofit|spAutoFit", "scene3d",
                                                "sp3d|flatTx", "extLst"};
constexpr std::string_view kLocks[] = {"spLocks|grpSpLocks|picLocks|cxnSpLocks|graphicFrameLocks", "stCxn",
                                       "endCxn", "extLst"};

/// A namespace of elements: that of charts, or that of DrawingML.
enum class Namespace { kChartMl, kDrawingMl };
using enum Namespace;

struct Type {
  std::string_view elements;  ///< joined by "|"
  Order order;
  Namespace ofChildren;
};

constexpr Type kTypes[] = {
    {"chartSpace", kChartSpace, kChartMl},
    {"chart", kChart, kChartMl},
    {"plotArea", kPlotArea, kChartMl},
    {kGroups, kGroup, kChartMl},
    {"ser", kSeries, kChartMl},
    {kAxes, kAxis, kChartMl},
    {"scaling", kScaling, kChartMl},
    {"title", kTitle, kChartMl},
    {"tx", kTx, kChartMl},
    {"legend", kLegend, kChartMl},
    {"legendEntry", kLegendEntry, kChartMl},
    {"marker", kMarker, kChartMl},
    {"dispUnits", kDisplayUnitOrder, kChartMl},
    {"layout", kLayout, kChartMl},
    {"manualLayout", kManualLayout, kChartMl},
    {"dLbls|dLbl", kLabels, kChartMl},
    {"view3D", kView3D, kChartMl},
    {"floor|sideWall|backWall", kSurface, kChartMl},
    {"numRef|strRef|multiLvlStrRef", kReference, kChartMl},
    {"numCache|strCache", kCache, kChartMl},
    {"cat|val|xVal|yVal|bubbleSize", kDataSource, kChartMl},
    {"spPr|grpSpPr", kShape, kDrawingMl},
    {"xfrm", kTransform, kDrawingMl},
    {"prstGeom", {}, kDrawingMl},
    {"cNvSpPr|cNvGrpSpPr|cNvPicPr|cNvCxnSpPr|cNvGraphicFramePr", kLocks, kDrawingMl},
    {"bodyPr", kBodyProperties, kDrawingMl},
    {"ln", kLine, kDrawingMl},
    {"txPr|rich|txBody", kText, kDrawingMl},
    {"p", kParagraph, kDrawingMl},
    {"pPr", kParagraphProperties, kDrawingMl},
    {"r|fld", kRun, kDrawingMl},
    {"rPr|defRPr|endParaRPr", kRunProperties, kDrawingMl},
    {"pattFill", kPattern, kDrawingMl},
    {"solidFill|fgClr|bgClr", {}, kDrawingMl},
};

bool HasName(std::string_view alternatives, std::string_view name) {
  while (!alternatives.empty()) {
    const std::string_view first = alternatives.substr(0, alternatives.find('|'));
    if (first == name) return true;
    alternatives.remove_prefix(std::min(first.size() + 1, alternatives.size()));
  }
  return false;
}

const Type* TypeOf(pugi::xml_node node) {
  const std::string_view name = xml::LocalName(node);
  for (const Type& type : kTypes) {
    if (HasName(type.elements, name)) return &type;
  }
  return nullptr;
}

std::size_t Rank(const Type* type, std::string_view name) {
  if (type != nullptr) {
    for (std::size_t i = 0; i < type->order.size(); ++i) {
      if (HasName(type->order[i], name)) return i;
    }
  }
  return std::string_view::npos;
}

/// Returns the child before which a child with the name must be inserted; null for the end. The search goes
/// backwards and stops at a child with the same name. Otherwise it would pass all series or points of a
/// chart.
pugi::xml_node Follower(pugi::xml_node parent, std::string_view local) {
  const Type* type = TypeOf(parent);
  const std::size_t rank = Rank(type, local);
  if (rank == std::string_view::npos) return {};
  pugi::xml_node follower;
  for (pugi::xml_node child = parent.last_child(); child; child = child.previous_sibling()) {
    if (child.type() != pugi::node_element) continue;
    const std::size_t other = Rank(type, xml::LocalName(child));
    if (other == rank) break;
    if (other != std::string_view::npos && other > rank) follower = child;
  }
  return follower;
}

std::string QualifiedName(pugi::xml_node parent, std::string_view local) {
  pugi::xml_node root = parent;
  while (root.parent().type() == pugi::node_element) root = root.parent();
  const Type* type = TypeOf(parent);
  if (type == nullptr || type->ofChildren == kChartMl)
    return std::string(xml::Prefix(root.name())) + std::string(local);
  const bool strict = xml::NamespaceOf(root).starts_with("http://purl.oclc.org/ooxml/");
  return xml::EnsurePrefix(root, (strict ? kStrict : kTransitional).drawing, "a") + std::string(local);
}

}  // namespace

pugi::xml_node Ensure(pugi::xml_node parent, std::string_view local) {
  const auto child = xml::Child(parent, local);
  return child ? child : Insert(parent, local);
}

pugi::xml_node Insert(pugi::xml_node parent, std::string_view local) {
  const std::string name = QualifiedName(parent, local);
  const pugi::xml_node follower = Follower(parent, local);
  return follower ? parent.insert_child_before(name.c_str(), follower) : parent.append_child(name.c_str());
}

void InsertMoved(pugi::xml_node parent, pugi::xml_node child) {
  const pugi::xml_node follower = Follower(parent, xml::LocalName(child));
  if (follower) {
    parent.insert_move_before(child, follower);
  } else {
    parent.append_move(child);
  }
}

pugi::xml_node InsertCopy(pugi::xml_node parent, pugi::xml_node child) {
  const pugi::xml_node follower = Follower(parent, xml::LocalName(child));
  return follower ? parent.insert_copy_before(child, follower) : parent.append_copy(child);
}

void Remove(pugi::xml_node parent, std::string_view local) {
  while (const auto child = xml::Child(parent, local)) parent.remove_child(child);
}

std::string Val(pugi::xml_node parent, std::string_view local, std::string_view fallback) {
  return xml::Attribute(xml::Child(parent, local), "val", fallback);
}

long long IntegerVal(pugi::xml_node parent, std::string_view local, long long fallback) {
  constexpr long long kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr long long kMost = std::numeric_limits<std::uint32_t>::max();
  return std::clamp(xml::IntegerAttribute(xml::Child(parent, local), "val", fallback), kLeast, kMost);
}

std::optional<double> NumberVal(pugi::xml_node parent, std::string_view local) {
  return xml::ParseDouble(Val(parent, local));
}

bool BooleanVal(pugi::xml_node parent, std::string_view local, bool fallback) {
  const auto child = xml::Child(parent, local);
  return child ? xml::BooleanAttribute(child, "val", true) : fallback;
}

void SetVal(pugi::xml_node parent, std::string_view local, std::string_view value) {
  xml::SetAttribute(Ensure(parent, local), "val", value);
}

void SetBooleanVal(pugi::xml_node parent, std::string_view local, bool value) {
  SetBooleanAttribute(Ensure(parent, local), "val", value);
}

void SetBooleanAttribute(pugi::xml_node node, const char* name, bool value) {
  xml::SetAttribute(node, name, value ? "1" : "0");
}

long long NumberOf(pugi::xml_node node) { return IntegerVal(node, "idx", -1); }

pugi::xml_node FindNumbered(pugi::xml_node parent, std::string_view local, long long number) {
  for (const pugi::xml_node& child : xml::Children(parent, local)) {
    if (NumberOf(child) == number) return child;
  }
  return {};
}

pugi::xml_node EnsureNumbered(pugi::xml_node parent, std::string_view local, long long number) {
  if (const auto present = FindNumbered(parent, local, number)) return present;
  const auto others = xml::Children(parent, local);
  const auto follower = std::find_if(others.begin(), others.end(),
                                     [&](pugi::xml_node other) { return NumberOf(other) > number; });
  pugi::xml_node child = Insert(parent, local);
  if (follower != others.end()) parent.insert_move_before(child, *follower);
  SetVal(child, "idx", std::to_string(number));
  return child;
}

bool IsGroup(pugi::xml_node node) { return HasName(kGroups, xml::LocalName(node)); }

bool IsAxis(pugi::xml_node node) { return HasName(kAxes, xml::LocalName(node)); }

bool IsFill(pugi::xml_node node) { return HasName(kFills, xml::LocalName(node)); }

}  // namespace plotsmith::xlsx::schema
