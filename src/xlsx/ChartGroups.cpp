#include "xlsx/ChartGroups.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "xlsx/ChartPart.h"
#include "xlsx/ChartSchema.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::int32_t kClusteredColumns = 51;
constexpr std::array<std::string_view, 4> kStageElements = {"view3D", "floor", "sideWall", "backWall"};

std::vector<pugi::xml_node> Groups(pugi::xml_node plotArea) {
  std::vector<pugi::xml_node> groups;
  for (const pugi::xml_node& child : plotArea.children()) {
    if (schema::IsGroup(child)) groups.push_back(child);
  }
  return groups;
}

bool IsCategoryAxis(pugi::xml_node axis) { return xml::Is(axis, "catAx") || xml::Is(axis, "dateAx"); }

std::string AxisId(pugi::xml_node axis) { return schema::Val(axis, "axId"); }

/// `idx` or `order` of a series. They are asked for all the time, and so read where they stand.
long long Number(pugi::xml_node series, std::string_view local) {
  return xml::IntegerAttribute(schema::Find(series, local), "val", 0);
}

/// The axes that a group hangs on.
std::vector<pugi::xml_node> AxesOf(pugi::xml_node group) {
  std::vector<pugi::xml_node> axes;
  for (const pugi::xml_node& link : xml::Children(group, "axId")) {
    const std::string id = xml::Attribute(link, "val");
    for (const pugi::xml_node& axis : group.parent().children()) {
      if (schema::IsAxis(axis) && AxisId(axis) == id) axes.push_back(axis);
    }
  }
  return axes;
}

/// The name under which what belongs to the group's type is laid aside.
std::string StateName(pugi::xml_node group) {
  return std::string(xml::LocalName(group)) + "-" + schema::Val(group, "barDir") + "-" +
         schema::Val(group, "grouping");
}

std::string StateName(const ChartTypeEntry& type) {
  return std::string(type.element) + "-" + std::string(type.direction) + "-" + std::string(type.grouping);
}

/// Copies of the group without its series, of the stage of a 3-D chart, of the depth axis, and where the
/// value axis crosses: all that a type has to itself.
void LayTypeAside(ChartPart& part, pugi::xml_node group) {
  pugi::xml_node state = part.LayAside(StateName(group));
  pugi::xml_node kept = state.append_copy(group);
  schema::Remove(kept, "ser");
  schema::Remove(kept, "axId");
  for (const std::string_view stage : kStageElements) {
    if (const auto node = schema::Find(part.Chart(), stage)) state.append_copy(node);
  }
  for (const pugi::xml_node& axis : AxesOf(group)) {
    if (xml::Is(axis, "serAx")) state.append_copy(axis);
    const std::string between = schema::Val(axis, "crossBetween");
    if (xml::Is(axis, "valAx") && !between.empty()) xml::SetAttribute(state, "crossBetween", between);
  }
}

/// The number wanted or, if that is empty or some axis has it, one that none has.
std::string FreeAxisId(pugi::xml_node plotArea, const std::string& wanted = {}) {
  std::set<std::string> taken;
  for (const pugi::xml_node& axis : plotArea.children()) {
    if (schema::IsAxis(axis)) taken.insert(AxisId(axis));
  }
  if (!wanted.empty() && !taken.contains(wanted)) return wanted;
  long long id = 111111111;
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

/// Lays an axis upright or flat, on the side that answers to the one it was on.
void TurnAxis(pugi::xml_node axis, bool upright) {
  std::string side = schema::Val(axis, "axPos", "b");
  const bool far = side == "t" || side == "r";
  schema::SetVal(axis, "axPos", upright ? (far ? "r" : "l") : (far ? "t" : "b"));
}

void ArrangeAxes(pugi::xml_node plotArea, pugi::xml_node group, const std::vector<pugi::xml_node>& old,
                 const ChartTypeEntry& type, pugi::xml_node state, bool familyChanged) {
  const auto pick = [&](auto&& wanted) {
    const auto found = std::find_if(old.begin(), old.end(), wanted);
    return found == old.end() ? pugi::xml_node() : *found;
  };
  pugi::xml_node category = pick(IsCategoryAxis);
  // of two value axes the upright one is kept
  pugi::xml_node value = pick([&](pugi::xml_node axis) {
    const std::string side = schema::Val(axis, "axPos");
    return xml::Is(axis, "valAx") && (category || side == "l" || side == "r");
  });
  pugi::xml_node depth = pick([](pugi::xml_node axis) { return xml::Is(axis, "serAx"); });
  for (pugi::xml_node axis = plotArea.first_child(); axis;) {
    const pugi::xml_node next = axis.next_sibling();
    const bool keep = axis == category || axis == value || (axis == depth && type.HasDepthAxis());
    if (schema::IsAxis(axis) && !keep) plotArea.remove_child(axis);
    axis = next;
  }
  if (!category) category = NewAxis(plotArea, "catAx");
  if (!value) value = NewAxis(plotArea, "valAx");
  schema::SetVal(category, "crossAx", AxisId(value));
  schema::SetVal(value, "crossAx", AxisId(category));
  TurnAxis(category, type.IsHorizontal());
  TurnAxis(value, !type.IsHorizontal());
  const std::string between = xml::Attribute(state, "crossBetween");
  if (!between.empty()) {
    schema::SetVal(value, "crossBetween", between);
  } else if (familyChanged || schema::Val(value, "crossBetween").empty()) {
    schema::SetVal(value, "crossBetween", type.IsArea() ? "midCat" : "between");
  }

  schema::Remove(group, "axId");
  const auto link = [&](const std::string& id) {
    xml::SetAttribute(schema::Insert(group, "axId"), "val", id);
  };
  link(AxisId(category));
  link(AxisId(value));
  if (type.HasDepthAxis()) {
    if (!depth) {
      const auto laidAside = schema::Find(state, "serAx");
      const std::string id = FreeAxisId(plotArea, AxisId(laidAside));
      depth = laidAside ? schema::InsertCopy(plotArea, laidAside) : NewAxis(plotArea, "serAx");
      schema::SetVal(depth, "axId", id);
    }
    schema::SetVal(depth, "crossAx", AxisId(category));
    link(AxisId(depth));
  } else if (type.Is3D()) {
    link("0");  // a 3-D group names three axes, also where it has two
  }
}

/// View, floor and walls: of the type laid aside, else as they are, else Excel's own.
void ArrangeStage(pugi::xml_node chart, const ChartTypeEntry& type, pugi::xml_node state) {
  const bool had = static_cast<bool>(schema::Find(chart, "view3D"));
  if (!type.Is3D() || state) {
    for (const std::string_view stage : kStageElements) schema::Remove(chart, stage);
  }
  if (!type.Is3D()) return;
  if (state) {
    for (const std::string_view stage : kStageElements) {
      if (const auto node = schema::Find(state, stage)) schema::InsertCopy(chart, node);
    }
  } else if (!had) {
    pugi::xml_node view = schema::Ensure(chart, "view3D");
    schema::SetVal(view, "rotX", "15");
    schema::SetVal(view, "rotY", "20");
    schema::SetVal(view, "rAngAx", type.HasDepthAxis() ? "0" : "1");
    if (type.HasDepthAxis()) schema::SetVal(view, "perspective", "30");
    for (const std::string_view surface : {"floor", "sideWall", "backWall"}) {
      schema::SetVal(schema::Ensure(chart, surface), "thickness", "0");
    }
  }
}

/// Where labels of a type may stand; a file that says anything else is one that Excel refuses.
std::string_view LabelPositions(const ChartTypeEntry& type) {
  if (type.IsArea() || type.Is3D()) return "";
  return type.IsStacked() ? "ctr inBase inEnd" : "ctr inBase inEnd outEnd";
}

void KeepAllowedPositions(pugi::xml_node labels, const ChartTypeEntry& type) {
  for (const pugi::xml_node& label : xml::Children(labels, "dLbl")) KeepAllowedPositions(label, type);
  const std::string position = schema::Val(labels, "dLblPos");
  if (!position.empty() && LabelPositions(type).find(position) == std::string_view::npos) {
    schema::Remove(labels, "dLblPos");
  }
}

/// Takes from a series what the type's series can't have.
void FitSeries(pugi::xml_node series, const ChartTypeEntry& type) {
  for (const std::string_view foreign : {"marker", "explosion", "smooth", "bubbleSize", "bubble3D"}) {
    schema::Remove(series, foreign);
  }
  if (type.IsArea()) schema::Remove(series, "invertIfNegative");
  if (type.element != "bar3DChart") schema::Remove(series, "shape");
  if (!type.IsArea()) {
    // readers differ in what they take its absence for
    if (!schema::Find(series, "invertIfNegative")) schema::SetVal(series, "invertIfNegative", "0");
  }
  for (const auto& [from, to] : {std::pair{"xVal", "cat"}, std::pair{"yVal", "val"}}) {
    if (pugi::xml_node data = schema::Find(series, from)) {
      data.set_name((std::string(xml::Prefix(data.name())) + to).c_str());
    }
  }
  for (const pugi::xml_node& labels : xml::Children(series, "dLbls")) KeepAllowedPositions(labels, type);
}

/// The group's own elements, as far as the type decides them.
void FitGroup(pugi::xml_node group, const ChartTypeEntry& type, bool restored) {
  if (!type.direction.empty()) schema::SetVal(group, "barDir", type.direction);
  schema::SetVal(group, "grouping", type.grouping);
  if (restored) return;
  if (!schema::Find(group, "varyColors")) schema::SetVal(group, "varyColors", "0");
  if (!type.IsArea() && !schema::Find(group, "gapWidth")) schema::SetVal(group, "gapWidth", "150");
  if (type.element == "bar3DChart" && !schema::Find(group, "shape")) schema::SetVal(group, "shape", "box");
  if (type.element == "barChart") {
    if (type.IsStacked()) {
      schema::SetVal(group, "overlap", "100");
    } else {
      schema::Remove(group, "overlap");
    }
  }
  for (const pugi::xml_node& labels : xml::Children(group, "dLbls")) KeepAllowedPositions(labels, type);
}

/// A group of the type that takes over what both types have in common.
pugi::xml_node DeriveGroup(pugi::xml_node plotArea, pugi::xml_node old, const ChartTypeEntry& type) {
  pugi::xml_node group = schema::Insert(plotArea, type.element);
  for (const std::string_view common : {"varyColors", "dLbls", "gapWidth", "gapDepth", "dropLines"}) {
    const bool fits = (common != "gapWidth" || !type.IsArea()) && (common != "gapDepth" || type.Is3D()) &&
                      (common != "dropLines" || type.IsArea());
    const auto node = schema::Find(old, common);
    if (fits && node) schema::InsertCopy(group, node);
  }
  return group;
}

}  // namespace

std::vector<pugi::xml_node> SeriesOf(ChartPart& part) {
  std::vector<std::pair<long long, pugi::xml_node>> found;  // each behind its order
  const auto plotArea = schema::Find(schema::Find(part.Space(), "chart"), "plotArea");
  for (const pugi::xml_node& group : Groups(plotArea)) {
    for (const pugi::xml_node& node : xml::Children(group, "ser"))
      found.emplace_back(Number(node, "order"), node);
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<pugi::xml_node> series;
  for (const auto& [order, node] : found) series.push_back(node);
  return series;
}

pugi::xml_node AddSeries(ChartPart& part) {
  pugi::xml_node plotArea = part.PlotArea();
  if (Groups(plotArea).empty()) SetType(part, *FindChartType(kClusteredColumns));
  long long index = -1, order = -1;
  for (const pugi::xml_node& series : SeriesOf(part)) {
    index = std::max(index, Number(series, "idx"));
    order = std::max(order, Number(series, "order"));
  }
  const pugi::xml_node group = Groups(plotArea)[0];
  pugi::xml_node series = schema::Insert(group, "ser");
  schema::SetVal(series, "idx", std::to_string(index + 1));
  schema::SetVal(series, "order", std::to_string(order + 1));
  if (xml::LocalName(group).starts_with("bar")) schema::SetVal(series, "invertIfNegative", "0");
  part.MarkChanged();
  return series;
}

void SetType(ChartPart& part, const ChartTypeEntry& type) {
  pugi::xml_node plotArea = part.PlotArea();
  const auto groups = Groups(plotArea);
  const auto series = SeriesOf(part);
  const pugi::xml_node old = groups.empty() ? pugi::xml_node() : groups[0];
  const auto axes = old ? AxesOf(old) : std::vector<pugi::xml_node>();
  part.MarkChanged();

  const bool same = groups.size() == 1 && StateName(old) == StateName(type);
  const bool familyChanged = !old || xml::LocalName(old).starts_with("area") != type.IsArea();
  pugi::xml_node group = old;
  pugi::xml_node state;
  if (!same) {
    if (old) LayTypeAside(part, old);
    state = part.LaidAside(StateName(type));
    const auto laidAside = schema::Find(state, type.element);
    group = laidAside ? schema::InsertCopy(plotArea, laidAside) : DeriveGroup(plotArea, old, type);
    for (const pugi::xml_node& node : series) schema::InsertMoved(group, node);
    for (pugi::xml_node other : groups) plotArea.remove_child(other);
  }
  FitGroup(group, type, same || state);
  for (const pugi::xml_node& node : series) FitSeries(node, type);
  ArrangeAxes(plotArea, group, axes, type, state, familyChanged);
  ArrangeStage(part.Chart(), type, state);
  // Excel takes its absence for a gap, where others take it for zero; a pivot has blanks
  if (!schema::Find(part.Chart(), "dispBlanksAs")) schema::SetVal(part.Chart(), "dispBlanksAs", "gap");
}

void UpdateLinkedFormats(ChartPart& part) {
  const auto plotArea = schema::Find(schema::Find(part.Space(), "chart"), "plotArea");
  for (const pugi::xml_node& group : Groups(plotArea)) {
    std::string format;
    if (schema::Val(group, "grouping") == "percentStacked") {
      format = "0%";
    } else {
      const auto values = schema::Find(schema::Find(group, "ser"), "val");
      format =
          xml::Text(schema::Find(schema::Find(schema::Find(values, "numRef"), "numCache"), "formatCode"));
    }
    if (format.empty()) continue;
    for (const pugi::xml_node& axis : AxesOf(group)) {
      const auto linked = xml::Is(axis, "valAx") ? schema::Find(axis, "numFmt") : pugi::xml_node();
      if (linked && xml::BooleanAttribute(linked, "sourceLinked", false)) {
        xml::SetAttribute(linked, "formatCode", format);
      }
    }
  }
}

pugi::xml_node FindAxis(ChartPart& part, bool value) {
  const auto groups = Groups(schema::Find(schema::Find(part.Space(), "chart"), "plotArea"));
  if (groups.empty()) return {};
  pugi::xml_node second;  // of two value axes the second is the vertical one
  for (const pugi::xml_node& axis : AxesOf(groups[0])) {
    if (value ? xml::Is(axis, "valAx") : IsCategoryAxis(axis)) second = axis;
  }
  return second;
}

}  // namespace plotsmith::xlsx
