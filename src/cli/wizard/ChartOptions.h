#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

namespace plotsmith::cli {

/// The layout options of a chart, with the names of the options of the command line. Options that are absent
/// or empty don't change the chart. Columns are given by their headings.
struct LayoutOptions {
  std::optional<std::string> title;
  std::optional<std::string> categories;
  std::vector<std::string> categoryColumns;
  std::optional<std::string> series;
  std::vector<std::string> seriesColumns;
  bool noSeries = false;
  std::optional<std::string> values;
  std::optional<std::string> xValues;
  std::optional<std::string> sizes;
  std::optional<std::string> bucketTable;  ///< A table id.
  std::optional<std::string> sortBy;
  bool descending = false;
  std::optional<std::string> xAxis;
  std::optional<std::string> yAxis;
  std::optional<std::string> numberFormat;
  std::optional<std::string> labels;
  std::vector<std::string> set;    ///< Settings to switch on.
  std::vector<std::string> unset;  ///< Settings to switch off.
  std::optional<std::string> comment;
};

/// All options of a chart: table, type, layout, name and sheet.
struct ChartOptions {
  std::optional<std::string> table;  ///< A table id.
  std::optional<std::string> type;
  LayoutOptions layout;
  std::optional<std::string> name;
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
