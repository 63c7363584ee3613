#include "pages/ChartMetadata.h"

#include "common/Documents.h"
#include "common/RunVariables.h"

namespace plotsmith {

using dom::IXMLDOMElement;

IXMLDOMElement ChartElement() { return oChartDoc.selectSingleNode("chart"); }

void RemoveChildren(std::initializer_list<const char*> aNames) {
  IXMLDOMElement oChart = ChartElement();
  for (const char* sName : aNames) RemoveChild(oChart, sName);
}

IXMLDOMElement AppendElement(IXMLDOMElement oParent, const char* sName) {
  IXMLDOMElement oElement = oChartDoc.createElement(sName);
  oParent.appendChild(oElement);
  return oElement;
}

IXMLDOMElement AppendColumns(const char* sElement, const std::vector<std::string>& aColumns) {
  IXMLDOMElement oElement = AppendElement(ChartElement(), sElement);
  for (const std::string& sColumn : aColumns) AppendElement(oElement, "column").setAttribute("name", sColumn);
  return oElement;
}

void AppendHeadings(const char* sElement, const char* sHeadingsIn, const std::vector<std::string>& aColumns) {
  AppendColumns(sElement, aColumns).setAttribute("headings-in", sHeadingsIn);
}

void AppendDataLabels(const std::string& sShow) {
  const IXMLDOMElement oLabels = AppendElement(ChartElement(), "data-labels");
  if (!sShow.empty()) AppendElement(oLabels, "data-label").setAttribute("show", sShow);
}

void AppendSettings(const char* sElement, std::initializer_list<Setting> aSettings) {
  const IXMLDOMElement oElement = AppendElement(ChartElement(), sElement);
  for (const auto& [sSetting, bOn] : aSettings) {
    if (bOn) AppendElement(oElement, "attribute").setAttribute("setting", sSetting);
  }
}

std::vector<std::string> ColumnsOf(const char* sElement) {
  std::vector<std::string> aNames;
  for (const IXMLDOMElement& oColumn :
       ChartElement().selectNodes((std::string(sElement) + "[1]/column").c_str())) {
    aNames.push_back(GetAttributeText(oColumn, "name"));
  }
  return aNames;
}

}  // namespace plotsmith
