#pragma once

#include <functional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Font.h"
#include "xlsx/ChartLook.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The text of a title that is its own and not a cell's: one paragraph a line, dressed as it was before.
void SetTitleText(pugi::xml_node title, std::string_view text);

/// The font of a chart's element. A title's font is that of all its runs; of anything else, which has no text
/// of its own, it is the default of its text properties. `looks` tells how the text looks now, `element` is
/// what holds it, made where it is missing.
excel::Ref<excel::Font> MakeFont(ChartPart& part, std::function<std::vector<TextLook>()> looks,
                                 std::function<pugi::xml_node()> element, std::string journalPath);

}  // namespace plotsmith::xlsx
