#include "cli/commands/Refresh.h"

#include <algorithm>

#include "cli/Session.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"

namespace plotsmith::cli {
namespace {

constexpr const char* kHostName = "plotsmith";

/// Whether the workbook knows a table of exactly that id, or has a chart that wants one.
bool IsTableKnown(const std::string& id) {
  const auto isTable = [&](const dom::IXMLDOMDocument2& document) {
    return GetAttributeText(document.selectSingleNode("table"), "id") == id;
  };
  if (std::any_of(colTables->begin(), colTables->end(), isTable)) return true;
  return std::any_of(colCharts->begin(), colCharts->end(), [&](const dom::IXMLDOMDocument2& document) {
    const auto chart = document.selectSingleNode("chart");
    return GetAttributeText(chart, "table-id") == id ||
           GetAttributeText(chart, "strategic-bucket-table-id") == id;
  });
}

}  // namespace

CLI::App* RefreshCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("refresh", "Rebuild the charts of a workbook from its tables");
  verb->add_option("BOOK", book_, "The workbook (.xlsx, .xlsm)")->required();
  verb->add_option("--table", table_, "Only the charts that hang on the table of this id");
  verb->add_option("-o,--output", output_, "Write to this file and leave BOOK as it is");
  return verb;
}

int RefreshCommand::Run(const GlobalOptions& options, const Streams& streams) {
  if (table_ && table_->empty()) throw CommandError(exit_code::kUsage, "--table wants the id of a table.");
  Session session(book_, options, streams);
  session.CheckWritable(output_);
  CPlotsmithController controller;
  if (table_) {
    controller.RefreshChartsForTable(session.Host(), *table_);
    if (colTables && colCharts && !session.Book().Damage() && !IsTableKnown(*table_)) {
      throw CommandError(exit_code::kUsage, "\"" + book_ + "\" has no table \"" + *table_ +
                                                "\" (plotsmith tables lists those it has).");
    }
  } else {
    controller.RefreshPlotsmithData(session.Host(), kHostName, "");
  }
  return session.Save(output_);
}

}  // namespace plotsmith::cli
