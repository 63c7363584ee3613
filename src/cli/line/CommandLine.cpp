#include "cli/line/CommandLine.h"

#include <algorithm>
#include <cstddef>

#include "cli/NumberOptions.h"
#include "cli/check/Words.h"
#include "cli/commands/AllCommands.h"
#include "cli/line/Help.h"

namespace plotsmith::cli {
namespace {

constexpr const char* kDescription =
    "Plotsmith makes charts from the tables of an Excel workbook and keeps them up to date,\n"
    "without Excel.\n"
    "A table is a range with a defined name (VEX_TableRange..., VEX_SB...), or a sheet Data1 to Data5.\n"
    "The definitions of the charts are stored in the workbook. Without -o the workbook itself is\n"
    "replaced, in a single step.";

constexpr const char* kFooter =
    "Exit codes: 0 success, 1 success with a message from Plotsmith, 2 wrong usage, a wrong script,\n"
    "input that a page rejects, or a missing part of Plotsmith, 3 the workbook or the output could\n"
    "not be read or written, or definitions of charts would have been lost. With 2 and 3 nothing was\n"
    "changed. 128 plus the number of a signal that stopped it.";

}  // namespace

CommandLine::CommandLine() : CommandLine(VerbsOnly{}) { DeclareOptions({}); }

CommandLine::CommandLine(VerbsOnly) : app(kDescription, "plotsmith"), commands(MakeCommands()) {
  app.footer(kFooter);
  app.require_subcommand(1);
  app.fallthrough();
  app.allow_windows_style_options(false);  // An argument that begins with a slash is a path on every system.
  app.set_version_flag("-V,--version", std::string("plotsmith ") + PLOTSMITH_VERSION);
  DeclareHostVersion(app, options.hostVersion);
  app.add_flag("--journal", options.journal, "Print each change to the workbook as it is made, one per line");
  app.add_flag("--drop-broken", options.dropBroken,
               "Also write a workbook whose definitions are broken or have no chart, and drop these");
  app.add_flag("--force", options.force, "Also write a workbook that another program has open");
  commands.push_back(std::make_unique<HelpCommand>());
  for (const auto& command : commands)
    verbs.push_back(app.add_subcommand(command->Name(), command->Description()));
}

void CommandLine::DeclareOptions(const std::string& verb) {
  const bool isKnown = std::any_of(commands.begin(), commands.end(),
                                   [&](const auto& command) { return command->Name() == verb; });
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (!isKnown || commands[i]->Name() == verb) commands[i]->DeclareOptions(*verbs[i]);
  }
}

CommandError CommandLine::NoSuchVerb(const std::string& name) const {
  std::vector<std::string> names;
  for (const CLI::App* verb : verbs) names.push_back(verb->get_name());
  return CommandError(exit_code::kUsage, "there is no command " + Quoted(name) + "; " + ThereAre(names) +
                                             " (try plotsmith --help)");
}

}  // namespace plotsmith::cli
