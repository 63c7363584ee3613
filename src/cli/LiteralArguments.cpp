#include "cli/LiteralArguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "cli/Command.h"
#include "cli/check/Words.h"
#include "runtime/Utf8Path.h"

namespace plotsmith::cli {
namespace {

/// A mark in front of a value makes it an ordinary text for the parser. No text of a workbook contains it.
constexpr char kMark = '\x01';

bool NeedsMark(const std::string& value) {
  return value.starts_with('[') || value.starts_with(kMark) || value == "++";
}

void AddMarks(std::vector<std::string>& arguments) {
  bool hasOptions = true;
  for (std::string& argument : arguments) {
    if (argument == "--") hasOptions = false;
    if (NeedsMark(argument)) argument.insert(argument.begin(), kMark);
    const auto sign = hasOptions && argument.starts_with("--") ? argument.find('=') : argument.npos;
    if (sign == argument.npos) continue;
    const std::string value = argument.substr(sign + 1);
    if (value.empty() || NeedsMark(value)) argument.insert(sign + 1, 1, kMark);
  }
}

/// Lets all options remove the mark from their values.
void RemoveMarks(CLI::App& app) {
  const auto removeMark = [](std::string value) {
    if (value.starts_with(kMark)) value.erase(0, 1);
    return value;
  };
  for (CLI::Option* const option : app.get_options()) {
    if (option->get_items_expected_max() > 0) option->transform(removeMark);
  }
  for (CLI::App* const verb : app.get_subcommands({})) RemoveMarks(*verb);
}

std::string WithoutMarks(std::string text) {
  std::erase(text, kMark);
  return text;
}

/// Returns what is wrong with the arguments.
std::string Complaint(const CLI::App& app, const CLI::ParseError& error) {
  std::vector<std::string> left = app.remaining(true);
  for (std::string& argument : left) argument = WithoutMarks(argument);
  const auto option = std::find_if(left.begin(), left.end(), [](const std::string& argument) {
    return argument.size() > 1 && argument.starts_with('-');
  });
  // A misspelt option also leaves its value and, perhaps, a missing argument behind.
  if (option != left.end()) {
    std::error_code ignored;
    const bool isFile = std::filesystem::exists(runtime::PathOf(*option), ignored);
    return "there is no option " + Quoted(*option) + (isFile ? "; the file is ./" + *option : "");
  }
  if (left.empty()) return WithoutMarks(error.what());
  for (std::string& argument : left) argument = Quoted(argument);
  return Listed(left) + ForCount(left.size(), " is one argument", " are arguments") + " too many";
}

/// Returns the command that prints the help for the verb that was called.
std::string HelpFor(const CLI::App& app) {
  std::string command = app.get_name();
  for (const CLI::App* const verb : app.get_subcommands()) command += " " + verb->get_name();
  return command + " --help";
}

}  // namespace

void ParseLiterally(CLI::App& app, std::vector<std::string> arguments) {
  AddMarks(arguments);
  RemoveMarks(app);
  std::reverse(arguments.begin(), arguments.end());  // The parser expects them in reverse order.
  try {
    app.parse(arguments);
  } catch (const CLI::Success&) {
    throw;
  } catch (const CLI::ParseError& e) {
    throw CommandError(exit_code::kUsage, Complaint(app, e) + " (try " + HelpFor(app) + ")");
  }
}

}  // namespace plotsmith::cli
