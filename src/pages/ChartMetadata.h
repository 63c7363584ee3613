#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "dom/Dom.h"

/// @file
/// Functions with which the pages read and write the chart document: `oChartDoc`, element `chart`.
namespace plotsmith {

/// Returns the element `chart` of the document that is being edited.
dom::IXMLDOMElement ChartElement();

/// Removes the first child with each of these names, if it exists.
void RemoveChildren(std::initializer_list<const char*> aNames);
/// Appends an empty element to `oParent` and returns it.
dom::IXMLDOMElement AppendElement(dom::IXMLDOMElement oParent, const char* sName);
/// Appends an element to `chart` with a `column` for each name.
dom::IXMLDOMElement AppendColumns(const char* sElement, const std::vector<std::string>& aColumns);
/// Appends an element to `chart` with `headings-in` ("rows", "columns" or "none") and a `column` for each
/// name.
void AppendHeadings(const char* sElement, const char* sHeadingsIn, const std::vector<std::string>& aColumns);
/// Appends a `data-labels` that shows "values" or "percentages". An empty text appends nothing.
void AppendDataLabels(const std::string& sShow);

/// The name of a setting, and whether it is on.
using Setting = std::pair<const char*, bool>;
/// Appends an element to `chart` with an `attribute` for each setting that is on.
void AppendSettings(const char* sElement, std::initializer_list<Setting> aSettings);

/// Returns the names of the columns in an element of `chart`, such as "categories". The list is empty if
/// there is no such element.
std::vector<std::string> ColumnsOf(const char* sElement);

}  // namespace plotsmith
