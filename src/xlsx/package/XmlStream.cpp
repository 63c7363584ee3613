#include "xlsx/package/XmlStream.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "runtime/Ascii.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::size_t kWindow = 256 * 1024;
/// The maximum size of an XML declaration in any encoding.
constexpr std::ptrdiff_t kDeclaration = 512;
/// The number of bytes of the buffer after the terminating zero. Code that compares several bytes at once may
/// read them.
constexpr std::size_t kSlack = 15;

using ascii::IsSpace;

}  // namespace

XmlStream::XmlStream(Archive::Stream& source) : source_(source), window_(kWindow + 1 + kSlack) {
  position_ = end_ = window_.data();
  while (end_ - position_ < kDeclaration && Fill()) {
  }
  const std::string_view start(position_, static_cast<std::size_t>(end_ - position_));
  if (start.starts_with(xml::kByteOrderMark)) {
    position_ += xml::kByteOrderMark.size();
    return;
  }
  if (!xml::NeedsConversion(start)) return;
  std::string bytes(start);
  for (;;) {
    const std::size_t count = source_.Read(window_.data(), kWindow);
    if (count == 0) break;
    bytes.append(window_.data(), count);
    if (bytes.size() > limits::kHeldPart) throw PackageError("its text is too long");
  }
  converted_ = xml::ToUtf8(std::move(bytes));
  isConverted_ = true;
  position_ = end_ = window_.data();
  window_[0] = '\0';
}

void XmlStream::Damaged() { throw PackageError("its XML is damaged"); }

std::size_t XmlStream::ReadSource(char* buffer, std::size_t size) {
  if (!isConverted_) return source_.Read(buffer, size);
  const std::size_t count = std::string_view(converted_).substr(convertedAt_).copy(buffer, size);
  convertedAt_ += count;
  return count;
}

bool XmlStream::Fill() {
  const auto unread = static_cast<std::size_t>(end_ - position_);
  std::memmove(window_.data(), position_, unread);
  if (unread == window_.size() - 1 - kSlack) {
    if (window_.size() > limits::kXmlToken) throw PackageError("it contains a text without an end");
    window_.resize(window_.size() * 2);
  }
  const std::size_t room = window_.size() - 1 - kSlack;
  std::size_t filled = unread;
  for (std::size_t count = 1; count > 0 && filled < std::min(room, 2 * unread + 1); filled += count) {
    count = ReadSource(window_.data() + filled, room - filled);
  }
  position_ = window_.data();
  end_ = window_.data() + filled;
  window_[filled] = '\0';
  return filled > unread;
}

bool XmlStream::PassText(std::string* text) {
  const auto find = [&] {
    return static_cast<const char*>(std::memchr(position_, '<', static_cast<std::size_t>(end_ - position_)));
  };
  const char* open = find();
  while (open == nullptr) {
    if (text == nullptr) position_ = end_;  // Dropped, so that the window doesn't grow.
    if (!Fill()) break;
    open = find();
  }
  const char* const stop = open == nullptr ? end_ : open;
  // The text is decoded as a whole, because an entity may have been divided between two windows.
  if (text != nullptr) *text += xml::Decode({position_, static_cast<std::size_t>(stop - position_)});
  position_ = stop;
  return open != nullptr;
}

bool XmlStream::StartsWith(std::string_view what) {
  while (Unread().size() < what.size() && Fill()) {
  }
  return Unread().starts_with(what);
}

std::string_view XmlStream::PassTo(std::string_view what, std::size_t from) {
  for (std::size_t search = from;;) {
    const std::string_view unread = Unread();
    const auto at = unread.find(what, search);
    if (at != std::string_view::npos) {
      position_ += at + what.size();
      return unread.substr(from, at - from);
    }
    search = unread.size() > from + what.size() ? unread.size() - what.size() : from;
    if (!Fill()) Damaged();
  }
}

bool XmlStream::PassOther(std::string* text) {
  if (StartsWith("<?")) {
    PassTo("?>", 2);
    return true;
  }
  if (!StartsWith("<!")) return false;
  if (StartsWith("<!--")) {
    PassTo("-->", 4);
  } else if (StartsWith("<![CDATA[")) {
    const std::string_view data = PassTo("]]>", 9);
    if (text != nullptr) *text += data;
  } else {
    throw PackageError(xml::kHasDocumentType);
  }
  return true;
}

std::string_view XmlStream::TakeTag() {
  const char* p = position_ + 1;
  for (char quote = 0;; ++p) {
    if (p == end_) {
      const auto read = p - position_;
      if (!Fill()) Damaged();
      p = position_ + read;
    }
    if (quote != 0) {
      if (*p == quote) quote = 0;
    } else if (*p == '"' || *p == '\'') {
      quote = *p;
    } else if (*p == '>') {
      break;
    }
  }
  const std::string_view inside(position_ + 1, static_cast<std::size_t>(p - position_ - 1));
  position_ = p + 1;
  return inside;
}

XmlStream::Tag XmlStream::Next(std::string* text) {
  do {
    if (!PassText(text)) return {Kind::kEndOfInput, {}, {}};
  } while (PassOther(text));
  std::string_view inside = TakeTag();
  Tag tag{Kind::kStart, {}, {}};
  if (inside.starts_with('/')) {
    tag.kind = Kind::kEnd;
    inside.remove_prefix(1);
  } else if (inside.ends_with('/')) {
    tag.kind = Kind::kEmpty;
    inside.remove_suffix(1);
  }
  std::size_t length = 0;
  while (length < inside.size() && !IsSpace(inside[length])) ++length;
  tag.name = xml::LocalName(inside.substr(0, length));
  tag.attributes = inside.substr(length);
  return tag;
}

void XmlStream::ReadText(std::string& text) { PassElement(&text); }

void XmlStream::SkipElement() { PassElement(nullptr); }

void XmlStream::PassElement(std::string* text) {
  for (int depth = 1; depth > 0;) {
    const Tag tag = Next(text);
    if (tag.kind == Kind::kStart) ++depth;
    if (tag.kind == Kind::kEnd) --depth;
    if (tag.kind == Kind::kEndOfInput) Damaged();
  }
}

void XmlStream::Drain() {
  do {
    position_ = end_;
  } while (Fill());
}

std::optional<XmlAttribute> TakeAttribute(std::string_view& attributes) {
  const auto equals = attributes.find('=');
  const auto open = attributes.find_first_of("\"'", equals);
  const auto close = open == std::string_view::npos ? open : attributes.find(attributes[open], open + 1);
  if (close == std::string_view::npos) return std::nullopt;
  std::string_view name = attributes.substr(0, equals);
  while (!name.empty() && IsSpace(name.front())) name.remove_prefix(1);
  while (!name.empty() && IsSpace(name.back())) name.remove_suffix(1);
  const XmlAttribute attribute{attributes.substr(0, close + 1), name,
                               attributes.substr(open + 1, close - open - 1)};
  attributes.remove_prefix(close + 1);
  return attribute;
}

std::string AttributeIn(std::string_view attributes, std::string_view name) {
  while (const auto attribute = TakeAttribute(attributes)) {
    if (attribute->name == name) return xml::Decode(attribute->value);
  }
  return {};
}

std::string RelationshipIdIn(std::string_view attributes) {
  while (const auto attribute = TakeAttribute(attributes)) {
    if (xml::LocalName(attribute->name) == "id") return xml::Decode(attribute->value);
  }
  return {};
}

bool BooleanIn(std::string_view attributes, std::string_view name, bool fallback) {
  return xml::ParseBoolean(AttributeIn(attributes, name)).value_or(fallback);
}

}  // namespace plotsmith::xlsx
