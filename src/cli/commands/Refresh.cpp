#include "cli/commands/Refresh.h"

#include "cli/Session.h"
#include "controller/CPlotsmithController.h"

namespace plotsmith::cli {

CLI::App* RefreshCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("refresh", "Rebuild the charts of a workbook from its tables");
  verb->add_option("BOOK", book_, "The workbook (.xlsx, .xlsm)")->required();
  verb->add_option("--table", table_, "Only the charts that hang on the table of this id")->type_name("ID");
  verb->add_option("-o,--output", output_, kOutputDescription)->type_name("FILE");
  return verb;
}

int RefreshCommand::Run(const GlobalOptions& options, const Streams& streams) {
  if (table_) RequireTableId(*table_);
  Session session(book_, options, streams);
  session.CheckWritable(output_);
  session.LookBeforeRun(DefinitionsAre::kTaken);
  CPlotsmithController controller;
  if (table_) {
    controller.RefreshChartsForTable(session.Host(), *table_);
    session.CheckTable(*table_);
  } else {
    controller.RefreshPlotsmithData(session.Host(), kHostName, "");
  }
  return session.Save(output_);
}

}  // namespace plotsmith::cli
