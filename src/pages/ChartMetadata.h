#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "dom/Dom.h"

/// @file
/// What the pages write into a chart document, and read from it: `oChartDoc`, element `chart`.
namespace plotsmith {

/// The element `chart` of the document being edited.
dom::IXMLDOMElement ChartElement();

/// Takes away the first child of each name, if there is one.
void RemoveChildren(std::initializer_list<const char*> aNames);
/// A new element at the end of `oParent`, empty.
dom::IXMLDOMElement AppendElement(dom::IXMLDOMElement oParent, const char* sName);
/// An element of `chart` with a `column` for each name.
dom::IXMLDOMElement AppendColumns(const char* sElement, const std::vector<std::string>& aColumns);
/// The same with the direction in which the headings are: "rows", "columns" or "none".
void AppendHeadings(const char* sElement, const char* sHeadingsIn, const std::vector<std::string>& aColumns);
/// A `data-labels` that shows "values" or "percentages"; with an empty text, none.
void AppendDataLabels(const std::string& sShow);

/// A setting's name, and whether it is on.
using Setting = std::pair<const char*, bool>;
/// An element of `chart` with an `attribute` for each setting that is on.
void AppendSettings(const char* sElement, std::initializer_list<Setting> aSettings);

/// The names of the columns in an element of `chart`, such as "categories"; empty without it.
std::vector<std::string> ColumnsOf(const char* sElement);

}  // namespace plotsmith
