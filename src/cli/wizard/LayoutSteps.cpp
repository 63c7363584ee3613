#include "cli/wizard/LayoutSteps.h"

#include <algorithm>
#include <utility>

#include "cli/check/Words.h"
#include "cli/wizard/LayoutControls.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "forms/Buttons.h"
#include "forms/script/ScriptError.h"
#include "metadata/StrategicBuckets.h"

namespace plotsmith::cli {
namespace {

using forms::ScriptError;

void CheckOptions(const LayoutOptions& options, const LayoutControls& layout, const std::string& type) {
  const auto has = OptionsOf(layout);
  for (const std::string& option : GivenOptions(options)) {
    if (std::find(has.begin(), has.end(), option) == has.end()) {
      throw ScriptError(ChartOf(type) + " has no " + option + "; it has " + Listed(has));
    }
  }
}

/// Returns the control for a value. `kind` describes the value, such as "setting".
const NamedControl& ControlOfWord(const std::vector<NamedControl>& controls, const std::string& word,
                                  const char* kind, const std::string& type) {
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [&](const NamedControl& control) { return control.word == word; });
  if (found != controls.end()) return *found;
  std::vector<std::string> words;
  for (const NamedControl& control : controls) words.emplace_back(control.word);
  throw ScriptError(ChartOf(type) + " has no " + kind + " " + Quoted(word) + "; it has " + Listed(words));
}

/// Returns a step that enables optCategories(2), which is disabled while number columns are the series. It is
/// for options that change the series anyway.
Step FreeCategoryColumns() {
  return [](const forms::Form& page) -> std::optional<std::string> {
    if (page.FindControl("optCategories(2)")->Enabled()) return std::nullopt;
    return "choose optSeries(0)";
  };
}

void AddCategories(Steps& steps, const LayoutOptions& options, const LayoutControls& layout) {
  if (options.categories) {
    if (layout.hasColumns) steps.push_back(OptionStep("optCategories(1)", "--categories"));
    steps.push_back(EntriesStep(layout.categories, {*options.categories}, "--categories"));
  }
  if (!options.categoryColumns.empty()) {
    if (options.series || options.noSeries) steps.push_back(FreeCategoryColumns());
    steps.push_back(OptionStep("optCategories(2)", "--category-columns"));
    steps.push_back(EntriesStep("lstCategories", options.categoryColumns, "--category-columns"));
  }
}

void AddSeries(Steps& steps, const LayoutOptions& options, const LayoutControls& layout) {
  if (options.series) {
    if (layout.hasColumns) steps.push_back(OptionStep("optSeries(1)", "--series"));
    steps.push_back(EntriesStep(layout.series, {*options.series}, "--series"));
  }
  if (!options.seriesColumns.empty()) {
    steps.push_back(OptionStep("optSeries(2)", "--series-columns"));
    steps.push_back(EntriesStep("lstSeries", options.seriesColumns, "--series-columns"));
  }
  if (options.noSeries) {
    steps.push_back(layout.hasColumns ? OptionStep("optSeries(0)", "--no-series")
                                      : EntryStep(layout.series, 0, "--no-series"));
  }
}

void AddNumbers(Steps& steps, const LayoutOptions& options, const LayoutControls& layout) {
  const auto add = [&](const char* control, const std::optional<std::string>& column, const char* option) {
    if (column) steps.push_back(EntriesStep(control, {*column}, option));
  };
  add(layout.values, options.values, "--values");
  add(layout.xValues, options.xValues, "--x-values");
  add(layout.sizes, options.sizes, "--sizes");
  // With a single number column, a click on the values deselects the series.
  AddSeries(steps, options, layout);
  add(layout.sortBy, options.sortBy, "--sort-by");
  if (options.descending) steps.push_back(OptionStep("optBlockSequence(1)", "--descending"));
}

/// Returns the index of a bucket table in the page's list, which has the tables that fit the source table.
/// Several tables can have the same name there.
std::int32_t IndexOfBucketTable(const std::string& id) {
  std::vector<std::string> ids;
  const auto candidates = GetBucketCandidates(colTables->Item(sTableID).selectSingleNode("table"));
  if (candidates) {
    for (const dom::IXMLDOMDocument2& document : *candidates) {
      ids.push_back(GetAttributeText(document.selectSingleNode("table"), "id"));
      if (ids.back() == id) return static_cast<std::int32_t>(ids.size()) - 1;
    }
  }
  throw ScriptError("no table " + Quoted(id) + " that can be the bucket table of " + sTableID + "; " +
                    ThereAre(ids));
}

void AddLabels(Steps& steps, const LayoutOptions& options, const LayoutControls& layout,
               const std::string& type) {
  if (options.labels) {
    const std::string option = "--labels " + *options.labels;
    const NamedControl& label = ControlOfWord(layout.labels, *options.labels, "labels", type);
    const bool isOption = std::string_view(label.control).starts_with("opt");
    steps.push_back(isOption ? OptionStep(label.control, option)
                             : TickStep(label.control, label.checks, option));
  }
  const auto add = [&](const char* control, const std::optional<std::string>& text, const char* option) {
    if (text) steps.push_back(TypeStep(control, *text, option));
  };
  add(layout.numberFormat, options.numberFormat, "--number-format");
  add("txtHAxis", options.xAxis, "--x-axis");
  add("txtVAxis", options.yAxis, "--y-axis");
}

void AddSettings(Steps& steps, const LayoutOptions& options, const LayoutControls& layout,
                 const std::string& type) {
  for (const std::string& setting : options.unset) {
    const auto& box = ControlOfWord(layout.settings, setting, "setting", type);
    steps.push_back(TickStep(box.control, false, "--unset " + setting));
  }
  for (const std::string& setting : options.set) ControlOfWord(layout.settings, setting, "setting", type);
  for (const NamedControl& setting : layout.settings) {
    const bool isSet = std::find(options.set.begin(), options.set.end(), setting.word) != options.set.end();
    if (isSet) steps.push_back(TickStep(setting.control, true, "--set " + std::string(setting.word)));
  }
}

}  // namespace

Steps LayoutSteps(const LayoutOptions& options, const std::string& type) {
  const LayoutControls& layout = *FindLayout(type);
  CheckOptions(options, layout, type);
  Steps steps;
  if (options.title) steps.push_back(TypeStep("txtTitle", *options.title, "--title"));
  if (options.bucketTable) {
    steps.push_back(
        EntryStep(layout.bucketTables, IndexOfBucketTable(*options.bucketTable), "--bucket-table"));
  }
  AddCategories(steps, options, layout);
  AddSeries(steps, options, layout);
  AddNumbers(steps, options, layout);
  AddLabels(steps, options, layout, type);
  AddSettings(steps, options, layout, type);
  if (options.comment) steps.push_back(TypeStep("txtComment", *options.comment, "--comment"));
  return steps;
}

}  // namespace plotsmith::cli
