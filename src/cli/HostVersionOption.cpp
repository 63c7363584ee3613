#include "cli/HostVersionOption.h"

#include <CLI/CLI.hpp>
#include <string>

#include "runtime/Variant.h"

namespace plotsmith::cli {

void DeclareHostVersion(CLI::App& app, double& version) {
  constexpr const char* kName = "--host-version";
  app.add_option_function<std::string>(
         kName,
         [&version](const std::string& text) {
           const auto number = runtime::ParseNumber(text);
           if (!number) throw CLI::ConversionError("Could not convert: " + std::string(kName) + " = " + text);
           version = *number;
         },
         "Behave like Plotsmith in this version of Excel; versions up to 11 and later ones differ")
      ->type_name("NUMBER")
      ->default_str(runtime::NumberText(version));
}

}  // namespace plotsmith::cli
