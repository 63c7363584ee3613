#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <span>
#include <string_view>

/// Excel's chart types (XlChartType), the elements of each type in the file, and the type of a chart from any
/// program.
namespace plotsmith::xlsx {

class ChartPart;

/// What a chart type requires of each of its series, apart from the plot group.
enum class SeriesTrait { kNone, kNoMarkers, kMarkers, kMarkersOnly, kExploded, kFlatBubble, kBubble3D };

/// One of Excel's chart types, as it is stored in the file (ECMA-376-1, 21.2.2).
struct ChartTypeEntry {
  std::int32_t number;                     ///< XlChartType
  std::string_view element;                ///< the name of the plot group's element
  std::string_view direction;              ///< `barDir`; empty for a group without it
  std::string_view grouping;               ///< `grouping`; empty for a group without it
  SeriesTrait trait = SeriesTrait::kNone;  ///< what the type sets for its series

  /// Returns true for a 3-D chart.
  bool Is3D() const { return element.find("3D") != std::string_view::npos; }
  /// Returns true for an area chart.
  bool IsArea() const { return element.starts_with("area"); }
  /// Returns true for a bar or column chart.
  bool IsBar() const { return element.starts_with("bar"); }
  /// Returns true for a line chart in 2-D.
  bool IsLine() const { return element == "lineChart"; }
  /// Returns true for a pie chart.
  bool IsPie() const { return element.starts_with("pie"); }
  /// Returns true for a bubble chart.
  bool IsBubble() const { return element == "bubbleChart"; }
  /// Returns true if points have an X and a Y value, on two value axes.
  bool HasXValues() const { return IsBubble() || element == "scatterChart"; }
  /// Returns true if the group has axes.
  bool HasAxes() const { return !IsPie(); }
  /// Returns true if a chart may combine series of this type with series of another such type on the same
  /// axes.
  bool Combines() const { return !Is3D() && !IsHorizontal() && (IsArea() || IsBar() || IsLine()); }
  /// Returns true for a stacked and a 100 % stacked chart.
  bool IsStacked() const { return grouping == "stacked" || grouping == "percentStacked"; }
  /// Returns true if series are drawn behind each other, along a depth axis.
  bool HasDepthAxis() const { return Is3D() && grouping == "standard"; }
  /// Returns true if the category axis is vertical.
  bool IsHorizontal() const { return direction == "bar"; }
};

/// The types that the host draws.
extern const std::span<const ChartTypeEntry> kChartTypes;
/// Returns an entry by its number; null for a type that the host doesn't draw.
const ChartTypeEntry* FindChartType(std::int32_t number);

/// The type of a series; xlCombination if Excel has no such type. Excel has no type for a line with markers
/// only.
std::int32_t TypeOfSeries(pugi::xml_node series);
/// The type that all series of the chart have, otherwise xlCombination. A chart without series has the type
/// of its first group.
std::int32_t TypeOfChart(ChartPart& part);

/// A type with the group's element and direction; null for a group that the host doesn't draw. Markers and
/// stacking are not considered; only the types of the series include them.
const ChartTypeEntry* TypeOfGroup(pugi::xml_node group);

}  // namespace plotsmith::xlsx
