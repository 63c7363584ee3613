#pragma once

#include <functional>
#include <string>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace plotsmith::cli {

/// Declares an option with a number, which is passed to `store`. The decimal separator is a point in every
/// locale.
CLI::Option* DeclareNumber(CLI::App& app, const std::string& name, std::function<void(double)> store,
                           const std::string& description);

/// Declares the option --host-version, whose value is stored in `version`.
void DeclareHostVersion(CLI::App& app, double& version);

}  // namespace plotsmith::cli
