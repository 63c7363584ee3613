#include "cli/line/Help.h"

#include <algorithm>

#include "cli/line/CommandLine.h"

namespace plotsmith::cli {

void HelpCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("COMMAND", verb_, "The command (default: an overview of all commands)");
}

int HelpCommand::Run(const GlobalOptions&, const Streams& streams) {
  // Use a new command line, because the parsed one would print the help of this verb.
  const CommandLine line;
  if (verb_.empty()) {
    streams.out << line.app.help();
    return exit_code::kDone;
  }
  const auto verb = std::find_if(line.verbs.begin(), line.verbs.end(),
                                 [&](const CLI::App* app) { return app->get_name() == verb_; });
  if (verb == line.verbs.end()) throw line.NoSuchVerb(verb_);
  streams.out << (*verb)->help(line.app.get_name());
  return exit_code::kDone;
}

}  // namespace plotsmith::cli
