#pragma once

#include <string>
#include <vector>

namespace plotsmith::render {

/// Sentences about what could not be drawn. Each is complete and ends with a full stop.
using Notes = std::vector<std::string>;

}  // namespace plotsmith::render
