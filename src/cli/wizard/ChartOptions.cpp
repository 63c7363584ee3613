#include "cli/wizard/ChartOptions.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/Command.h"
#include "cli/check/Words.h"
#include "cli/wizard/LayoutControls.h"
#include "common/PSConstants.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

void DeclareColumns(CLI::App& verb, LayoutOptions& layout) {
  auto* categories = verb.add_option("--categories", layout.categories,
                                     "The label column for the categories, slices, bubbles or blocks");
  categories->type_name("COL");
  auto* categoryColumns = verb.add_option("--category-columns", layout.categoryColumns,
                                          "The number columns that are the categories");
  categoryColumns->type_name("COL")->excludes(categories);
  auto* series = verb.add_option("--series", layout.series, "The label column for the series (colours)");
  series->type_name("COL");
  auto* seriesColumns =
      verb.add_option("--series-columns", layout.seriesColumns, "The number columns that are the series");
  seriesColumns->type_name("COL")->excludes(series)->excludes(categoryColumns);
  verb.add_flag("--no-series", layout.noSeries, "Use one colour for everything")
      ->excludes(series)
      ->excludes(seriesColumns);
  verb.add_option("--values", layout.values,
                  "The number column of the values; for bubble charts, the Y values")
      ->type_name("COL");
  verb.add_option("--x-values", layout.xValues, "The number column of a bubble chart's X values")
      ->type_name("COL");
  verb.add_option("--sizes", layout.sizes, "The number column of the bubble sizes")->type_name("COL");
  verb.add_option("--bucket-table", layout.bucketTable, "The table of a strategic bucket chart's buckets")
      ->type_name("ID");
  verb.add_option("--sort-by", layout.sortBy, "The number column that sorts the blocks")->type_name("COL");
  verb.add_flag("--descending", layout.descending, "Put the largest block first");
}

void DeclareLooks(CLI::App& verb, LayoutOptions& layout) {
  verb.add_option("--title", layout.title, "The chart's title")->type_name("TEXT");
  verb.add_option("--x-axis", layout.xAxis, "The title of the horizontal axis")->type_name("TEXT");
  verb.add_option("--y-axis", layout.yAxis, "The title of the vertical axis")->type_name("TEXT");
  verb.add_option("--number-format", layout.numberFormat,
                  "The number format of the values, such as \"#,##0\"")
      ->type_name("FORMAT");
  verb.add_option("--labels", layout.labels, "The contents of the labels: values, percentages, names or none")
      ->type_name("LABELS");
  const std::string settings =
      "3D, stacked, 100%, exploded, quadrants, autoscale-x, autoscale-y or show-zero-bubbles";
  verb.add_option("--set", layout.set, "Switch settings on: " + settings)->type_name("SETTING");
  verb.add_option("--unset", layout.unset, "Switch settings off")->type_name("SETTING");
  verb.add_option("--comment", layout.comment, "The text of the comment box")->type_name("TEXT");
}

}  // namespace

void DeclareChartOptions(CLI::App& verb, ChartOptions& options) {
  verb.add_option("--table", options.table, "The id of the table that the chart shows")->type_name("ID");
  verb.add_option("--type", options.type,
                  "The type of the chart: area, bar, column, pie, bubble or strategic bucket")
      ->type_name("TYPE");
  DeclareColumns(verb, options.layout);
  DeclareLooks(verb, options.layout);
  verb.add_option("--name", options.name, "The chart's name in lists (default: the title)")
      ->type_name("NAME");
}

void DeclarePlaceOptions(CLI::App& verb, ChartOptions& options) {
  auto* sheet = verb.add_option("--sheet", options.sheet, "The existing sheet for the chart");
  sheet->type_name("SHEET");
  verb.add_option("--new-sheet", options.newSheet, "The new sheet for the chart")
      ->type_name("SHEET")
      ->excludes(sheet);
}

std::vector<std::string> GivenOptions(const LayoutOptions& layout) {
  const std::pair<const char*, bool> all[] = {{"--title", layout.title.has_value()},
                                              {"--categories", layout.categories.has_value()},
                                              {"--category-columns", !layout.categoryColumns.empty()},
                                              {"--series", layout.series.has_value()},
                                              {"--series-columns", !layout.seriesColumns.empty()},
                                              {"--no-series", layout.noSeries},
                                              {"--values", layout.values.has_value()},
                                              {"--x-values", layout.xValues.has_value()},
                                              {"--sizes", layout.sizes.has_value()},
                                              {"--bucket-table", layout.bucketTable.has_value()},
                                              {"--sort-by", layout.sortBy.has_value()},
                                              {"--descending", layout.descending},
                                              {"--x-axis", layout.xAxis.has_value()},
                                              {"--y-axis", layout.yAxis.has_value()},
                                              {"--number-format", layout.numberFormat.has_value()},
                                              {"--labels", layout.labels.has_value()},
                                              {"--set", !layout.set.empty()},
                                              {"--unset", !layout.unset.empty()},
                                              {"--comment", layout.comment.has_value()}};
  std::vector<std::string> given;
  for (const auto& [name, isGiven] : all) {
    if (isGiven) given.emplace_back(name);
  }
  return given;
}

void CheckChartOptions(const ChartOptions& options) {
  if (options.type && FindLayout(*options.type) == nullptr) {
    throw CommandError(exit_code::kUsage,
                       "no type " + Quoted(*options.type) + "; " + ThereAre(ChartTypes()) + ".");
  }
  for (const char* own : {kDefinitionsSheet, kDataSheet}) {
    if (options.newSheet && runtime::EqualsIgnoreCase(*options.newSheet, own)) {
      throw CommandError(exit_code::kUsage,
                         "--new-sheet can't be " + Quoted(own) + ", which is one of Plotsmith's own sheets.");
    }
  }
  const auto& unset = options.layout.unset;
  for (const std::string& setting : options.layout.set) {
    if (std::find(unset.begin(), unset.end(), setting) != unset.end()) {
      throw CommandError(exit_code::kUsage, setting + " can't be both set and unset.");
    }
  }
}

}  // namespace plotsmith::cli
