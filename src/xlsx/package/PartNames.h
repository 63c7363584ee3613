#pragma once

#include <string>
#include <string_view>

/// The names of the parts of a package (ECMA-376-2). A name begins with a slash and is decoded: it has a
/// space, not "%20".
namespace plotsmith::xlsx {

/// Returns the name of the part with the relationships of a part, or of the package for an empty name.
/// "/xl/workbook.xml" has its relationships in "/xl/_rels/workbook.xml.rels".
std::string RelationshipsPart(std::string_view part);
/// Returns the name of the part whose relationships are in `part`; empty if `part` contains none. The
/// relationships of the package have the source "/".
std::string RelationshipsSource(std::string_view part);

/// Returns the name that a file stores with percent-encoded characters.
std::string PercentDecoded(std::string_view coded);
/// Returns a name as the file stores it: characters that a URI can't contain are percent-encoded.
std::string PercentEncoded(std::string_view name);

/// Returns the part that a target in `source` refers to; empty if the target is outside of the package.
std::string ResolveTarget(std::string_view source, std::string_view target);
/// Returns the target in the form for `source`: relative to its folder, and encoded.
std::string RelativeTarget(std::string_view source, std::string_view target);

}  // namespace plotsmith::xlsx
