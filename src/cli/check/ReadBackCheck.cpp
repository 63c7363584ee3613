#include "cli/check/ReadBackCheck.h"

#include <algorithm>
#include <utility>

#include "cli/check/Words.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "common/Values.h"

namespace plotsmith::cli {
namespace {

using dom::IXMLDOMElement;

/// A setting that read-back overwrites, in the definition and on the chart.
struct Aspect {
  std::string what;     ///< The name for messages, such as "title".
  bool stored = false;  ///< Whether the definition contains the setting.
  std::string inDefinition = {}, onChart = {};
};

bool HasAttribute(const IXMLDOMElement& element, std::string_view name) {
  const auto attributes = element.attributes();
  return std::any_of(attributes.begin(), attributes.end(),
                     [&](const auto& attribute) { return attribute.name == name; });
}

/// Returns the values of an attribute in all elements that match a query, as a list.
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
  const std::string before = GetAttributeText(stored, attribute);
  return {what, !before.empty() || HasAttribute(stored, attribute), before,
          GetAttributeText(read, attribute)};
}

/// Returns the axis of a type ("label" or "value"), or Nothing if the definition has none.
IXMLDOMElement FindAxis(const IXMLDOMElement& chart, std::string_view type) {
  for (const IXMLDOMElement& axis : chart.selectNodes("axes[1]/axis")) {
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

/// A look property that read-back stores in `auto-persistence`, with its name for messages.
struct PersistedLook {
  std::string property, what;
};

const std::vector<PersistedLook>& PersistedLooks() {
  static const std::vector<PersistedLook> looks = [] {
    std::vector<PersistedLook> list = {{"legend-visibility", "visibility of the legend"},
                                       {"legend-position", "position of the legend"}};
    const std::pair<std::string, std::string> texts[] = {{"legend", "legend"},
                                                         {"label", "labels"},
                                                         {"bucket-label", "labels on the marks"},
                                                         {"LabelAxis", "title of the label axis"},
                                                         {"ValueAxis", "title of the value axis"}};
    const std::pair<std::string, std::string> properties[] = {
        {"name", "font"}, {"size", "font size"}, {"style", "font style"}, {"color", "font colour"}};
    for (const auto& [key, text] : texts) {
      for (const auto& [property, what] : properties)
        list.push_back({key + "-font-" + property, what + " of the " + text});
    }
    return list;
  }();
  return looks;
}

Aspect PersistAspect(const IXMLDOMElement& stored, const IXMLDOMElement& read, const PersistedLook& look) {
  const auto find = [&](const IXMLDOMElement& chart) {
    for (const IXMLDOMElement& persist : chart.selectNodes("auto-persistence[1]/persist")) {
      if (GetAttributeText(persist, "property") == look.property) return persist;
    }
    return IXMLDOMElement();
  };
  const IXMLDOMElement before = find(stored), after = find(read);
  if (!before || !after) return {look.what};
  Aspect aspect{look.what, true, GetAttributeText(before, "value"), GetAttributeText(after, "value")};
  // An empty value means that the chart had no such title or marks.
  aspect.stored = !aspect.inDefinition.empty() && !aspect.onChart.empty();
  return aspect;
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
  // A strategic bucket chart always shows values on the marks of its buckets.
  if (GetAttributeText(read, "type") != "strategic bucket") {
    aspects.push_back(ListAspect(stored, read, "data-labels", "data-label", "show", "data label"));
  }
  for (const PersistedLook& look : PersistedLooks()) aspects.push_back(PersistAspect(stored, read, look));
  return aspects;
}

std::string Sentence(const Aspect& aspect) {
  const auto shown = [](const std::string& text) { return text.empty() ? "none" : Quoted(text); };
  return "The " + aspect.what + " is " + shown(aspect.onChart) + " on the chart and " +
         shown(aspect.inDefinition) + " in the definition.";
}

/// Finds the settings in which a definition differs from its drawn chart. `stored` is the `chart` element in
/// the row, and `read` is the same element after a load has read the chart back. Settings that `stored`
/// doesn't contain aren't differences.
Findings Differences(const IXMLDOMElement& stored, const IXMLDOMElement& read, const std::string& place,
                     AxisTitles axisTitles) {
  Findings findings;
  for (const Aspect& aspect : Aspects(stored, read, axisTitles)) {
    if (!aspect.stored || aspect.inDefinition == aspect.onChart) continue;
    findings.push_back({place, FindingKind::kChart, Sentence(aspect), Severity::kKeepsChart});
  }
  return findings;
}

/// Returns true if the definition was changed after the chart. A person changes a chart in a spreadsheet
/// program, which rewrites the chart part in its own format. So a chart part that still has Plotsmith's
/// format has not been changed by hand since it was drawn. A definition that Plotsmith has not stored yet is
/// also newer.
bool IsDefinitionNewer(xlsx::Workbook& book, const IXMLDOMElement& stored, const std::string& chartPart) {
  if (GetAttributeText(stored, "ps-chart-schema-version").empty()) return true;
  if (!book.Package().Has(chartPart)) return false;
  const std::string part = book.Package().Read(chartPart);
  // Spreadsheet programs write a line break after the XML declaration, and Plotsmith doesn't.
  const auto end = part.find("?>");
  return !part.starts_with("<?xml") || end + 2 >= part.size() || part[end + 2] == '<';
}

}  // namespace

std::map<std::string, Findings> CheckReadBack(xlsx::Workbook& book,
                                              const std::vector<CheckedDefinition>& rows,
                                              AxisTitles axisTitles) {
  std::map<std::string, Findings> found;
  for (const CheckedDefinition& row : rows) {
    if (row.IsLost() || row.IsUnread() || !CollectionHasKey(row.id, colCharts)) continue;
    const auto stored = row.document.selectSingleNode("chart");
    Findings differences =
        Differences(stored, colCharts->Item(row.id).selectSingleNode("chart"), row.place, axisTitles);
    if (differences.empty() || !IsDefinitionNewer(book, stored, row.chartPart)) continue;
    found[row.id] = std::move(differences);
  }
  return found;
}

}  // namespace plotsmith::cli
