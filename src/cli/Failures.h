#pragma once

#include <functional>
#include <ostream>

namespace plotsmith::cli {

/// Does the work and answers its exit code. What it throws becomes a sentence on `err` and the exit code that
/// goes with it.
int Guarded(std::ostream& err, const std::function<int()>& work);

}  // namespace plotsmith::cli
