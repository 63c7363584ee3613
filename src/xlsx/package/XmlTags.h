#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The tags of a part as text, for changes that keep all other bytes. The text is UTF-8.
namespace plotsmith::xlsx {

/// A part of a text. The end is the position after the last character.
struct TextSpan {
  /// The positions of the first character and after the last one. Both are `npos` if there is no such part.
  ///@{
  std::size_t begin = std::string::npos;
  std::size_t end = std::string::npos;
  ///@}
  /// Returns true if the span was found.
  bool Found() const { return begin != std::string::npos; }
};

/// A tag in a text.
struct XmlTag {
  /// The kind of a tag.
  enum class Kind { kStart, kEnd, kEmpty };
  TextSpan span;                ///< The tag with its angle brackets.
  Kind kind = Kind::kStart;     ///< The kind of the tag.
  std::string_view name;        ///< As written.
  std::string_view attributes;  ///< As written, with the space before them.
};

/// Returns the next tag at or after a position. Comments, processing instructions and character data are
/// skipped.
std::optional<XmlTag> NextTag(std::string_view text, std::size_t from);

/// Returns the tag of the first wanted child of an element; `from` is a position between the element's
/// children. If there is none, returns the element's end tag. Throws PackageError if the element doesn't end.
XmlTag FindChild(std::string_view text, std::size_t from, const std::function<bool(const XmlTag&)>& wanted);

/// Removes the wanted children of an element from the position `from` on.
void RemoveChildren(std::string& text, std::size_t from, const std::function<bool(const XmlTag&)>& wanted);

/// Returns the span of an attribute of a tag, from the space before it to the end of its closing quote.
TextSpan FindAttribute(std::string_view text, const XmlTag& tag, std::string_view name);

/// Returns the decoded text of an element; `content` is the text between its tags.
std::string TextBetween(std::string_view content);

}  // namespace plotsmith::xlsx
