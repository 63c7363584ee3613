#include "cli/check/ReadBackCheck.h"

#include <algorithm>
#include <vector>

#include "cli/check/Words.h"
#include "common/CommonFunctions.h"

namespace plotsmith::cli {
namespace {

using dom::IXMLDOMElement;

/// One thing that read-back overwrites, in the definition and on the chart.
struct Aspect {
  const char* what;     ///< "title"
  bool stored = false;  ///< whether the definition says anything about it
  std::string saidByDefinition = {}, keptOnChart = {};
};

bool HasAttribute(const IXMLDOMElement& element, std::string_view name) {
  const auto attributes = element.attributes();
  return std::any_of(attributes.begin(), attributes.end(),
                     [&](const auto& attribute) { return attribute.name == name; });
}

/// The texts of one attribute of all elements that a query finds, as a list.
std::string AttributeList(const IXMLDOMElement& chart, const char* query, const char* attribute) {
  std::vector<std::string> texts;
  for (const IXMLDOMElement& element : chart.selectNodes(query)) {
    texts.push_back(GetAttributeText(element, attribute));
  }
  std::sort(texts.begin(), texts.end());
  return texts.empty() ? "" : Listed(texts);
}

Aspect AttributeAspect(const IXMLDOMElement& stored, const IXMLDOMElement& read, const char* attribute,
                       const char* what) {
  const std::string said = GetAttributeText(stored, attribute);
  return {what, !said.empty() || HasAttribute(stored, attribute), said, GetAttributeText(read, attribute)};
}

/// The axis of a type, "label" or "value"; Nothing if the definition names none.
IXMLDOMElement FindAxis(const IXMLDOMElement& chart, std::string_view type) {
  for (const IXMLDOMElement& axis : chart.selectNodes("axes/axis")) {
    if (GetAttributeText(axis, "type") == type) return axis;
  }
  return {};
}

Aspect AxisAspect(const IXMLDOMElement& stored, const IXMLDOMElement& read, const char* type,
                  const char* what) {
  const auto label = [](const IXMLDOMElement& axis) {
    return axis ? GetAttributeText(axis, "label") : std::string();
  };
  const IXMLDOMElement axis = FindAxis(stored, type);
  if (!axis) return {what};
  return {what, true, label(axis), label(FindAxis(read, type))};
}

Aspect ListAspect(const IXMLDOMElement& stored, const IXMLDOMElement& read, const char* group,
                  const char* child, const char* attribute, const char* what) {
  if (!stored.selectSingleNode(group)) return {what};
  const std::string query = std::string(group) + "/" + child;
  return {what, true, AttributeList(stored, query.c_str(), attribute),
          AttributeList(read, query.c_str(), attribute)};
}

std::vector<Aspect> Aspects(const IXMLDOMElement& stored, const IXMLDOMElement& read, AxisTitles axisTitles) {
  std::vector<Aspect> aspects = {
      AttributeAspect(stored, read, "title", "title"),
      AttributeAspect(stored, read, "type", "type"),
      AttributeAspect(stored, read, "number-format", "number format"),
      ListAspect(stored, read, "dynamic-attributes", "attribute", "setting", "setting"),
      {"comment", static_cast<bool>(stored.selectSingleNode("comment")), GetChildText(stored, "comment"),
       GetChildText(read, "comment")}};
  if (axisTitles == AxisTitles::kCompared) {
    aspects.push_back(AxisAspect(stored, read, "label", "title of the label axis"));
    aspects.push_back(AxisAspect(stored, read, "value", "title of the value axis"));
  }
  // A strategic bucket chart always has values on the marks of its buckets.
  if (GetAttributeText(read, "type") != "strategic bucket") {
    aspects.push_back(ListAspect(stored, read, "data-labels", "data-label", "show", "data label"));
  }
  return aspects;
}

std::string Sentence(const Aspect& aspect) {
  const std::string kept =
      aspect.keptOnChart.empty()
          ? std::string("The chart was kept without ") + aspect.what
          : std::string("The chart's own ") + aspect.what + " " + Quoted(aspect.keptOnChart) + " was kept";
  return kept + "; the definition said " +
         (aspect.saidByDefinition.empty() ? "none" : Quoted(aspect.saidByDefinition)) + ".";
}

}  // namespace

Findings CheckReadBack(const IXMLDOMElement& stored, const IXMLDOMElement& read, const std::string& place,
                       AxisTitles axisTitles) {
  Findings findings;
  for (const Aspect& aspect : Aspects(stored, read, axisTitles)) {
    if (!aspect.stored || aspect.saidByDefinition == aspect.keptOnChart) continue;
    findings.push_back({place, FindingKind::kChart, Sentence(aspect)});
  }
  return findings;
}

bool IsDefinitionNewer(xlsx::Workbook& book, const IXMLDOMElement& stored, const std::string& chartPart) {
  if (GetAttributeText(stored, "ps-chart-schema-version").empty()) return true;
  if (!book.Package().Has(chartPart)) return false;
  const std::string part = book.Package().Read(chartPart);
  // Spreadsheet programs end the line of the XML declaration, which Plotsmith doesn't.
  const auto end = part.find("?>");
  return !part.starts_with("<?xml") || end + 2 >= part.size() || part[end + 2] == '<';
}

}  // namespace plotsmith::cli
