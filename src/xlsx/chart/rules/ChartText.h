#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

/// The texts of a chart: titles, and labels with a text of their own.
namespace plotsmith::xlsx {

class ChartPart;

/// The text of a title, with line feeds between lines. Empty for a title whose text Excel chooses.
std::string TitleText(ChartPart& part, pugi::xml_node title);
/// The title that the chart shows; nothing if it shows none. A chart of one series without a title shows the
/// series' name, unless the automatic title was deleted.
std::optional<std::string> ShownTitle(ChartPart& part);
/// Sets the text of a title or a label, one paragraph a line. The format of the former text is kept.
void SetTitleText(pugi::xml_node title, std::string_view text);

/// The bodies that hold the text format of an element: its rich text, else its text properties, which are
/// made if they are missing. For the labels of a series, those of single points that differ are included.
std::vector<pugi::xml_node> TextBodies(pugi::xml_node element);
/// Rotates a body of text: degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical.
/// False for anything else.
bool SetTextOrientation(pugi::xml_node body, std::int32_t orientation);

}  // namespace plotsmith::xlsx
