#include "xlsx/chart/rules/PlotGroups.h"

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <string>

#include "host/excel/Constants.h"
#include "xlsx/base/Errors.h"
#include "xlsx/chart/rules/ChartTypeRules.h"
#include "xlsx/chart/rules/ChartTypes.h"
#include "xlsx/chart/rules/GroupAxes.h"
#include "xlsx/chart/rules/LegendLines.h"
#include "xlsx/chart/rules/SeriesLabels.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/FreeNumber.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

namespace {

constexpr std::array<std::string_view, 4> k3DViewElements = {"view3D", "floor", "sideWall", "backWall"};

/// The name under which the elements of the group's type are set aside.
std::string StateName(pugi::xml_node group) {
  return std::string(xml::LocalName(group)) + "-" + schema::Val(group, "barDir") + "-" +
         schema::Val(group, "grouping");
}

std::string StateName(const ChartTypeEntry& type) {
  return std::string(type.element) + "-" + std::string(type.direction) + "-" + std::string(type.grouping);
}

/// Sets aside all elements that belong to one chart type: copies of the group without its series, of the
/// view, floor and walls of a 3-D chart, of the depth axis, and of the crossing of the value axis.
void LayTypeAside(ChartPart& part, pugi::xml_node group) {
  pugi::xml_node state = part.SetAside(StateName(group));
  pugi::xml_node kept = state.append_copy(group);
  schema::Remove(kept, "ser");
  schema::Remove(kept, "axId");
  for (const std::string_view element : k3DViewElements) {
    if (const auto node = xml::Child(part.Chart(), element)) state.append_copy(node);
  }
  const AxisRoles roles = RolesOf(AxesOf(group));
  if (roles.depth) state.append_copy(roles.depth);
  const std::string between = schema::Val(roles.value, "crossBetween");
  if (!between.empty()) xml::SetAttribute(state, "crossBetween", between);
}

/// Returns the group that was set aside for the type; otherwise one that is derived from an old group.
pugi::xml_node MakeGroup(ChartPart& part, pugi::xml_node old, const ChartTypeEntry& type,
                         pugi::xml_node state) {
  const auto setAside = xml::Child(state, type.element);
  const pugi::xml_node group =
      setAside ? schema::InsertCopy(part.PlotArea(), setAside) : DeriveGroup(part.PlotArea(), old, type);
  FitGroup(group, type, static_cast<bool>(setAside));
  return group;
}

/// Sets the view, floor and walls: those that were set aside for the type; otherwise the present ones, if
/// they are of the same kind; otherwise Excel's defaults.
void Arrange3DView(pugi::xml_node chart, const ChartTypeEntry& type, pugi::xml_node state, bool sameKind) {
  if (!type.Is3D() || state || !sameKind) {
    for (const std::string_view element : k3DViewElements) schema::Remove(chart, element);
  }
  if (!type.Is3D()) return;
  for (const std::string_view element : k3DViewElements) {
    if (const auto node = xml::Child(state, element)) schema::InsertCopy(chart, node);
  }
  if (state || xml::Child(chart, "view3D")) return;
  pugi::xml_node view = schema::Ensure(chart, "view3D");
  schema::SetVal(view, "rotX", type.IsPie() ? "30" : "15");
  schema::SetVal(view, "rotY", type.IsPie() ? "0" : "20");
  const bool perspective = type.HasDepthAxis() || type.IsPie();
  schema::SetBooleanVal(view, "rAngAx", !perspective);
  if (perspective) schema::SetVal(view, "perspective", "30");
  if (type.IsPie()) return;
  for (const std::string_view surface : {"floor", "sideWall", "backWall"}) {
    schema::SetVal(schema::Ensure(chart, surface), "thickness", "0");
  }
}

int DrawingRank(pugi::xml_node group) {
  const std::string_view kind = xml::LocalName(group);
  if (kind.starts_with("area")) return 0;
  if (kind.starts_with("bar")) return 1;
  if (kind.starts_with("line")) return 2;
  return 3;
}

/// Moves a group to its position in the drawing order.
void PutInDrawingOrder(pugi::xml_node group) {
  for (const pugi::xml_node& other : group.parent().children()) {
    if (other != group && schema::IsGroup(other) && DrawingRank(other) > DrawingRank(group)) {
      group.parent().insert_move_before(group, other);
      return;
    }
  }
}

/// Returns the series that a user has filtered out. They are in the extensions of the groups, and don't count
/// as series of the chart.
std::vector<pugi::xml_node> FilteredSeriesOf(ChartPart& part) {
  std::vector<pugi::xml_node> filtered;
  for (const pugi::xml_node& group : part.Groups()) {
    for (const pugi::xml_node& extension : xml::Children(xml::Child(group, "extLst"), "ext")) {
      for (const pugi::xml_node& list : extension.children()) {
        for (const pugi::xml_node& series : xml::Children(list, "ser")) filtered.push_back(series);
      }
    }
  }
  return filtered;
}

/// Makes a stock chart a line chart unless it has three or four series (CT_StockChart). A line chart may have
/// the same lines, bars and labels.
void KeepStockWhole(pugi::xml_node group) {
  constexpr std::size_t kFewest = 3, kMost = 4;  // high, low and close, with or without open
  if (!xml::Is(group, "stockChart")) return;
  const std::size_t count = xml::Children(group, "ser").size();
  if (count >= kFewest && count <= kMost) return;
  group.set_name((std::string(xml::Prefix(group.name())) + "lineChart").c_str());
  FitGroup(group, *FindChartType(excel::xlLine), false);
}

[[noreturn]] void CantCombine() {
  throw Refusal("Some chart types cannot be combined with other chart types.");
}

}  // namespace

std::vector<pugi::xml_node> DrawnGroups(ChartPart& part) {
  auto groups = part.Groups();
  std::erase_if(groups, [](pugi::xml_node group) { return !xml::Child(group, "ser"); });
  std::stable_sort(groups.begin(), groups.end(),
                   [](pugi::xml_node a, pugi::xml_node b) { return DrawingRank(a) < DrawingRank(b); });
  return groups;
}

std::vector<pugi::xml_node> SeriesOf(ChartPart& part) {
  std::vector<pugi::xml_node> series;
  for (const SeriesRef& entry : part.Series()) series.push_back(entry->node);
  return series;
}

SeriesRef AddSeries(ChartPart& part) {
  if (part.Groups().empty()) SetType(part, *FindChartType(excel::xlColumnClustered));
  auto& all = part.Series();
  std::set<long long> indices, orders;
  const auto take = [&](pugi::xml_node taken) {
    // The numbers usually ascend.
    indices.insert(indices.end(), schema::IntegerVal(taken, "idx", 0));
    orders.insert(orders.end(), schema::IntegerVal(taken, "order", 0));
  };
  for (const SeriesRef& entry : all) take(entry->node);
  for (const pugi::xml_node& filtered : FilteredSeriesOf(part)) take(filtered);
  constexpr long long kLast = std::numeric_limits<std::int32_t>::max();
  const pugi::xml_node last = all.empty() ? pugi::xml_node() : all.back()->node;
  const pugi::xml_node group = last ? last.parent() : part.Groups()[0];
  pugi::xml_node series = schema::Insert(group, "ser");
  KeepStockWhole(group);
  schema::SetVal(series, "idx", std::to_string(FreeNumber(indices, 0, kLast)));
  schema::SetVal(series, "order", std::to_string(FreeNumber(orders, 0, kLast)));
  if (const ChartTypeEntry* type = FindChartType(TypeOfSeries(last ? last : series))) {
    FitSeries(part, series, *type);
  } else if (const ChartTypeEntry* ofGroup = TypeOfGroup(group)) {
    FitToGroup(part, series, *ofGroup);
  }
  SetLabels(series, false);  // A new series has no labels, even if its group has some.
  ClearStaleLegendEntries(part, all.size());
  if (all.empty() && part.WasEmptyWhenOpened()) ShowAxes(part);
  all.push_back(std::make_shared<SeriesEntry>(SeriesEntry{series}));
  part.MarkChanged();
  return all.back();
}

namespace {

/// Adds a group to a plot area without one, which would not be valid.
void EnsureGroup(ChartPart& part) {
  if (!part.Groups().empty()) return;
  SetType(part, *FindChartType(excel::xlColumnClustered));
  for (const pugi::xml_node& axis : AxesOf(part.Groups()[0])) schema::SetBooleanVal(axis, "delete", true);
}

}  // namespace

void DeleteSeries(ChartPart& part, const SeriesRef& series) {
  auto& all = part.Series();
  const auto at = std::find(all.begin(), all.end(), series);
  if (at == all.end()) return;
  DropLegendEntry(part, static_cast<std::size_t>(at - all.begin()));
  ForgetSeries(part, series->node);
  const pugi::xml_node group = series->node.parent();
  series->node.parent().remove_child(series->node);
  series->node = {};
  KeepStockWhole(group);
  all.erase(at);
  part.MarkChanged();
}

void SetType(ChartPart& part, const ChartTypeEntry& type) {
  pugi::xml_node plotArea = part.PlotArea();
  const auto groups = part.Groups();
  const auto series = SeriesOf(part);
  const pugi::xml_node old = groups.empty() ? pugi::xml_node() : groups[0];
  const std::string kind(xml::LocalName(old));
  const auto axes = old ? AxesOf(old) : std::vector<pugi::xml_node>();
  part.MarkChanged();

  const bool same = groups.size() == 1 && StateName(old) == StateName(type);
  pugi::xml_node group = old;
  pugi::xml_node state;
  if (same) {
    FitGroup(group, type, true);
  } else {
    for (const pugi::xml_node& other : groups) LayTypeAside(part, other);
    state = part.FindSetAside(StateName(type));
    group = MakeGroup(part, old, type, state);
    for (const pugi::xml_node& node : series) schema::InsertMoved(group, node);
    for (const pugi::xml_node& other : groups) plotArea.remove_child(other);
  }
  for (const pugi::xml_node& node : series) FitSeries(part, node, type);
  const bool familyChanged = kind.empty() || CrossBetween(kind) != CrossBetween(type.element);
  ArrangeAxes(part, group, axes, type, state, familyChanged);
  Arrange3DView(part.Chart(), type, state, kind.starts_with("pie") == type.IsPie());
  // Without this element, Excel shows gaps and other programs show zeros. A pivot can contain empty cells.
  if (!xml::Child(part.Chart(), "dispBlanksAs")) schema::SetVal(part.Chart(), "dispBlanksAs", "gap");
}

void SetSeriesType(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type) {
  const pugi::xml_node group = series.parent();
  part.MarkChanged();
  if (StateName(group) == StateName(type)) return FitSeries(part, series, type);
  const auto groups = DrawnGroups(part);
  if (part.Series().size() == 1 || (groups.size() == 1 && xml::Is(group, type.element))) {
    return SetType(part, type);
  }
  for (const pugi::xml_node& other : groups) {
    const ChartTypeEntry* beside = TypeOfGroup(other);
    if (!type.Combines() || beside == nullptr || !beside->Combines()) CantCombine();
  }
  const auto all = part.Groups();
  const auto axes = AxesOf(group);
  const auto found = std::find_if(all.begin(), all.end(), [&](pugi::xml_node other) {
    return xml::Is(other, type.element) && AxesOf(other) == axes;
  });
  pugi::xml_node target;
  if (found == all.end()) {
    target = MakeGroup(part, group, type, part.FindSetAside(StateName(type)));
    ShareAxes(target, group);
    PutInDrawingOrder(target);
  } else {
    target = *found;
    if (StateName(target) != StateName(type)) {
      FitGroup(target, type, false);
      for (const pugi::xml_node& node : xml::Children(target, "ser")) FitSeries(part, node, type);
    }
  }
  if (target != group) schema::InsertMoved(target, series);
  FitSeries(part, series, type);
  if (!xml::Child(group, "ser")) {
    LayTypeAside(part, group);
    group.parent().remove_child(group);
  }
}

void CompleteChart(ChartPart& part) {
  EnsureGroup(part);
  UpdateLinkedFormats(part);
}

}  // namespace plotsmith::xlsx
