#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::cli {

/// A word of an option, and the control that it is about.
struct NamedControl {
  std::string_view word;
  const char* control;
  bool on = true;  ///< of a check box: whether the word ticks it
};

/// Which controls of a layout page the options of the command are about. A null pointer is a control that the
/// page doesn't have. Titles, comments and the boxes of axes have the same names on all pages.
struct LayoutControls {
  const char* categories = nullptr;
  const char* series = nullptr;
  bool hasColumns = false;  ///< number columns can be the categories or the series (optCategories, optSeries)
  const char* values = nullptr;
  const char* xValues = nullptr;
  const char* sizes = nullptr;
  const char* bucketTables = nullptr;
  const char* sortBy = nullptr;
  const char* numberFormat = nullptr;
  bool hasAxes = false;
  std::vector<NamedControl> labels;
  std::vector<NamedControl> settings;  ///< in the order in which one switches the next one on
};

/// The layout page of a chart type; null for a type that there isn't.
const LayoutControls* FindLayout(std::string_view type);

/// The names of all chart types.
std::vector<std::string> ChartTypes();
/// The place of a type, which there is, among the options of the Source Table page.
std::int32_t OptionOfType(std::string_view type);

/// What an option needs whose control is off at present: "--set stacked"; null where there is no one answer.
const char* NeedOf(std::string_view control);

/// The options that the page has controls for: "--title".
std::vector<std::string> OptionsOf(const LayoutControls& layout);

}  // namespace plotsmith::cli
