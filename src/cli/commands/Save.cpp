#include "cli/commands/Save.h"

#include <CLI/CLI.hpp>

#include "cli/Session.h"

namespace plotsmith::cli {

void SaveCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook")->required();
  verb.add_option("-o,--output", output_, "The file to write, or \"-\" for the standard output")
      ->required()
      ->type_name("FILE");
}

int SaveCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.CheckWritable(output_);
  return session.Save(output_);
}

}  // namespace plotsmith::cli
