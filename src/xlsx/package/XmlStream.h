#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/package/Archive.h"

namespace plotsmith::xlsx {

/// Reads a large part as a stream of tags, through a window that stays in the processor's cache. Elements
/// have their local names. Text that isn't well-formed raises a PackageError, but not all rules of XML are
/// checked.
class XmlStream {
 public:
  /// The kind of a tag.
  enum class Kind { kStart, kEnd, kEmpty, kEndOfInput };
  /// A tag of the stream.
  struct Tag {
    Kind kind;                    ///< The kind of the tag.
    std::string_view name;        ///< The local name. Valid until the next call.
    std::string_view attributes;  ///< As written. Valid until the next call.
  };

  /// Reads from `source`. A part that isn't in UTF-8 is first read as a whole and converted.
  explicit XmlStream(Archive::Stream& source);

  /// Returns the next tag, and skips comments and processing instructions. If `text` isn't null, the decoded
  /// text before the tag is appended to it.
  Tag Next(std::string* text = nullptr);
  /// Appends the text of the element whose start tag was read last, and reads its end tag.
  void ReadText(std::string& text);
  /// Skips the rest of the element whose start tag was read last.
  void SkipElement();
  /// Reads to the end of the part, so that its size and checksum are checked.
  void Drain();

 protected:
  /// Moves the unread bytes to the start of the window and reads more. Returns false at the end of the part.
  /// A full window grows. `position_` stays at the same byte. The unread bytes at least double if the window
  /// and the part have enough bytes. Therefore a long text takes linear time even if each call is followed by
  /// a search from its beginning.
  bool Fill();
  /// Throws the PackageError for XML that isn't well-formed.
  [[noreturn]] static void Damaged();

  /// The unread bytes of the window. A zero byte follows at `end_`. XML can't contain one, so loops stop
  /// there without a comparison. The 15 bytes after it may also be read.
  ///@{
  const char* position_ = nullptr;
  const char* end_ = nullptr;
  ///@}

 private:
  std::string_view Unread() const { return {position_, static_cast<std::size_t>(end_ - position_)}; }
  /// Moves to the next "<", and appends the decoded text before it to `text` unless that is null. Returns
  /// false at the end of the part.
  bool PassText(std::string* text);
  /// Returns true if the unread bytes begin with `what`. Reads more if the window has too few.
  bool StartsWith(std::string_view what);
  /// Moves to the position after the next `what`, which is searched for from an offset on. Returns the bytes
  /// from the offset to `what`. They are valid until the window moves.
  std::string_view PassTo(std::string_view what, std::size_t from);
  /// Skips a comment or a processing instruction, and appends character data to `text`. Returns false at a
  /// tag.
  bool PassOther(std::string* text);
  /// Reads up to the end tag of the element whose start tag was read last. Its text is appended to `text`
  /// unless that is null.
  void PassElement(std::string* text);
  /// Reads a tag, and returns what is between its "<" and ">".
  std::string_view TakeTag();
  std::size_t ReadSource(char* buffer, std::size_t size);

  Archive::Stream& source_;
  std::vector<char> window_;
  std::string converted_;  ///< A part in another encoding, after its conversion.
  std::size_t convertedAt_ = 0;
  bool isConverted_ = false;
};

/// An attribute as it is written in a tag.
struct XmlAttribute {
  std::string_view all;    ///< With the space before it.
  std::string_view name;   ///< With its prefix.
  std::string_view value;  ///< Not decoded.
};

/// Returns the first attribute of `attributes`, the text between a tag's name and its end, and removes it
/// from the text. Returns nothing if the text doesn't begin with an attribute.
std::optional<XmlAttribute> TakeAttribute(std::string_view& attributes);
/// Returns the decoded value of an attribute; empty if it is absent. `attributes` is the text between a tag's
/// name and its end.
std::string AttributeIn(std::string_view attributes, std::string_view name);
/// Returns the decoded value of the attribute r:id, with any prefix; empty if it is absent. `attributes` is
/// the text between a tag's name and its end.
std::string RelationshipIdIn(std::string_view attributes);
/// Returns the value of a Boolean attribute; `fallback` if it is absent or isn't a Boolean. `attributes` is
/// the text between a tag's name and its end.
bool BooleanIn(std::string_view attributes, std::string_view name, bool fallback = false);

}  // namespace plotsmith::xlsx
