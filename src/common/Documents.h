#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dom/Dom.h"

namespace plotsmith {

/// The text of an attribute. An attribute that is missing reads as "", like an empty one; callers rely on
/// that.
std::string GetAttributeText(const dom::IXMLDOMElement& oElement, const char* sAttribute);
/// The text at the beginning of a child element; "" if there is no such child, or no text in it.
std::string GetChildText(const dom::IXMLDOMElement& oElement, const char* sChild);
/// The attribute as a whole number; error 13 if it isn't one.
std::int32_t GetAttributeLong(const dom::IXMLDOMElement& oElement, const char* sAttribute);
/// Whether an `attribute` element of the group ("dynamic-attributes" or "static-attributes") has the setting.
bool HasSetting(const dom::IXMLDOMElement& oChartElement, const char* sGroup, std::string_view sSetting);
/// Removes the first child element of the name, if there is one.
void RemoveChild(dom::IXMLDOMElement& oElement, const char* sChild);
/// An empty document. Its parser doesn't validate, loads nothing from outside the text, and keeps white
/// space.
dom::IXMLDOMDocument2 NewXMLDocument();

}  // namespace plotsmith
