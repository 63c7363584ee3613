#include "cli/line/RunCommandLine.h"

#include <algorithm>
#include <utility>

#include "cli/Candidates.h"
#include "cli/Failures.h"
#include "cli/LiteralArguments.h"
#include "cli/line/CommandLine.h"

namespace plotsmith::cli {
namespace {

/// Returns the number of arguments of the option that `argument` names in full, alone or with its value after
/// "="; 0 if it names none.
std::size_t OptionLength(const CLI::App& app, const std::string& argument) {
  if (!argument.starts_with('-')) return 0;
  const auto sign = argument.starts_with("--") ? argument.find('=') : argument.npos;
  const CLI::Option* const option = app.get_option_no_throw(argument.substr(0, sign));
  if (option == nullptr) return 0;
  return option->get_items_expected_min() > 0 && sign == argument.npos ? 2 : 1;
}

/// Returns the position of the verb, which follows the global options.
std::size_t VerbPosition(const std::vector<std::string>& arguments, const CLI::App& app) {
  std::size_t at = 0;
  while (at < arguments.size() && OptionLength(app, arguments[at]) > 0) {
    at += OptionLength(app, arguments[at]);
  }
  return at;
}

/// A number format or a value can look like an option ("-0.0", "-h:mm"). Therefore arguments of the verb
/// `format` that aren't complete option names are moved after "--". `at` is the position of the verb.
std::vector<std::string> WithFormatsAfterTheOptions(std::vector<std::string> arguments, std::size_t at,
                                                    const CLI::App& app) {
  if (at >= arguments.size() || arguments[at] != "format") return arguments;
  const CLI::App& verb = *app.get_subcommand("format");
  std::vector<std::string> options(arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(++at));
  std::vector<std::string> rest;
  while (at < arguments.size()) {
    const std::size_t length = std::max(OptionLength(verb, arguments[at]), OptionLength(app, arguments[at]));
    if (length == 0 && (arguments[at] != "--" || !rest.empty())) rest.push_back(arguments[at]);
    for (std::size_t i = 0; i < length && at + i < arguments.size(); ++i)
      options.push_back(arguments[at + i]);
    at += std::max<std::size_t>(length, 1);
  }
  if (!rest.empty()) options.emplace_back("--");
  options.insert(options.end(), rest.begin(), rest.end());
  return options;
}

}  // namespace

int RunCommandLine(std::vector<std::string> arguments, const Streams& streams) {
  if (!arguments.empty() && arguments.front() == kComplete) {
    PrintCandidates({arguments.begin() + 1, arguments.end()}, streams);
    return exit_code::kDone;
  }
  CommandLine line(CommandLine::VerbsOnly{});
  const auto run = [&] {
    for (std::size_t i = 0; i < line.commands.size(); ++i) {
      if (line.verbs[i]->parsed()) return line.commands[i]->Run(line.options, streams);
    }
    return exit_code::kUsage;
  };
  return Guarded(streams.err, [&] {
    const std::size_t at = VerbPosition(arguments, line.app);
    line.DeclareOptions(at < arguments.size() ? arguments[at] : "");
    const bool known = at >= arguments.size() || arguments[at].starts_with('-') ||
                       std::any_of(line.verbs.begin(), line.verbs.end(),
                                   [&](const CLI::App* verb) { return verb->get_name() == arguments[at]; });
    if (!known) throw line.NoSuchVerb(arguments[at]);
    arguments = WithFormatsAfterTheOptions(std::move(arguments), at, line.app);
    int code = exit_code::kDone;
    try {
      ParseLiterally(line.app, std::move(arguments));
      code = run();
    } catch (const CLI::Success& e) {  // help and version
      line.app.exit(e, streams.out, streams.err);
    }
    FlushOutput(streams);
    return code;
  });
}

}  // namespace plotsmith::cli
