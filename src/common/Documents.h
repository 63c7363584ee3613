#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dom/Dom.h"

namespace plotsmith {

/// Returns the text of an attribute. A missing attribute gives "", like an empty one; callers depend on that.
std::string GetAttributeText(const dom::IXMLDOMElement& oElement, const char* sAttribute);
/// Returns the text at the beginning of a child element; "" if there is no such child, or no text in it.
std::string GetChildText(const dom::IXMLDOMElement& oElement, const char* sChild);
/// Returns the attribute as a whole number. Raises error 13 if it isn't one.
std::int32_t GetAttributeLong(const dom::IXMLDOMElement& oElement, const char* sAttribute);
/// Returns True if an `attribute` element of the group ("dynamic-attributes" or "static-attributes") has the
/// setting.
bool HasSetting(const dom::IXMLDOMElement& oChartElement, const char* sGroup, std::string_view sSetting);
/// Removes the first child element with the name, if there is one.
void RemoveChild(dom::IXMLDOMElement& oElement, const char* sChild);
/// Makes an empty document. Its parser doesn't validate, loads no external resources, and keeps white space.
dom::IXMLDOMDocument2 NewXMLDocument();

}  // namespace plotsmith
