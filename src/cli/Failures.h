#pragma once

#include <functional>
#include <ostream>

namespace plotsmith::cli {

/// Performs the work and returns its exit code. An exception becomes a sentence on `err` and the matching
/// exit code.
int Guarded(std::ostream& err, const std::function<int()>& work);

}  // namespace plotsmith::cli
