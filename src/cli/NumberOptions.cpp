#include "cli/NumberOptions.h"

#include <CLI/CLI.hpp>
#include <optional>
#include <utility>

#include "cli/check/Words.h"
#include "runtime/Variant.h"

namespace plotsmith::cli {

CLI::Option* DeclareNumber(CLI::App& app, const std::string& name, std::function<void(double)> store,
                           const std::string& description) {
  const auto parse = [name, store = std::move(store)](const std::string& text) {
    // ParseNumber also reads separators between thousands, so a decimal comma would be ignored.
    const bool isPlain = text.find_first_not_of("+-.0123456789eE") == text.npos;
    const auto number = isPlain ? runtime::ParseNumber(text) : std::nullopt;
    if (!number) throw CLI::ConversionError(name + " needs a number, not " + Quoted(text));
    store(*number);
  };
  return app.add_option_function<std::string>(name, parse, description)->type_name("N");
}

void DeclareHostVersion(CLI::App& app, double& version) {
  DeclareNumber(
      app, "--host-version",
      [&version](double number) {
        if (number <= 0) throw CLI::ValidationError("--host-version needs a number above 0");
        version = number;
      },
      "Behave like Plotsmith in this version of Excel; versions up to 11 and later ones differ")
      ->type_name("NUMBER")
      ->default_str(runtime::NumberText(version));
}

}  // namespace plotsmith::cli
