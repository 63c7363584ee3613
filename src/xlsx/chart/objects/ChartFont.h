#pragma once

#include <functional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "host/excel/Font.h"
#include "xlsx/chart/rules/ChartTextLook.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The font of a chart's element. A title's font is that of all its runs; of anything else, which has no text
/// of its own, it is the default of its text properties. `looks` tells how the text looks now, `element` is
/// what holds it, made where it is missing.
excel::Ref<excel::Font> MakeFont(ChartPart& part, std::function<std::vector<TextLook>()> looks,
                                 std::function<pugi::xml_node()> element, std::string journalPath);

}  // namespace plotsmith::xlsx
