#pragma once

#include <pugixml.hpp>
#include <string_view>

#include "dom/Dom.h"

namespace plotsmith::dom {

/// Parses XML and appends its nodes to `parent`, which becomes the parent of the root element. Entities that
/// the text declares are expanded; external ones are an error, because nothing outside of the text is read.
/// The declaration and the document type have no nodes. After an error, `parent` contains the nodes in front
/// of it.
IXMLDOMParseError AppendXml(pugi::xml_node parent, std::string_view xml);

}  // namespace plotsmith::dom
