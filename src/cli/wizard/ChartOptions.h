#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

namespace plotsmith::cli {

/// What the layout of a chart is to be. What is absent stays as it is.
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
  std::optional<std::string> bucketTable;  ///< an id
  std::optional<std::string> sortBy;
  bool descending = false;
  std::optional<std::string> xAxis;
  std::optional<std::string> yAxis;
  std::optional<std::string> numberFormat;
  std::optional<std::string> labels;
  std::vector<std::string> set;    ///< settings to switch on
  std::vector<std::string> unset;  ///< settings to switch off
  std::optional<std::string> comment;
};

/// What a chart is to be, from its table to its place.
struct ChartOptions {
  std::optional<std::string> table;  ///< an id
  std::optional<std::string> type;
  LayoutOptions layout;
  std::optional<std::string> name;
  std::optional<std::string> sheet;     ///< one that is there
  std::optional<std::string> newSheet;  ///< one to be made
};

/// Declares the options of table, type, layout and name.
void DeclareChartOptions(CLI::App& verb, ChartOptions& options);
/// Declares the options that say where a chart is put that isn't there yet.
void DeclarePlaceOptions(CLI::App& verb, ChartOptions& options);

/// The names of the layout options that are given: "--title".
std::vector<std::string> GivenOptions(const LayoutOptions& layout);

/// A CommandError for a chart type that there isn't, and for a setting that is to be both on and off.
void CheckChartOptions(const ChartOptions& options);

}  // namespace plotsmith::cli
