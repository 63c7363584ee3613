#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

/// The texts of a chart that are its own: titles, and labels that somebody wrote.
namespace plotsmith::xlsx {

class ChartPart;

/// The text of a title, lines separated by line feeds. Empty for one that leaves its text to Excel.
std::string TitleText(ChartPart& part, pugi::xml_node title);
/// The title that the chart shows; nothing if it shows none. A chart of one series is titled by its name
/// without a title of its own, as long as nobody took that away.
std::optional<std::string> ShownTitle(ChartPart& part);
/// The text of a title, or of a label, that is its own and not a cell's: one paragraph a line, dressed as it
/// was before.
void SetTitleText(pugi::xml_node title, std::string_view text);

/// Where an element's text is dressed, made where it is missing: its own text, else the text properties that
/// stand for it. Of a series' labels, also those of single points that differ.
std::vector<pugi::xml_node> TextBodies(pugi::xml_node element);
/// Turns a body of text: degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical.
/// False for anything else.
bool SetTextOrientation(pugi::xml_node body, std::int32_t orientation);

}  // namespace plotsmith::xlsx
