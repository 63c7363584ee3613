#pragma once

#include <functional>
#include <pugixml.hpp>
#include <span>
#include <string>
#include <string_view>

/// The elements of shapes. Sheets and charts have the same elements with different prefixes.
namespace plotsmith::xlsx {

/// The position and size of a shape, in points from the upper left corner of the sheet or the chart.
struct Frame {
  /// The left and the upper edge, and the size.
  double left = 0, top = 0, width = 0, height = 0;

  /// The right edge.
  double Right() const { return left + width; }
  /// The bottom edge.
  double Bottom() const { return top + height; }
};

/// The number of English Metric Units in a point.
inline constexpr double kEmuPerPoint = 12700;
/// Converts points to whole EMU.
long long Emu(double points);
/// An attribute in EMU, converted to points.
double PointsOf(pugi::xml_node node, const char* attribute, double fallback = 0);
/// Sets two attributes, a position or a size, from points to EMU.
void SetPair(pugi::xml_node node, const char* first, const char* second, double x, double y);

/// Calls `visit` for each anchor with one of the names, from back to front, with the object on it.
void ForEachAnchor(pugi::xml_node root, std::span<const std::string_view> anchors,
                   const std::function<void(pugi::xml_node anchor, pugi::xml_node object)>& visit);
/// The object on an anchor, or a null node.
pugi::xml_node ObjectOf(pugi::xml_node anchor);
/// The element with the name, the id and the alternative text of an object (cNvPr).
pugi::xml_node IdentityOf(pugi::xml_node object);
/// The properties that only objects of its kind have (cNvSpPr, cNvPicPr), or a null node.
pugi::xml_node KindPropertiesOf(pugi::xml_node object);
/// The shape properties (spPr, or a group's grpSpPr), or a null node.
pugi::xml_node ShapePropertiesOf(pugi::xml_node object);
/// The link to the chart in an object (c:chart), or a null node.
pugi::xml_node ChartLinkOf(pugi::xml_node object);
/// An unused id for a shape of the document.
unsigned NextShapeId(pugi::xml_node root);

/// Sets the position and size in the object itself, in addition to those of its anchor.
void SetTransform(pugi::xml_node object, const Frame& frame);

/// Appends an element to the root. In the template, "@" is replaced by the prefix of the drawing's elements
/// and "~" by that of DrawingML's.
pugi::xml_node AppendTemplate(pugi::xml_node root, std::string text, const std::string& prefix,
                              const std::string& drawingMl);
/// The template of a text box, without a position. `format` is inserted after the shape's geometry.
std::string TextboxTemplate(unsigned id, std::string_view name, std::string_view format);
/// The template of an AutoShape. `preset` is its geometry (ST_ShapeType).
std::string AutoShapeTemplate(unsigned id, std::string_view name, std::string_view preset);
/// The template of a group. The positions of its members are in the coordinates of the frame.
std::string GroupTemplate(unsigned id, std::string_view name, const Frame& frame);

}  // namespace plotsmith::xlsx
