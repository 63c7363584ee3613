#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace plotsmith::cli {

/// The layout options of a chart, with the names of the options of the command line. Options that are absent
/// or empty don't change the chart. Columns are given by their headings.
struct LayoutOptions {
  std::optional<std::string> title;          ///< The title of the chart.
  std::optional<std::string> categories;     ///< The label column of the categories.
  std::vector<std::string> categoryColumns;  ///< The number columns that are the categories.
  std::optional<std::string> series;         ///< The label column of the series.
  std::vector<std::string> seriesColumns;    ///< The number columns that are the series.
  bool noSeries = false;                     ///< Whether one colour is used for everything.
  std::optional<std::string> values;         ///< The number column of the values, or of the Y values.
  std::optional<std::string> xValues;        ///< The number column of the X values.
  std::optional<std::string> sizes;          ///< The number column of the bubble sizes.
  std::optional<std::string> bucketTable;    ///< A table id.
  std::optional<std::string> sortBy;         ///< The number column that sorts the blocks.
  bool descending = false;                   ///< Whether the largest block is first.
  std::optional<std::string> xAxis;          ///< The title of the horizontal axis.
  std::optional<std::string> yAxis;          ///< The title of the vertical axis.
  std::optional<std::string> numberFormat;   ///< The number format of the values.
  std::optional<std::string> labels;         ///< One of "values", "percentages", "names" and "none".
  std::vector<std::string> set;              ///< Settings to switch on.
  std::vector<std::string> unset;            ///< Settings to switch off.
  std::optional<std::string> comment;        ///< The text of the comment box.
};

/// All options of a chart: table, type, layout, name and sheet.
struct ChartOptions {
  std::optional<std::string> table;     ///< A table id.
  std::optional<std::string> type;      ///< A type of chart from ChartTypes.
  LayoutOptions layout;                 ///< The options of the layout page.
  std::optional<std::string> name;      ///< The name of the chart in lists.
  std::optional<std::string> sheet;     ///< An existing sheet.
  std::optional<std::string> newSheet;  ///< A new sheet.
};

/// Declares the options for table, type, layout and name.
void DeclareChartOptions(CLI::App& verb, ChartOptions& options);
/// Declares the options for the sheet of a new chart.
void DeclarePlaceOptions(CLI::App& verb, ChartOptions& options);

/// Returns the names of the given layout options, such as "--title".
std::vector<std::string> GivenOptions(const LayoutOptions& layout);

/// Throws CommandError for an unknown chart type, and for a setting that is both switched on and off.
void CheckChartOptions(const ChartOptions& options);

}  // namespace plotsmith::cli
