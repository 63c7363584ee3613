#pragma once

namespace CLI {
class App;
}

namespace plotsmith::cli {

/// Declares the option --host-version, whose value is stored in `version`. The decimal separator is a point
/// in every locale.
void DeclareHostVersion(CLI::App& app, double& version);

}  // namespace plotsmith::cli
