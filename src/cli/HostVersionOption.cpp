#include "cli/HostVersionOption.h"

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
         "Behave as Plotsmith does in this version of Excel; up to 11 and above 11 differ")
      ->type_name("NUMBER")
      ->default_str(runtime::NumberText(version));
}

}  // namespace plotsmith::cli
