#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The tags of a part as text, for changes that leave all else as it is, byte for byte. The text is UTF-8.
namespace plotsmith::xlsx {

/// A stretch of a text, the end outside.
struct TextSpan {
  std::size_t begin = std::string::npos;
  std::size_t end = std::string::npos;
  bool Found() const { return begin != std::string::npos; }
};

struct XmlTag {
  enum class Kind { kStart, kEnd, kEmpty };
  TextSpan span;
  Kind kind = Kind::kStart;
  std::string_view name;        ///< as written
  std::string_view attributes;  ///< likewise, with the space before them
};

/// The next tag from a place on; comments, instructions and character data hold none.
std::optional<XmlTag> NextTag(std::string_view text, std::size_t from);

/// An attribute of a tag of the text, from the space before it to behind its closing quote.
TextSpan FindAttribute(std::string_view text, const XmlTag& tag, std::string_view name);

/// The decoded text of an element, as written between its tags.
std::string TextBetween(std::string_view content);

}  // namespace plotsmith::xlsx
