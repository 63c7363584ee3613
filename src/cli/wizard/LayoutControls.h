#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::cli {

/// A value of an option, and its control.
struct NamedControl {
  std::string_view word;  ///< The value on the command line.
  const char* control;    ///< The name of the control.
  bool checks = true;     ///< Whether the value checks a check box. Otherwise it unchecks the box.
};

/// The names of the controls of a layout page, for the options of the command. A null pointer means that the
/// page doesn't have the control. Titles, comments and the boxes of axes have the same names on all pages.
struct LayoutControls {
  const char* categories = nullptr;  ///< The list of label columns for categories, slices, bubbles or blocks.
  const char* series = nullptr;      ///< The list of label columns for series.
  /// Whether number columns can be the categories or the series (optCategories, optSeries).
  bool hasColumns = false;
  const char* values = nullptr;        ///< The list of number columns for values, or for Y values.
  const char* xValues = nullptr;       ///< The list of number columns for X values.
  const char* sizes = nullptr;         ///< The list of number columns for bubble sizes.
  const char* bucketTables = nullptr;  ///< The list of bucket tables.
  const char* sortBy = nullptr;        ///< The list of number columns that sort blocks.
  const char* numberFormat = nullptr;  ///< The box for the number format.
  bool hasAxes = false;                ///< Whether the page has boxes for the titles of axes.
  std::vector<NamedControl> labels;    ///< The control for each value of `--labels`.
  std::vector<NamedControl> settings;  ///< The settings, in the order in which one enables the next.
};

/// Returns the layout page of a chart type, or null for an unknown type.
const LayoutControls* FindLayout(std::string_view type);

/// Returns the names of all chart types.
std::vector<std::string> ChartTypes();
/// Returns the index of an existing type among the options of the Source Table page.
std::int32_t OptionOfType(std::string_view type);

/// Returns the option that enables a control, such as "--set stacked", or null if there isn't exactly one.
const char* NeedOf(std::string_view control);

/// Returns the options for which the page has controls, such as "--title".
std::vector<std::string> OptionsOf(const LayoutControls& layout);

}  // namespace plotsmith::cli
