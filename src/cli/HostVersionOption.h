#pragma once

#include <CLI/CLI.hpp>

namespace plotsmith::cli {

/// Declares the option --host-version, which writes to `version`. The number has a point in every locale.
void DeclareHostVersion(CLI::App& app, double& version);

}  // namespace plotsmith::cli
