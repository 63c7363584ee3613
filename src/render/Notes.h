#pragma once

#include <string>
#include <vector>

namespace plotsmith::render {

/// Sentences about everything that isn't drawn. Each is complete and ends with a full stop.
using Notes = std::vector<std::string>;

}  // namespace plotsmith::render
