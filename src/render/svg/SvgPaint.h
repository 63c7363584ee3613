#pragma once

#include <map>
#include <string>
#include <utility>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns a number with at most two decimals, in as few characters as possible.
std::string SvgNumber(double value);
/// Appends a number that is given in hundredths, in as few characters as possible.
void AppendHundredths(std::string& text, long long hundredths);
/// Escapes a text for elements and attributes of XML. Characters that XML doesn't allow are left out.
std::string SvgEscape(std::string_view text);

/// Collects the definitions that fills refer to. Equal definitions are written once.
class SvgDefinitions {
 public:
  /// Makes an empty collection. All ids will begin with `prefix`.
  explicit SvgDefinitions(std::string prefix = "f") : prefix_(std::move(prefix)) {}
  /// Returns the id of an element, which is added if it is new. `element` is its markup with "@" in place of
  /// the id.
  std::string IdOf(const std::string& element);
  /// Returns the `defs` element, or an empty text if there are no definitions.
  std::string Text() const;

 private:
  std::string prefix_;
  std::map<std::string, std::string> ids_;
  std::string text_;
};

/// Returns the attributes of a fill of `bounds`, with a space in front, such as ` fill="#FF0000"`.
std::string FillAttributes(const Fill& fill, const Rect& bounds, SvgDefinitions& definitions);

}  // namespace plotsmith::render
