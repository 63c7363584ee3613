#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "dom/Dom.h"

namespace plotsmith::cli {

/// Returns the facts of a table document as JSON: id, position, and the columns with their kinds.
nlohmann::ordered_json TableFacts(const dom::IXMLDOMElement& table);
/// Returns the position of a table in words: "sheet Data1, rows 1 to 5 (4 of data), from column 1".
std::string TablePlace(const nlohmann::ordered_json& facts);

}  // namespace plotsmith::cli
