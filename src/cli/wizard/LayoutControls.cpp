#include "cli/wizard/LayoutControls.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace plotsmith::cli {
namespace {

const LayoutControls kAbc = {
    .categories = "cboCategories",
    .series = "cboSeries",
    .hasColumns = true,
    .values = "cboValues",
    .numberFormat = "cboDataLabelMask",
    .hasAxes = true,
    .labels = {{"values", "chkShowValues"}, {.word = "none", .control = "chkShowValues", .checks = false}},
    .settings = {{"3D", "chk3D"}, {"stacked", "chkStacked"}, {"100%", "chk100Pct"}}};

const LayoutControls kPie = {.categories = "lstCategories",
                             .values = "cboValues",
                             .numberFormat = "cboNumberMask",
                             .labels = {{"values", "optDataLabels(0)"},
                                        {"percentages", "optDataLabels(1)"},
                                        {"none", "optDataLabels(2)"}},
                             .settings = {{"3D", "chk3D"}, {"exploded", "chkExploded"}}};

const LayoutControls kBubble = {.categories = "cboCategories",
                                .series = "cboSeries",
                                .values = "lstYValues",
                                .xValues = "cboXValues",
                                .sizes = "cboSizes",
                                .hasAxes = true,
                                .settings = {{"3D", "chk3D"},
                                             {"quadrants", "chkQuadrants"},
                                             {"autoscale-x", "chkScaleXAxis"},
                                             {"autoscale-y", "chkScaleYAxis"},
                                             {"show-zero-bubbles", "chkShowZeroBubbles"}}};

const LayoutControls kBucket = {
    .categories = "cboCategories",
    .series = "cboSeries",
    .bucketTables = "cboBucketTables",
    .sortBy = "cboBlockSequence",
    .numberFormat = "cboDataLabelMask",
    .hasAxes = true,
    .labels = {{"names", "chkShowNames"}, {.word = "none", .control = "chkShowNames", .checks = false}}};

struct TypeOfChart {
  std::string_view name;
  std::int32_t option;  ///< Its index on the Source Table page.
  const LayoutControls& layout;
};

const TypeOfChart kTypes[] = {{"area", 2, kAbc}, {"bar", 0, kAbc},       {"column", 1, kAbc},
                              {"pie", 3, kPie},  {"bubble", 4, kBubble}, {"strategic bucket", 5, kBucket}};

const TypeOfChart* FindType(std::string_view name) {
  const auto* found =
      std::find_if(std::begin(kTypes), std::end(kTypes), [&](const auto& type) { return type.name == name; });
  return found == std::end(kTypes) ? nullptr : found;
}

}  // namespace

const LayoutControls* FindLayout(std::string_view type) {
  const TypeOfChart* found = FindType(type);
  return found == nullptr ? nullptr : &found->layout;
}

std::vector<std::string> ChartTypes() {
  std::vector<std::string> names;
  for (const TypeOfChart& type : kTypes) names.emplace_back(type.name);
  return names;
}

std::int32_t OptionOfType(std::string_view type) { return FindType(type)->option; }

const char* NeedOf(std::string_view control) {
  static constexpr std::pair<std::string_view, const char*> kNeeds[] = {
      {"chkStacked", "several series, by --series or --series-columns"},
      {"chk100Pct", "--set stacked"},
      {"chkScaleXAxis", "--set quadrants"},
      {"chkScaleYAxis", "--set quadrants"},
      {"chkShowZeroBubbles", "--sizes"},
      {"cboValues", "categories and series that aren't number columns"},
      {"optCategories(2)", "series that aren't number columns, by --series or --no-series"},
      {"optSeries(1)", "a table with another label column"},
      {"optSeries(2)", "categories that aren't number columns, by --categories"}};
  for (const auto& [name, need] : kNeeds) {
    if (name == control) return need;
  }
  return nullptr;
}

std::vector<std::string> OptionsOf(const LayoutControls& layout) {
  const std::pair<const char*, bool> all[] = {{"--title", true},
                                              {"--categories", layout.categories != nullptr},
                                              {"--category-columns", layout.hasColumns},
                                              {"--series", layout.series != nullptr},
                                              {"--series-columns", layout.hasColumns},
                                              {"--no-series", layout.series != nullptr},
                                              {"--values", layout.values != nullptr},
                                              {"--x-values", layout.xValues != nullptr},
                                              {"--sizes", layout.sizes != nullptr},
                                              {"--bucket-table", layout.bucketTables != nullptr},
                                              {"--sort-by", layout.sortBy != nullptr},
                                              {"--descending", layout.sortBy != nullptr},
                                              {"--x-axis", layout.hasAxes},
                                              {"--y-axis", layout.hasAxes},
                                              {"--number-format", layout.numberFormat != nullptr},
                                              {"--labels", !layout.labels.empty()},
                                              {"--set", !layout.settings.empty()},
                                              {"--unset", !layout.settings.empty()},
                                              {"--comment", true}};
  std::vector<std::string> options;
  for (const auto& [name, has] : all) {
    if (has) options.emplace_back(name);
  }
  return options;
}

}  // namespace plotsmith::cli
