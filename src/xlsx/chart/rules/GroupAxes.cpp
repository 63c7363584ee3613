#include "xlsx/chart/rules/GroupAxes.h"

#include <algorithm>
#include <set>
#include <string>

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr const char* kCategoryRole = "axis-category";
constexpr const char* kXRole = "axis-x";
constexpr const char* kValueRole = "axis-value";

bool IsCategoryAxis(pugi::xml_node axis) { return xml::Is(axis, "catAx") || xml::Is(axis, "dateAx"); }

bool IsUpright(pugi::xml_node axis) {
  const std::string side = schema::Val(axis, "axPos");
  return side == "l" || side == "r";
}

std::string AxisId(pugi::xml_node axis) { return schema::Val(axis, "axId"); }

pugi::xml_node AxisOfId(pugi::xml_node plotArea, const std::string& id) {
  for (const pugi::xml_node& axis : plotArea.children()) {
    if (schema::IsAxis(axis) && AxisId(axis) == id) return axis;
  }
  return {};
}

void Link(pugi::xml_node group, const std::string& id) {
  xml::SetAttribute(schema::Insert(group, "axId"), "val", id);
}

/// Returns the wanted id, or an unused one if that is empty or already used.
std::string FreeAxisId(pugi::xml_node plotArea, const std::string& wanted = {}) {
  std::set<std::string> taken;
  for (const pugi::xml_node& axis : plotArea.children()) {
    if (schema::IsAxis(axis)) taken.insert(AxisId(axis));
  }
  if (!wanted.empty() && !taken.contains(wanted)) return wanted;
  long long id = 111111111;  // any number works; Excel's ids have nine digits
  while (taken.contains(std::to_string(id))) ++id;
  return std::to_string(id);
}

pugi::xml_node NewAxis(pugi::xml_node plotArea, std::string_view element) {
  const std::string id = FreeAxisId(plotArea);
  pugi::xml_node axis = schema::Insert(plotArea, element);
  schema::SetVal(axis, "axId", id);
  schema::SetVal(schema::Ensure(axis, "scaling"), "orientation", "minMax");
  schema::SetVal(axis, "delete", "0");
  schema::SetVal(axis, "axPos", "b");
  if (element == "valAx") schema::Ensure(axis, "majorGridlines");
  if (element != "serAx") {
    const pugi::xml_node format = schema::Ensure(axis, "numFmt");
    xml::SetAttribute(format, "formatCode", "General");
    xml::SetAttribute(format, "sourceLinked", "1");
  }
  schema::SetVal(axis, "majorTickMark", "out");
  schema::SetVal(axis, "minorTickMark", "none");
  schema::SetVal(axis, "tickLblPos", "nextTo");
  schema::SetVal(axis, "crosses", "autoZero");
  if (element == "catAx") {
    schema::SetVal(axis, "auto", "1");
    schema::SetVal(axis, "lblAlgn", "ctr");
    schema::SetVal(axis, "lblOffset", "100");
    schema::SetVal(axis, "noMultiLvlLbl", "0");
  }
  return axis;
}

/// Restores an axis that was set aside, with an unused id.
pugi::xml_node Restored(pugi::xml_node plotArea, pugi::xml_node setAside) {
  const std::string id = FreeAxisId(plotArea, AxisId(setAside));
  pugi::xml_node axis = schema::InsertCopy(plotArea, setAside);
  schema::SetVal(axis, "axId", id);
  return axis;
}

/// Returns the chart's axis for a role: the present one; otherwise the last one that the chart had; otherwise
/// a new one.
pugi::xml_node EnsureAxis(ChartPart& part, pugi::xml_node present, const char* role) {
  if (present) return present;
  if (const auto setAside = part.FindSetAside(role).first_child()) return Restored(part.PlotArea(), setAside);
  const bool category = std::string_view(role) == kCategoryRole;
  pugi::xml_node axis = NewAxis(part.PlotArea(), category ? "catAx" : "valAx");
  if (std::string_view(role) == kXRole) schema::Remove(axis, "majorGridlines");
  return axis;
}

/// Makes an axis vertical if `upright` is true, otherwise horizontal. Its new side corresponds to its former
/// side.
void TurnAxis(pugi::xml_node axis, bool upright) {
  const std::string side = schema::Val(axis, "axPos", "b");
  const bool far = side == "t" || side == "r";
  schema::SetVal(axis, "axPos", upright ? (far ? "r" : "l") : (far ? "t" : "b"));
}

}  // namespace

std::vector<pugi::xml_node> AxesOf(pugi::xml_node group) {
  constexpr std::size_t kMost = 3;  // including the depth axis
  std::vector<pugi::xml_node> axes;
  auto links = xml::Children(group, "axId");
  links.resize(std::min(links.size(), kMost));
  for (const pugi::xml_node& link : links) {
    if (const auto axis = AxisOfId(group.parent(), xml::Attribute(link, "val"))) axes.push_back(axis);
  }
  return axes;
}

AxisRoles RolesOf(const std::vector<pugi::xml_node>& axes) {
  AxisRoles roles;
  std::vector<pugi::xml_node> values;
  for (const pugi::xml_node& axis : axes) {
    if (xml::Is(axis, "serAx")) {
      roles.depth = axis;
    } else if (IsCategoryAxis(axis)) {
      if (!roles.category) roles.category = axis;
    } else {
      values.push_back(axis);
    }
  }
  if (roles.category || values.size() < 2) {
    if (!values.empty()) roles.value = values[0];
  } else {
    // The first is the X axis, unless the first is vertical and the second is not.
    const bool swapped = IsUpright(values[0]) && !IsUpright(values[1]);
    roles.x = values[swapped ? 1 : 0];
    roles.value = values[swapped ? 0 : 1];
  }
  return roles;
}

pugi::xml_node FindAxis(ChartPart& part, bool value) {
  const auto groups = part.Groups();
  if (groups.empty()) return {};
  const AxisRoles roles = RolesOf(AxesOf(groups[0]));
  if (value) return roles.value;
  return roles.category ? roles.category : roles.x;
}

pugi::xml_node FindCrossedAxis(pugi::xml_node axis) {
  return AxisOfId(axis.parent(), schema::Val(axis, "crossAx"));
}

void ShowAxes(ChartPart& part) {
  std::vector<pugi::xml_node> axes;
  for (const pugi::xml_node& child : part.PlotArea().children()) {
    if (schema::IsAxis(child)) axes.push_back(child);
  }
  // An axis that is hidden while another one is visible was hidden on purpose.
  const bool hidden = std::all_of(axes.begin(), axes.end(), [](const pugi::xml_node& axis) {
    return schema::BooleanVal(axis, "delete", false);
  });
  if (!hidden) return;
  for (const pugi::xml_node& axis : axes) schema::SetBooleanVal(axis, "delete", false);
}

std::string_view CrossBetween(std::string_view groupElement) {
  const bool onTheMark =
      groupElement.starts_with("area") || groupElement == "scatterChart" || groupElement == "bubbleChart";
  return onTheMark ? "midCat" : "between";
}

namespace {

/// Removes the axes that the type doesn't need from the plot area, and sets them aside. Returns the others.
AxisRoles KeepAxes(ChartPart& part, const std::vector<pugi::xml_node>& old, const ChartTypeEntry& type) {
  pugi::xml_node plotArea = part.PlotArea();
  AxisRoles roles = RolesOf(old);
  const auto drop = [&](pugi::xml_node& axis, bool keep, const char* role) {
    if (!axis || keep) return;
    part.SetAside(role).append_copy(axis);
    axis = {};
  };
  drop(roles.category, type.HasAxes() && !type.HasXValues(), kCategoryRole);
  drop(roles.x, type.HasXValues(), kXRole);
  drop(roles.value, type.HasAxes(), kValueRole);
  if (!type.HasDepthAxis()) roles.depth = {};
  for (pugi::xml_node axis = plotArea.first_child(); axis;) {
    const pugi::xml_node next = axis.next_sibling();
    const bool keep = axis == roles.category || axis == roles.x || axis == roles.value || axis == roles.depth;
    if (schema::IsAxis(axis) && !keep) plotArea.remove_child(axis);
    axis = next;
  }
  return roles;
}

/// Sets the positions at which the value axis, and an axis of X values, cross the other axis.
void SetCrossing(pugi::xml_node first, pugi::xml_node value, const ChartTypeEntry& type, pugi::xml_node state,
                 bool familyChanged) {
  const std::string between = xml::Attribute(state, "crossBetween");
  if (!between.empty()) {
    schema::SetVal(value, "crossBetween", between);
  } else if (familyChanged || schema::Val(value, "crossBetween").empty()) {
    schema::SetVal(value, "crossBetween", CrossBetween(type.element));
  }
  if (type.HasXValues()) schema::SetVal(first, "crossBetween", CrossBetween(type.element));
}

/// Links a 3-D group to its third axis.
void LinkDepthAxis(pugi::xml_node plotArea, pugi::xml_node group, pugi::xml_node depth, pugi::xml_node first,
                   const ChartTypeEntry& type, pugi::xml_node state) {
  if (type.HasDepthAxis()) {
    if (!depth) {
      const auto setAside = xml::Child(state, "serAx");
      depth = setAside ? Restored(plotArea, setAside) : NewAxis(plotArea, "serAx");
    }
    schema::SetVal(depth, "crossAx", AxisId(first));
    Link(group, AxisId(depth));
  } else if (type.Is3D()) {
    Link(group, "0");  // A 3-D group names three axes even if it has two.
  }
}

}  // namespace

void ArrangeAxes(ChartPart& part, pugi::xml_node group, const std::vector<pugi::xml_node>& old,
                 const ChartTypeEntry& type, pugi::xml_node state, bool familyChanged) {
  AxisRoles roles = KeepAxes(part, old, type);
  schema::Remove(group, "axId");
  if (!type.HasAxes()) return;

  pugi::xml_node plotArea = part.PlotArea();
  const pugi::xml_node first =
      type.HasXValues() ? EnsureAxis(part, roles.x, kXRole) : EnsureAxis(part, roles.category, kCategoryRole);
  const pugi::xml_node value = EnsureAxis(part, roles.value, kValueRole);
  if (!roles.category && !roles.x) plotArea.insert_move_before(first, value);  // in Excel's order
  schema::SetVal(first, "crossAx", AxisId(value));
  schema::SetVal(value, "crossAx", AxisId(first));
  TurnAxis(first, type.IsHorizontal());
  TurnAxis(value, !type.IsHorizontal());
  SetCrossing(first, value, type, state, familyChanged);
  Link(group, AxisId(first));
  Link(group, AxisId(value));
  LinkDepthAxis(plotArea, group, roles.depth, first, type, state);
}

void ShareAxes(pugi::xml_node group, pugi::xml_node other) {
  schema::Remove(group, "axId");
  for (const pugi::xml_node& axis : AxesOf(other)) Link(group, AxisId(axis));
}

void UpdateLinkedFormats(ChartPart& part) {
  for (const pugi::xml_node& group : part.Groups()) {
    const auto axes = AxesOf(group);
    const AxisRoles roles = RolesOf(axes);
    for (const pugi::xml_node& axis : axes) {
      const auto linked = xml::Is(axis, "valAx") ? xml::Child(axis, "numFmt") : pugi::xml_node();
      if (!linked || !xml::BooleanAttribute(linked, "sourceLinked", false)) continue;
      const auto series = xml::Child(group, "ser");
      const auto data = axis == roles.x ? xml::Child(series, "xVal") : FindValues(series);
      const std::string format = schema::Val(group, "grouping") == "percentStacked"
                                     ? "0%"
                                     : xml::Text(xml::Child(data, "numRef", "numCache", "formatCode"));
      if (!format.empty()) xml::SetAttribute(linked, "formatCode", format);
    }
  }
}

}  // namespace plotsmith::xlsx
