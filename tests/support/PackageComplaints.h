#pragma once

#include <string>

namespace plotsmith::test {

/// Returns the errors of a workbook file as a package (ECMA-376-2), one per line: relationships without a
/// target or source, overrides without a part, parts without a content type. Parts without a relationship are
/// also reported, although the standard allows them.
std::string PackageComplaints(const std::string& path);

}  // namespace plotsmith::test
