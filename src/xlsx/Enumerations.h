#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace plotsmith::xlsx {

/// A member of one of Excel's enumerations and how the file format says it.
struct EnumerationEntry {
  std::int32_t number;     ///< Excel's
  std::string_view name;   ///< Excel's
  std::string_view token;  ///< the file format's
};

/// One enumeration: the first entry of a number, or of a token, is the one that counts.
struct Enumeration {
  std::span<const EnumerationEntry> entries;
  std::string_view absent;  ///< the token that holds where the file says nothing; empty if there is none

  std::optional<std::string_view> Token(std::int32_t number) const {
    for (const EnumerationEntry& entry : entries) {
      if (entry.number == number) return entry.token;
    }
    return std::nullopt;
  }
  std::optional<std::int32_t> Number(std::string_view token) const {
    for (const EnumerationEntry& entry : entries) {
      if (entry.token == token) return entry.number;
    }
    return std::nullopt;
  }
};

/// XlLegendPosition, ST_LegendPos.
extern const Enumeration kLegendPositions;
/// XlDataLabelPosition, ST_DLblPos.
extern const Enumeration kLabelPositions;
/// MsoPatternType, ST_PresetPatternVal.
extern const Enumeration kPatterns;
/// XlPattern, as far as it is a pattern of two colours, ST_PresetPatternVal.
extern const Enumeration kInteriorPatterns;
/// XlLineStyle, ST_PresetLineDashVal.
extern const Enumeration kLineStyles;
/// XlBorderWeight, the width of a line in EMU.
extern const Enumeration kLineWeights;
/// XlMarkerStyle, ST_MarkerStyle.
extern const Enumeration kMarkerStyles;
/// XlHAlign, ST_TextAlignType, and XlVAlign, ST_TextAnchoringType.
extern const Enumeration kHorizontalAlignments;
extern const Enumeration kVerticalAlignments;
/// XlTickLabelPosition, ST_TickLblPos.
extern const Enumeration kTickLabelPositions;
/// XlAxisCrosses, ST_Crosses.
extern const Enumeration kCrosses;
/// XlDisplayUnit, ST_BuiltInUnit.
extern const Enumeration kDisplayUnits;

/// What a chart type asks of each of its series, beside the plot group.
enum class SeriesTrait { kNone, kNoMarkers, kMarkers, kMarkersOnly, kExploded, kFlatBubble, kBubble3D };

/// A chart type of Excel as the file builds it (ECMA-376-1, 21.2.2).
struct ChartTypeEntry {
  std::int32_t number;         ///< XlChartType
  std::string_view name;       ///< Excel's
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

}  // namespace plotsmith::xlsx
