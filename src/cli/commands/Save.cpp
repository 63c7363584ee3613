#include "cli/commands/Save.h"

#include <CLI/CLI.hpp>

#include "cli/Session.h"

namespace plotsmith::cli {

CLI::App* SaveCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("save", "Open a workbook and save it without changes");
  verb->add_option("BOOK", book_, "The workbook")->required();
  verb->add_option("-o,--output", output_, "The file to write, or \"-\" for the standard output")
      ->required()
      ->type_name("FILE");
  return verb;
}

int SaveCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.CheckWritable(output_);
  return session.Save(output_);
}

}  // namespace plotsmith::cli
