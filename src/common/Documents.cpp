#include "common/Documents.h"

#include <algorithm>

#include "runtime/Variant.h"

namespace plotsmith {

using runtime::Variant;

std::string GetAttributeText(const dom::IXMLDOMElement& oElement, const char* sAttribute) {
  const Variant vText = oElement.getAttribute(sAttribute);
  return vText.IsNull() ? std::string() : runtime::CStr(vText);
}

std::string GetChildText(const dom::IXMLDOMElement& oElement, const char* sChild) {
  const auto oChild = oElement.selectSingleNode(sChild);
  const auto oText = oChild ? oChild.firstChild() : dom::IXMLDOMNode();
  return oText ? oText.nodeValue() : std::string();
}

std::int32_t GetAttributeLong(const dom::IXMLDOMElement& oElement, const char* sAttribute) {
  return runtime::CLng(GetAttributeText(oElement, sAttribute));
}

bool HasSetting(const dom::IXMLDOMElement& oChartElement, const char* sGroup, std::string_view sSetting) {
  const auto aAttributes = oChartElement.selectNodes((std::string(sGroup) + "[1]/attribute").c_str());
  return std::any_of(aAttributes.begin(), aAttributes.end(), [&](const dom::IXMLDOMElement& oAttribute) {
    return GetAttributeText(oAttribute, "setting") == sSetting;
  });
}

void RemoveChild(dom::IXMLDOMElement& oElement, const char* sChild) {
  if (auto oChild = oElement.selectSingleNode(sChild)) oElement.removeChild(oChild);
}

dom::IXMLDOMDocument2 NewXMLDocument() { return dom::IXMLDOMDocument2::Create(); }

}  // namespace plotsmith
