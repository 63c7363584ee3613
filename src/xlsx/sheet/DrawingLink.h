#pragma once

#include <optional>
#include <string>

#include "xlsx/package/Package.h"

namespace plotsmith::xlsx {

/// Returns the relationship of a sheet or a chart sheet to its drawing, or nothing. Deletions can leave
/// several such relationships. In that case the sheet's part is read, and its `drawing` element decides.
std::optional<Relationship> FindDrawingLink(const Package& package, const std::string& sheet);

}  // namespace plotsmith::xlsx
