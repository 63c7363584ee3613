#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <span>
#include <string_view>

/// Excel's chart types (XlChartType): the elements that make each type in the file, and the type of a chart
/// of any program.
namespace plotsmith::xlsx {

class ChartPart;

/// What a chart type requires of each of its series, beside the plot group.
enum class SeriesTrait { kNone, kNoMarkers, kMarkers, kMarkersOnly, kExploded, kFlatBubble, kBubble3D };

/// A chart type of Excel as the file builds it (ECMA-376-1, 21.2.2).
struct ChartTypeEntry {
  std::int32_t number;         ///< XlChartType
  std::string_view element;    ///< the name of the plot group's element
  std::string_view direction;  ///< `barDir`; empty for a group without it
  std::string_view grouping;   ///< `grouping`; empty for a group without it
  SeriesTrait trait = SeriesTrait::kNone;

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
  /// Points have an X and a Y value, along two value axes.
  bool HasXValues() const { return IsBubble() || element == "scatterChart"; }
  /// Returns true if the group has axes.
  bool HasAxes() const { return !IsPie(); }
  /// A chart may have series of this type and of another such type on the same axes.
  bool Combines() const { return !Is3D() && !IsHorizontal() && (IsArea() || IsBar() || IsLine()); }
  /// Returns true for a stacked and a 100 % stacked chart.
  bool IsStacked() const { return grouping == "stacked" || grouping == "percentStacked"; }
  /// Series are drawn behind each other, along a depth axis.
  bool HasDepthAxis() const { return Is3D() && grouping == "standard"; }
  /// The category axis is vertical.
  bool IsHorizontal() const { return direction == "bar"; }
};

/// The types that the host draws.
extern const std::span<const ChartTypeEntry> kChartTypes;
/// Null for a type that the host doesn't draw.
const ChartTypeEntry* FindChartType(std::int32_t number);

/// The type of a series, xlCombination if Excel has no such type. Excel has none for a line with markers
/// only.
std::int32_t TypeOfSeries(pugi::xml_node series);
/// The type that all series of the chart have, else xlCombination. A chart without series has the type of its
/// first group.
std::int32_t TypeOfChart(ChartPart& part);

/// A type with the group's element and direction; null for a group that the host doesn't draw. It says
/// nothing about markers and stacking, which only the types of the series say.
const ChartTypeEntry* TypeOfGroup(pugi::xml_node group);

}  // namespace plotsmith::xlsx
