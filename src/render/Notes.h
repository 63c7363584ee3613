#pragma once

#include <string>
#include <vector>

namespace plotsmith::render {

/// What could not be drawn, one sentence each.
using Notes = std::vector<std::string>;

}  // namespace plotsmith::render
