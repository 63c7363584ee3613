#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>

#include "render/model/ChartModel.h"
#include "xlsx/chart/rules/ChartTextLook.h"

namespace plotsmith::xlsx {
class ChartPart;
class Theme;
}  // namespace plotsmith::xlsx

/// Fillings, lines and texts of DrawingML as a chart part has them.
namespace plotsmith::render {

/// What colours mean: those of a chart, with its own theme and map, or of a sheet's shapes.
class Palette {
 public:
  /// Reads colours as a chart does; also where a chart is given for a palette.
  Palette(xlsx::ChartPart& part) : part_(&part) {}
  explicit Palette(const xlsx::Theme& theme) : theme_(&theme) {}

  /// Nothing if the colour can't be known.
  std::optional<std::int32_t> Color(pugi::xml_node holder) const;
  const xlsx::Theme& Theme() const;
  /// The bytes of the picture of a filling (a:blipFill) in a chart part; empty if it can't be had.
  std::string Picture(pugi::xml_node fill) const;

 private:
  xlsx::ChartPart* part_ = nullptr;
  const xlsx::Theme* theme_ = nullptr;
};

/// A colour element's parent (a:solidFill, a:fgClr) with its transparency; nothing if it can't be known.
std::optional<Color> ReadColor(const Palette& palette, pugi::xml_node holder);
/// A filling element (a:solidFill, a:gradFill, a:pattFill, a:noFill); `automatic` for a null node or one that
/// can't be known.
Fill ReadFill(const Palette& palette, pugi::xml_node fill, const Fill& automatic);
/// A line (a:ln) over the automatic one.
Stroke ReadStroke(const Palette& palette, pugi::xml_node line, const Stroke& automatic);
/// Shape properties (c:spPr), which may be a null node, over the automatic style.
ShapeStyle ReadStyle(const Palette& palette, pugi::xml_node properties, const ShapeStyle& automatic);

/// How the text of an element is set that has text properties (c:txPr) and no text of its own.
TextStyle ReadTextStyle(xlsx::ChartPart& part, pugi::xml_node element, xlsx::TextRole role);
/// The text of an element (c:tx): its own runs, or that of its cells, or `automatic`.
RichText ReadText(xlsx::ChartPart& part, pugi::xml_node element, xlsx::TextRole role,
                  const std::string& automatic);
/// c:layout of an element; nothing if it is automatic.
std::optional<ManualLayout> ReadLayout(pugi::xml_node element);

/// What Excel gives an element where nothing is set, by the chart's style.
class AutomaticStyles {
 public:
  explicit AutomaticStyles(xlsx::ChartPart& part) : part_(part) {}

  ShapeStyle ChartArea() const;
  /// `isFlat` says that values are drawn along flat axes; pies and charts in 3-D have no filling.
  ShapeStyle PlotArea(bool isFlat) const;
  Stroke AxisLine() const;
  Stroke MinorGridline() const;
  /// The colour number `index` of `count` series or points.
  Color SeriesColor(std::size_t index, std::size_t count) const;

 private:
  xlsx::ChartPart& part_;
};

}  // namespace plotsmith::render
