#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <span>
#include <string_view>

/// Excel's chart types (XlChartType): how the file builds those that the host draws, and which one a chart of
/// any program is.
namespace plotsmith::xlsx {

class ChartPart;

/// What a chart type asks of each of its series, beside the plot group.
enum class SeriesTrait { kNone, kNoMarkers, kMarkers, kMarkersOnly, kExploded, kFlatBubble, kBubble3D };

/// A chart type of Excel as the file builds it (ECMA-376-1, 21.2.2).
struct ChartTypeEntry {
  std::int32_t number;         ///< XlChartType
  std::string_view element;    ///< the plot group's
  std::string_view direction;  ///< `barDir`, empty where the group has none
  std::string_view grouping;   ///< `grouping`, likewise
  SeriesTrait trait = SeriesTrait::kNone;

  bool Is3D() const { return element.find("3D") != std::string_view::npos; }
  bool IsArea() const { return element.starts_with("area"); }
  bool IsBar() const { return element.starts_with("bar"); }
  bool IsLine() const { return element == "lineChart"; }
  bool IsPie() const { return element.starts_with("pie"); }
  bool IsBubble() const { return element == "bubbleChart"; }
  /// Points have an X and a Y of their own, along two axes of values.
  bool HasXValues() const { return IsBubble() || element == "scatterChart"; }
  bool HasAxes() const { return !IsPie(); }
  /// The series may stand beside those of another such type, on the same axes.
  bool Combines() const { return !Is3D() && !IsHorizontal() && (IsArea() || IsBar() || IsLine()); }
  bool IsStacked() const { return grouping == "stacked" || grouping == "percentStacked"; }
  /// Series stand behind each other along an axis of their own.
  bool HasDepthAxis() const { return Is3D() && grouping == "standard"; }
  /// The category axis stands upright.
  bool IsHorizontal() const { return direction == "bar"; }
};

/// The types that the host draws.
extern const std::span<const ChartTypeEntry> kChartTypes;
/// Null for a type that the host doesn't draw.
const ChartTypeEntry* FindChartType(std::int32_t number);

/// The type of a series; xlCombination where it is none of Excel's. A line of which only the markers are seen
/// is none.
std::int32_t TypeOfSeries(pugi::xml_node series);
/// The type that the chart's series have in common, else xlCombination. Without a series, that of its first
/// group.
std::int32_t TypeOfChart(ChartPart& part);

/// A type of the group's kind and direction; null for a kind that the host doesn't draw. What of that kind
/// the series are, and how they are stacked, only their types say.
const ChartTypeEntry* TypeOfGroup(pugi::xml_node group);

}  // namespace plotsmith::xlsx
