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

/// Reads fills, lines and texts of DrawingML.
namespace plotsmith::render {

/// Resolves the colours and pictures of a chart, or of the shapes on a sheet. A chart can have its own theme
/// and colour map.
class Palette {
 public:
  /// Makes the palette of a chart. The conversion is implicit, so that a chart can be given as a palette.
  Palette(xlsx::ChartPart& part) : part_(&part) {}
  /// Makes the palette of the shapes of a sheet.
  explicit Palette(const xlsx::Theme& theme) : theme_(&theme) {}

  /// Returns the colour in an element such as a:solidFill, as red + 256 * green + 65536 * blue. Returns
  /// nothing if the colour isn't known.
  std::optional<std::int32_t> Color(pugi::xml_node holder) const;
  /// The theme whose colours are used.
  const xlsx::Theme& Theme() const;
  /// Returns the bytes of the picture of a fill (a:blipFill) in a chart part, or an empty text if it can't be
  /// read.
  std::string Picture(pugi::xml_node fill) const;

 private:
  xlsx::ChartPart* part_ = nullptr;
  const xlsx::Theme* theme_ = nullptr;
};

/// Reads the colour in an element (a:solidFill, a:fgClr) with its opacity. Returns nothing if it isn't known.
std::optional<Color> ReadColor(const Palette& palette, pugi::xml_node holder);
/// Reads a fill (a:solidFill, a:gradFill, a:pattFill, a:blipFill, a:noFill). Returns `automatic` if the node
/// is null or another element.
Fill ReadFill(const Palette& palette, pugi::xml_node fill, const Fill& automatic);
/// Reads a line (a:ln). Properties that it doesn't set are those of `automatic`.
Stroke ReadStroke(const Palette& palette, pugi::xml_node line, const Stroke& automatic);
/// Reads shape properties (c:spPr). Properties that are not set are those of `automatic`. The node may be
/// null.
ShapeStyle ReadStyle(const Palette& palette, pugi::xml_node properties, const ShapeStyle& automatic);

/// Reads the text properties (c:txPr) of an element that contains no text, such as an axis.
TextStyle ReadTextStyle(xlsx::ChartPart& part, pugi::xml_node element, xlsx::TextRole role);
/// Reads the text of an element (c:tx): its runs, or the text of the cells that it refers to. Returns
/// `automatic` if it has neither.
RichText ReadText(xlsx::ChartPart& part, pugi::xml_node element, xlsx::TextRole role,
                  const std::string& automatic);
/// Reads the layout of an element (c:layout). Returns nothing if it is automatic.
std::optional<ManualLayout> ReadLayout(pugi::xml_node element);

/// The formats of elements that the file doesn't format. They depend on the style of the chart.
class AutomaticStyles {
 public:
  /// Makes the formats of a chart. `part` must outlive this object.
  explicit AutomaticStyles(xlsx::ChartPart& part) : part_(part) {}

  /// Returns the fill and the border of the chart area.
  ShapeStyle ChartArea() const;
  /// Returns the fill of the plot area. `isFlat` is true if the chart has axes and isn't in 3-D. Other plot
  /// areas have no fill.
  ShapeStyle PlotArea(bool isFlat) const;
  /// Returns the line of axes and of major gridlines.
  Stroke AxisLine() const;
  /// Returns the line of minor gridlines.
  Stroke MinorGridline() const;
  /// Returns the colour of a series or a point by its index, from 0. `count` is the number of series or
  /// points.
  Color SeriesColor(std::size_t index, std::size_t count) const;

 private:
  xlsx::ChartPart& part_;
};

}  // namespace plotsmith::render
