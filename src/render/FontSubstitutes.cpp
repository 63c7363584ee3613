#include "render/FontSubstitutes.h"

#include <algorithm>

#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

struct Substitute {
  std::string_view family, substitute, generic;
};

constexpr std::string_view kSans = "sans-serif", kSerif = "serif", kMono = "monospace";

/// The substitutes of Arial, Times New Roman, Courier New, Calibri, Cambria, Arial Narrow and Georgia have
/// the same widths as these fonts.
constexpr Substitute kSubstitutes[] = {
    {"Arial", "Liberation Sans", kSans},
    {"Times New Roman", "Liberation Serif", kSerif},
    {"Courier New", "Liberation Mono", kMono},
    {"Calibri", "Carlito", kSans},
    {"Calibri Light", "Carlito", kSans},
    {"Cambria", "Caladea", kSerif},
    {"Arial Narrow", "Liberation Sans Narrow", kSans},
    {"Helvetica", "Liberation Sans", kSans},
    {"Times", "Liberation Serif", kSerif},
    {"Courier", "Liberation Mono", kMono},
    {"Georgia", "Gelasio", kSerif},
    {"Garamond", "Liberation Serif", kSerif},
    {"Book Antiqua", "Liberation Serif", kSerif},
    {"Palatino Linotype", "Liberation Serif", kSerif},
    {"Century", "Liberation Serif", kSerif},
    {"Consolas", "Liberation Mono", kMono},
    {"Lucida Console", "Liberation Mono", kMono},
    {"Verdana", "DejaVu Sans", kSans},
    {"Tahoma", "DejaVu Sans Condensed", kSans},
    {"Aptos", "Carlito", kSans},
    {"Aptos Narrow", "Carlito", kSans},
    {"Aptos Display", "Carlito", kSans},
    {"Corbel", "Carlito", kSans},
    {"Candara", "Carlito", kSans},
};

const Substitute* Find(std::string_view family) {
  const auto found =
      std::find_if(std::begin(kSubstitutes), std::end(kSubstitutes),
                   [&](const Substitute& entry) { return runtime::EqualsIgnoreCase(entry.family, family); });
  return found == std::end(kSubstitutes) ? nullptr : &*found;
}

}  // namespace

std::string_view SubstituteFor(std::string_view family) {
  const Substitute* entry = Find(family);
  return entry == nullptr ? "Liberation Sans" : entry->substitute;
}

std::string_view GenericFamilyOf(std::string_view family) {
  const Substitute* entry = Find(family);
  return entry == nullptr ? kSans : entry->generic;
}

}  // namespace plotsmith::render
