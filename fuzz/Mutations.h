#pragma once

#include <functional>
#include <random>
#include <string>

namespace plotsmith::fuzz {

using Random = std::minstd_rand;
/// Changes some bytes of a text, as libFuzzer does.
using MutateBytes = std::function<std::string(const std::string& text)>;

/// Returns the XML with one change that keeps it well-formed: an element or an attribute is removed, copied,
/// moved, renamed, or gets another value. Returns an empty text if the XML isn't well-formed or has no
/// element.
std::string MutateXml(const std::string& xml, Random& random, const MutateBytes& mutateBytes);

/// Returns the first XML with an element of the second one, or an empty text if one of them isn't
/// well-formed.
std::string CrossXml(const std::string& xml, const std::string& other, Random& random);

/// Returns the zip file with one changed file in it, so that the change isn't lost in compressed bytes.
/// Returns an empty text if the bytes aren't a zip file that can be read.
std::string MutateZip(const std::string& zip, Random& random, const MutateBytes& mutateBytes);

}  // namespace plotsmith::fuzz
