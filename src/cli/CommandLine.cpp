#include "cli/CommandLine.h"

#include <algorithm>
#include <exception>

#include "cli/commands/AllCommands.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::cli {
namespace {

constexpr const char* kDescription =
    "Plotsmith rebuilds the charts of an Excel workbook from its tables, without Excel.\n"
    "Tables are found by their names (VEX_TableRange..., VEX_SB...) or as sheets Data1 to Data5;\n"
    "the charts' definitions travel inside the workbook. Without -o the workbook itself is replaced,\n"
    "in one step: it is always whole.";

constexpr const char* kFooter =
    "Exit codes: 0 done, 1 done but Plotsmith had something to say, 2 wrong usage,\n"
    "3 the workbook could not be read or written, and nothing was changed.";

/// The option that an argument names in full, alone or with its value behind "="; null if it names none.
const CLI::Option* FindOption(const CLI::App& app, const CLI::App& verb, const std::string& argument) {
  if (!argument.starts_with('-')) return nullptr;
  const std::string name = argument.starts_with("--") ? argument.substr(0, argument.find('=')) : argument;
  const CLI::Option* const option = verb.get_option_no_throw(name);
  return option ? option : app.get_option_no_throw(name);
}

/// A number format or a value may look like an option ("-0.0", "-h:mm"): behind the verb `format`, what isn't
/// an option in full goes behind "--".
std::vector<std::string> WithFormatsBehindTheOptions(std::vector<std::string> arguments,
                                                     const CLI::App& app) {
  if (arguments.empty() || arguments[0] != "format") return arguments;
  const CLI::App& verb = *app.get_subcommand("format");
  std::vector<std::string> options = {"format"}, rest;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    if (const CLI::Option* const option = FindOption(app, verb, arguments[i])) {
      options.push_back(arguments[i]);
      const bool valueFollows =
          option->get_items_expected_min() > 0 && arguments[i].find('=') == arguments[i].npos;
      if (valueFollows && i + 1 < arguments.size()) options.push_back(arguments[++i]);
    } else if (arguments[i] != "--" || !rest.empty()) {
      rest.push_back(arguments[i]);
    }
  }
  if (!rest.empty()) options.emplace_back("--");
  options.insert(options.end(), rest.begin(), rest.end());
  return options;
}

}  // namespace

CommandLine::CommandLine() : app(kDescription, "plotsmith"), commands(MakeCommands()) {
  app.footer(kFooter);
  app.require_subcommand(1);
  app.fallthrough();
  app.set_version_flag("--version", std::string("plotsmith ") + PLOTSMITH_VERSION);
  app.add_option("--host-version", options.hostVersion,
                 "Behave as Plotsmith does in this version of Excel; up to 11 and above 11 differ")
      ->type_name("NUMBER")
      ->capture_default_str();
  app.add_flag("--journal", options.journal,
               "Write down each change to the workbook as it is made, a line each");
  app.add_flag("--force", options.force, "Also write a workbook that another program holds open");
  for (const auto& command : commands) verbs.push_back(command->Declare(app));
}

int RunCommandLine(std::vector<std::string> arguments, const Streams& streams) {
  CommandLine line;
  const auto fail = [&](const std::string& sentence, int code) {
    streams.err << "plotsmith: " << sentence << '\n';
    return code;
  };
  const auto run = [&] {
    for (std::size_t i = 0; i < line.commands.size(); ++i) {
      if (line.verbs[i]->parsed()) return line.commands[i]->Run(line.options, streams);
    }
    return exit_code::kUsage;
  };
  // data that didn't arrive is no success
  const auto delivered = [&](int code) {
    streams.out.flush();
    return streams.out ? code : fail("the output can't be written.", exit_code::kFile);
  };
  try {
    arguments = WithFormatsBehindTheOptions(std::move(arguments), line.app);
    std::reverse(arguments.begin(), arguments.end());  // as the parser wants them
    line.app.parse(arguments);
    return delivered(run());
  } catch (const CLI::ParseError& e) {
    if (e.get_exit_code() == 0)
      return delivered(line.app.exit(e, streams.out, streams.err));  // help and version
    return fail(std::string(e.what()) + " (try plotsmith --help)", exit_code::kUsage);
  } catch (const CommandError& e) {
    return fail(e.what(), e.ExitCode());
  } catch (const xlsx::PackageError& e) {
    return fail(e.what(), exit_code::kFile);
  } catch (const std::exception& e) {
    return fail(std::string("something went wrong: ") + e.what(), exit_code::kFile);
  }
}

}  // namespace plotsmith::cli
