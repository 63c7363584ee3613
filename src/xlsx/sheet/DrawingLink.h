#pragma once

#include <optional>
#include <string>

#include "xlsx/package/Package.h"

namespace plotsmith::xlsx {

/// The drawing of a sheet or a chart sheet. Its relationship tells, and of several, which deletions leave
/// behind, the one that the sheet's `drawing` element names; a sheet with one is not read for it.
std::optional<Relationship> FindDrawingLink(const Package& package, const std::string& sheet);

}  // namespace plotsmith::xlsx
