#include "cli/check/DefinitionFormat.h"

#include <algorithm>

#include "cli/check/Words.h"
#include "common/Documents.h"

namespace plotsmith::cli {
namespace {

using Tokens = std::vector<std::string_view>;

const Tokens kTypeNames = {"area", "bar", "column", "pie", "bubble", "strategic bucket"};
const Tokens kPivotTypes = {"area", "bar", "column", "pie"};
const Tokens kBlockTypes = {"bubble", "strategic bucket"};
const Tokens kYesNo = {"yes", "no"};

struct AttributeFormat {
  std::string_view name;
  Tokens values = {};     ///< The valid values; empty means any.
  bool required = false;  ///< Whether it is required; an empty value counts as missing.
  bool isOwn = false;     ///< Whether only the system writes it.
};

struct ElementFormat {
  std::string_view name;
  std::vector<AttributeFormat> attributes = {};
  std::vector<ElementFormat> children = {};
  bool repeated = false;  ///< Whether it may be repeated.
};

/// A setting that can be changed on the chart by hand, with the chart types that have it.
struct DynamicSetting {
  std::string_view name;
  Tokens types;
};

// A strategic bucket chart is drawn as stacked columns, so reading it back can find this setting.
const DynamicSetting kDynamicSettings[] = {{"3D", kTypeNames},
                                           {"stacked", {"area", "bar", "column", "strategic bucket"}},
                                           {"100%", {"area", "bar", "column", "strategic bucket"}},
                                           {"exploded", {"pie"}}};

ElementFormat SettingFormat(Tokens settings) {
  return {.name = "attribute",
          .attributes = {{.name = "setting", .values = std::move(settings), .required = true}},
          .repeated = true};
}

/// Appends the properties of a font, whose names begin with `stem`.
void AppendFont(std::vector<std::string>& properties, const std::string& stem) {
  for (const char* end : {"name", "size", "style", "color", "autoscale"}) {
    properties.push_back(stem + "-font-" + end);
  }
}

ElementFormat PersistFormat() {
  static const std::vector<std::string> properties = [] {
    std::vector<std::string> list = {"legend-visibility", "legend-position", "legend-left", "legend-top",
                                     "label-font-background-color"};
    for (const char* stem : {"legend", "label", "bucket-label", "LabelAxis", "ValueAxis"})
      AppendFont(list, stem);
    return list;
  }();
  const Tokens names(properties.begin(), properties.end());
  return {.name = "persist",
          .attributes = {{.name = "property", .values = names, .required = true}, {"value"}},
          .repeated = true};
}

std::vector<ElementFormat> GroupFormats() {
  const ElementFormat column = {
      .name = "column",
      .attributes = {{.name = "name", .required = true}, {.name = "worksheet-column-number", .isOwn = true}},
      .repeated = true};
  std::vector<ElementFormat> formats;
  for (const ColumnGroup& group : ColumnGroups()) {
    ElementFormat& format = formats.emplace_back(ElementFormat{group.element, {}, {column}});
    if (!group.headingsIn.empty()) {
      format.attributes.push_back({.name = "headings-in", .values = group.headingsIn, .required = true});
    }
    if (format.name == "sort-order") {
      format.attributes.push_back({.name = "sort", .values = {"ascending", "descending"}, .required = true});
    }
  }
  return formats;
}

std::vector<AttributeFormat> ChartAttributes() {
  std::vector<AttributeFormat> attributes = {
      {"id"},           {"name"},
      {"title"},        {.name = "type", .values = kTypeNames, .required = true},
      {"table-id"},     {"strategic-bucket-table-id"},
      {"number-format"}};
  for (const char* name :
       {"ps-chart-schema-version", "chart-worksheet", "table-worksheet", "table-corrupted",
        "chart-area-crosshatched", "table-top-row", "table-left-column", "table-height", "header-row-count",
        "bucket-name-column-position", "bucket-value-column-position", "data-start-row"}) {
    attributes.push_back({.name = name, .isOwn = true});
  }
  return attributes;
}

const ElementFormat& ChartFormat() {
  static const ElementFormat chart = [] {
    ElementFormat format = {"chart", ChartAttributes(), GroupFormats()};
    const ElementFormat others[] = {
        {"axes",
         {},
         {{.name = "axis",
           .attributes = {{.name = "type", .values = {"label", "value"}, .required = true},
                          {"label"},
                          {"sticky", kYesNo}},
           .repeated = true}}},
        {"data-labels",
         {{"manual-labels", kYesNo}},
         {{.name = "data-label",
           .attributes = {{.name = "show", .values = {"values", "percentages"}, .required = true}},
           .repeated = true}}},
        {"dynamic-attributes", {}, {SettingFormat({})}},  // See CheckSettings.
        {"static-attributes",
         {},
         {SettingFormat({"show-zero-bubbles", "quadrants", "autoscale-x", "autoscale-y"})}},
        {"comment"},
        {"auto-persistence", {}, {PersistFormat()}}};
    format.children.insert(format.children.end(), std::begin(others), std::end(others));
    return format;
  }();
  return chart;
}

/// Returns true for namespace declarations and for attributes of other namespaces, which the system ignores.
bool IsForeign(const std::string& name) { return name == "xmlns" || name.find(':') != std::string::npos; }

bool Contains(const Tokens& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// Returns the valid values of an attribute as the end of a sentence.
std::string Allowed(const AttributeFormat& attribute) {
  return "; it can be " + Listed({attribute.values.begin(), attribute.values.end()}, "or") + ".";
}

/// Returns the attributes that a person or a program writes, as the end of a sentence.
std::string KnownAttributes(const ElementFormat& format) {
  std::vector<std::string> names;
  for (const AttributeFormat& attribute : format.attributes) {
    if (!attribute.isOwn) names.emplace_back(attribute.name);
  }
  return "; " + ThereAre(names) + ".";
}

std::string KnownChildren(const ElementFormat& format) {
  std::vector<std::string> names;
  for (const ElementFormat& child : format.children) names.emplace_back(child.name);
  return "; " + ThereAre(names) + ".";
}

/// Checks the elements of a definition.
class FormatCheck {
 public:
  explicit FormatCheck(const std::string& place) : place_(place) {}

  void CheckElement(const dom::IXMLDOMElement& element, const ElementFormat& format) {
    CheckAttributes(element, format);
    CheckChildren(element, format);
  }
  /// Finds settings that the chart type doesn't have.
  void CheckSettings(const dom::IXMLDOMElement& chart) {
    const std::string type = GetAttributeText(chart, "type");
    const bool isKnownType = Contains(kTypeNames, type);
    std::vector<std::string> allowed;
    for (const DynamicSetting& setting : kDynamicSettings) {
      if (!isKnownType || Contains(setting.types, type)) allowed.emplace_back(setting.name);
    }
    for (const auto& attribute : chart.selectNodes("dynamic-attributes/attribute")) {
      const std::string setting = GetAttributeText(attribute, "setting");
      if (setting.empty() || std::find(allowed.begin(), allowed.end(), setting) != allowed.end()) continue;
      Report((isKnownType ? Capitalized(ChartOf(type)) : "A chart") + " has no setting " + Quoted(setting) +
             "; it can have " + Listed(allowed) + ".");
    }
  }
  /// Finds invalid values of look properties.
  void CheckPersisted(const dom::IXMLDOMElement& chart) {
    const std::pair<std::string_view, Tokens> values[] = {
        {"legend-visibility", {"show", "hide"}},
        {"-font-style", {"Regular", "Bold", "Italic", "Bold Italic"}},
        {"-font-autoscale", {"True", "False"}}};
    for (const auto& persist : chart.selectNodes("auto-persistence/persist")) {
      const std::string property = GetAttributeText(persist, "property");
      for (const auto& [end, allowed] : values) {
        if (property.ends_with(end)) CheckValue({property, allowed}, GetAttributeText(persist, "value"));
      }
    }
  }
  Findings Take() { return std::move(findings_); }

 private:
  void Report(std::string sentence) {
    findings_.push_back({place_, FindingKind::kFormat, std::move(sentence)});
  }

  void CheckAttributes(const dom::IXMLDOMElement& element, const ElementFormat& format) {
    const auto owner = [&] { return "The element " + Quoted(format.name); };
    const auto attributes = element.attributes();
    for (const auto& [name, value] : attributes) {
      const auto known =
          std::find_if(format.attributes.begin(), format.attributes.end(),
                       [&, &text = name](const AttributeFormat& other) { return other.name == text; });
      if (known != format.attributes.end()) {
        CheckValue(*known, value);
      } else if (!IsForeign(name)) {
        Report(owner() + " has an unknown attribute " + Quoted(name) + KnownAttributes(format));
      }
    }
    for (const AttributeFormat& attribute : format.attributes) {
      if (!attribute.required || HasText(attributes, attribute.name)) continue;
      Report(owner() + " has no " + Quoted(attribute.name) +
             (attribute.values.empty() ? "." : Allowed(attribute)));
    }
  }

  static bool HasText(const std::vector<dom::IXMLDOMAttribute>& attributes, std::string_view name) {
    return std::any_of(attributes.begin(), attributes.end(), [&](const dom::IXMLDOMAttribute& attribute) {
      return attribute.name == name && !attribute.value.empty();
    });
  }

  void CheckValue(const AttributeFormat& attribute, const std::string& value) {
    if (value.empty() || attribute.values.empty() || Contains(attribute.values, value)) return;
    if (attribute.values == kTypeNames && value == "unknown") {
      Report("The type is 'unknown', because the chart was changed by hand to a type that isn't supported" +
             Allowed(attribute));
    } else {
      Report("The attribute " + Quoted(attribute.name) + " has an unknown value " + Quoted(value) +
             Allowed(attribute));
    }
  }

  void CheckChildren(const dom::IXMLDOMElement& element, const ElementFormat& format) {
    Tokens seen;
    for (const dom::IXMLDOMElement& child : element.childElements()) {
      const std::string name = child.tagName();
      const auto known = std::find_if(format.children.begin(), format.children.end(),
                                      [&](const ElementFormat& other) { return other.name == name; });
      if (known == format.children.end()) {
        Report("The element " + Quoted(format.name) + " has an unknown child " + Quoted(name) +
               KnownChildren(format));
        continue;
      }
      if (!known->repeated && Contains(seen, known->name)) {
        Report("The element " + Quoted(name) + " occurs twice, and only the first one is used.");
      }
      seen.push_back(known->name);
      CheckElement(child, *known);
    }
  }

  const std::string& place_;
  Findings findings_;
};

}  // namespace

Findings CheckFormat(const dom::IXMLDOMElement& chart, const std::string& place) {
  FormatCheck check(place);
  check.CheckElement(chart, ChartFormat());
  check.CheckSettings(chart);
  check.CheckPersisted(chart);
  return check.Take();
}

bool ColumnGroup::IsReadFor(std::string_view type) const { return Contains(readFor, type); }
bool ColumnGroup::IsNeededFor(std::string_view type) const { return Contains(neededFor, type); }

const std::vector<ColumnGroup>& ColumnGroups() {
  static const std::vector<ColumnGroup> groups = [] {
    using enum ColumnGroup::Content;
    Tokens valueTypes = kPivotTypes;
    valueTypes.emplace_back("bubble");
    return std::vector<ColumnGroup>{
        {"categories", kTypeNames, kTypeNames, kNames, {"rows", "columns"}},
        {"series", kTypeNames, kPivotTypes, kNames, {"rows", "columns", "none"}},
        {"values", valueTypes, {"bubble"}, kNumbers},  // For other types, number columns can replace it.
        {"x-values", {"bubble"}, {}, kNumbers},
        {"bubble-sizes", {"bubble"}, {}, kNumbers},
        {"sort-order", {"strategic bucket"}, {}, kNumbers}};
  }();
  return groups;
}

}  // namespace plotsmith::cli
