#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/package/Archive.h"

namespace plotsmith::xlsx {

/// A large part read as a stream of tags through a window that stays in the processor's cache. Elements are
/// named by their local names. Throws PackageError for what isn't XML; it checks no more of that than it
/// needs.
class XmlStream {
 public:
  enum class Kind { kStart, kEnd, kEmpty, kEndOfInput };
  struct Tag {
    Kind kind;
    std::string_view name;        ///< local; good until the next call
    std::string_view attributes;  ///< as written, likewise
  };

  /// A part in another encoding than UTF-8 is read whole and converted first.
  explicit XmlStream(Archive::Stream& source);

  /// The next tag. The text before it, decoded, is appended to `text` if that isn't null. Comments and
  /// processing instructions are passed over.
  Tag Next(std::string* text = nullptr);
  /// Appends the text of the element whose start tag came last, and passes its end tag.
  void ReadText(std::string& text);
  /// Passes over the rest of the element whose start tag came last.
  void SkipElement();
  /// Reads to the end of the part, which proves its size and checksum.
  void Drain();

 protected:
  /// Moves what is unread to the window's front and reads more; false at the end of the part. The window
  /// grows if it is full. `position_` stays on the same byte.
  bool Fill();
  [[noreturn]] static void Damaged();

  // The window: unread bytes from position_ to end_, where a zero byte stands, which XML can't hold: so loops
  // need not look at the end. 15 more bytes may be looked at behind it.
  const char* position_ = nullptr;
  const char* end_ = nullptr;

 private:
  std::size_t ReadSource(char* buffer, std::size_t size);

  Archive::Stream& source_;
  std::vector<char> window_;
  std::string converted_;  ///< a part that came in another encoding
  std::size_t convertedAt_ = 0;
  bool isConverted_ = false;
};

/// An attribute as it is written in a tag.
struct XmlAttribute {
  std::string_view all;    ///< with the space before it
  std::string_view name;   ///< with its prefix
  std::string_view value;  ///< not decoded
};

/// The first attribute in the text between a tag's name and its end, which is moved behind it; nothing if
/// there is no other, or what follows isn't one.
std::optional<XmlAttribute> TakeAttribute(std::string_view& attributes);
/// The value of an attribute in such a text, decoded; empty if it is absent.
std::string AttributeIn(std::string_view attributes, std::string_view name);
/// The same of a boolean; `fallback` if it is absent or isn't one.
bool BooleanIn(std::string_view attributes, std::string_view name, bool fallback = false);

}  // namespace plotsmith::xlsx
