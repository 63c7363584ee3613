#pragma once

#include <string>

namespace plotsmith::test {

/// What in a workbook file is not as ECMA-376-2 wants a package, one complaint a line: relationships without
/// their target or their source, overrides without their part, parts without a content type. Parts that no
/// relationship leads to are allowed there, but are a complaint as well.
std::string PackageComplaints(const std::string& path);

}  // namespace plotsmith::test
