#pragma once

#include <map>
#include <string>
#include <utility>

#include "render/Drawing.h"

namespace plotsmith::render {

/// A number with at most two decimals, in as few characters as it takes.
std::string SvgNumber(double value);
/// Appends a number that is given in hundredths, in the same way.
void AppendHundredths(std::string& text, long long hundredths);
/// Text or an attribute's value, with the characters replaced that XML wants replaced, and those left out
/// that it can't hold.
std::string SvgEscape(std::string_view text);

/// The definitions that fillings refer to, each written once.
class SvgDefinitions {
 public:
  /// `prefix` begins all ids.
  explicit SvgDefinitions(std::string prefix = "f") : prefix_(std::move(prefix)) {}
  /// The number under which the element is known; `element` holds its tag with "@" in the place of the id.
  std::string IdOf(const std::string& element);
  /// The `defs` element, or nothing.
  std::string Text() const;

 private:
  std::string prefix_;
  std::map<std::string, std::string> ids_;
  std::string text_;
};

/// The attributes of a filling, with a blank in front: ` fill="#FF0000"`. `bounds` is what it fills.
std::string FillAttributes(const Fill& fill, const Rect& bounds, SvgDefinitions& definitions);

}  // namespace plotsmith::render
