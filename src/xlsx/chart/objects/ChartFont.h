#pragma once

#include <functional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "host/excel/Font.h"
#include "xlsx/chart/rules/ChartTextLook.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The font of a chart element for the port. The font of a title is that of all its runs. Other elements have
/// no text of their own, so their font is the default of their text properties. `looks` returns the present
/// formats of the text. `element` returns the element, which is made if it is missing.
excel::Ref<excel::Font> MakeFont(ChartPart& part, std::function<std::vector<TextLook>()> looks,
                                 std::function<pugi::xml_node()> element, std::string journalPath);

}  // namespace plotsmith::xlsx
