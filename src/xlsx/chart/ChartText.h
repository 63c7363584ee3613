#pragma once

#include <cstdint>
#include <functional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Font.h"
#include "xlsx/chart/ChartTextLook.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The text of a title, or of a label, that is its own and not a cell's: one paragraph a line, dressed as it
/// was before.
void SetTitleText(pugi::xml_node title, std::string_view text);

/// Where an element's text is dressed, made where it is missing: its own text, else the text properties that
/// stand for it. Of a series' labels, also those of single points that differ.
std::vector<pugi::xml_node> TextBodies(pugi::xml_node element);
/// Turns a body of text: degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical.
/// False for anything else.
bool SetTextOrientation(pugi::xml_node body, std::int32_t orientation);

/// The font of a chart's element. A title's font is that of all its runs; of anything else, which has no text
/// of its own, it is the default of its text properties. `looks` tells how the text looks now, `element` is
/// what holds it, made where it is missing.
excel::Ref<excel::Font> MakeFont(ChartPart& part, std::function<std::vector<TextLook>()> looks,
                                 std::function<pugi::xml_node()> element, std::string journalPath);

}  // namespace plotsmith::xlsx
