#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

/// The texts of a chart: titles, and labels with their own text.
namespace plotsmith::xlsx {

class ChartPart;

/// The text of a title, with line feeds between lines. Empty for an automatic title.
std::string TitleText(ChartPart& part, pugi::xml_node title);
/// The title that the chart shows; absent if it shows none. A chart of one series without a title shows the
/// name of the series, unless the automatic title was deleted.
std::optional<std::string> ShownTitle(ChartPart& part);
/// Sets the text of a title or a label, one paragraph for each line. The format of the old text is kept.
void SetTitleText(pugi::xml_node title, std::string_view text);

/// The bodies with the text format of an element: its rich text, otherwise its text properties, which are
/// made if they are missing. For the labels of a series, the bodies of single points are included.
std::vector<pugi::xml_node> TextBodies(pugi::xml_node element);
/// Rotates a text body by degrees from -90 to 90, or as xlHorizontal, xlUpward, xlDownward or xlVertical.
/// Returns false for other values.
bool SetTextOrientation(pugi::xml_node body, std::int32_t orientation);

}  // namespace plotsmith::xlsx
