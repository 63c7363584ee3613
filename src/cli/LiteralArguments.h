#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace plotsmith::cli {

/// Parses the arguments, which begin after the name of the program. Throws CommandError if they are wrong,
/// and CLI::Success if they ask for the help or the version.
///
/// CLI11 would read some values as something else: "[a,b]" as two values of an option that takes several,
/// "++" as the end of a verb's arguments, and an empty value after "=" as none, so that the next argument
/// would become the value. Here each value is what the user has written.
void ParseLiterally(CLI::App& app, std::vector<std::string> arguments);

}  // namespace plotsmith::cli
