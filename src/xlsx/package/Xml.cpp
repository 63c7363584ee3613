#include "xlsx/package/Xml.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <new>
#include <sstream>

#include "dom/XmlCharacters.h"
#include "runtime/Ascii.h"
#include "runtime/Strings.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx::xml {
namespace {

constexpr unsigned kParse = (pugi::parse_full | pugi::parse_ws_pcdata) &
                            ~(pugi::parse_escapes | pugi::parse_eol | pugi::parse_wconv_attribute);
constexpr unsigned kSave = pugi::format_raw | pugi::format_no_escapes | pugi::format_no_declaration;

/// The place of a text. In an attribute, quotes and white space need entities.
enum class TextPlace { kElement, kAttribute };

std::string Encode(std::string_view text, TextPlace place) {
  const bool attribute = place == TextPlace::kAttribute;
  std::string raw;
  raw.reserve(text.size());
  for (char c : text) {
    switch (c) {
      case '&':
        raw += "&amp;";
        break;
      case '<':
        raw += "&lt;";
        break;
      case '>':
        raw += "&gt;";
        break;
      case '\r':
        raw += "&#13;";
        break;  // XML readers convert a bare carriage return to a line feed
      case '"':
        raw += attribute ? "&quot;" : "\"";
        break;
      case '\n':
        raw += attribute ? "&#10;" : "\n";
        break;
      case '\t':
        raw += attribute ? "&#9;" : "\t";
        break;
      default:
        if (static_cast<unsigned char>(c) >= 0x20) raw += c;  // XML has no other control characters
    }
  }
  return raw;
}

/// Escapes double quotes in the attributes of an element. Values are written as they are, between double
/// quotes, so a quote inside a value would end it.
void QuoteSafe(pugi::xml_node element) {
  std::size_t count = 0;
  for (auto attribute = element.first_attribute(); attribute; attribute = attribute.next_attribute()) {
    if (++count > limits::kXmlAttributes)
      throw PackageError("an element of it has more attributes than Plotsmith supports");
    if (std::strchr(attribute.value(), '"') != nullptr) {
      attribute.set_value(runtime::Replace(attribute.value(), "\"", "&quot;").c_str());
    }
  }
}

enum class Encoding { kUtf8, kMarkedUtf8, kUtf16Big, kUtf16Little, kLatin1, kWindows1252 };

/// Returns the encoding that the XML declaration names, as a view of the text; a null view if it names none.
std::string_view DeclaredEncoding(std::string_view text) {
  if (!text.starts_with("<?xml")) return {};
  const std::string_view declaration = text.substr(0, text.find("?>"));
  const auto name = declaration.find("encoding");
  if (name == std::string_view::npos) return {};
  const auto open = declaration.find_first_of("\"'", name);
  if (open == std::string_view::npos) return {};
  const auto close = declaration.find(declaration[open], open + 1);
  return close == std::string_view::npos ? std::string_view()
                                         : declaration.substr(open + 1, close - open - 1);
}

Encoding EncodingOf(std::string_view bytes) {
  const auto begins = [&](char first, char second) {
    return bytes.size() >= 2 && bytes[0] == first && bytes[1] == second;
  };
  if (bytes.starts_with(kByteOrderMark)) return Encoding::kMarkedUtf8;
  if (begins('\xFE', '\xFF') || begins('\0', '<')) return Encoding::kUtf16Big;
  if (begins('\xFF', '\xFE') || begins('<', '\0')) return Encoding::kUtf16Little;
  const std::string_view declared = DeclaredEncoding(bytes);
  for (const std::string_view name : {"ISO-8859-1", "ISO_8859-1", "LATIN1"}) {
    if (runtime::EqualsIgnoreCase(declared, name)) return Encoding::kLatin1;
  }
  for (const std::string_view name : {"WINDOWS-1252", "CP1252"}) {
    if (runtime::EqualsIgnoreCase(declared, name)) return Encoding::kWindows1252;
  }
  return Encoding::kUtf8;
}

std::string FromUtf16(std::string_view bytes, std::endian order) {
  const std::size_t high = order == std::endian::big ? 0 : 1, low = 1 - high;
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  std::u16string units;
  units.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    units += static_cast<char16_t>(byte(i + high) << 8 | byte(i + low));
  }
  if (units.starts_with(u'\xFEFF')) units.erase(0, 1);
  return runtime::ToUtf8(units);
}

/// Converts Latin-1 or Windows-1252.
std::string FromSingleBytes(std::string_view bytes, Encoding encoding) {
  // Windows-1252 from 0x80 on, where Latin-1 has control characters
  static constexpr char16_t kWindows[] =
      u"\x20AC\x81\x201A\x0192\x201E\x2026\x2020\x2021\x02C6\x2030\x0160\x2039\x0152\x8D\x017D\x8F"
      u"\x90\x2018\x2019\x201C\x201D\x2022\x2013\x2014\x02DC\x2122\x0161\x203A\x0153\x9D\x017E\x0178";
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    runtime::AppendUtf8(text, encoding == Encoding::kWindows1252 && byte >= 0x80 && byte < 0xA0
                                  ? kWindows[byte - 0x80]
                                  : byte);
  }
  return text;
}

bool IsAscii(std::string_view text) {
  unsigned char bits = 0;
  for (const char c : text) bits |= static_cast<unsigned char>(c);
  return bits < 0x80;
}

bool IsUtf8(std::string_view text) {
  constexpr std::size_t kBlock = 256;  // Nearly all blocks of a part are ASCII, which is fast to check.
  for (std::size_t i = 0; i < text.size();) {
    if (const std::string_view block = text.substr(i, kBlock); IsAscii(block)) {
      i += block.size();
      continue;
    }
    for (const std::size_t end = std::min(i + kBlock, text.size()); i < end;) {
      const std::size_t begin = i;
      const bool ascii = static_cast<unsigned char>(text[i]) < 0x80;
      runtime::NextCharacter(text, i);
      if (!ascii && i == begin + 1) return false;
    }
  }
  return true;
}

/// Visits all nodes of a part that was just parsed.
struct PartWalker : pugi::xml_tree_walker {
  bool for_each(pugi::xml_node& node) override {
    const pugi::xml_node_type type = node.type();
    if (type == pugi::node_element && depth() >= limits::kXmlDepth) {
      throw PackageError("its XML is nested too deeply");
    }
    if (type == pugi::node_element || type == pugi::node_declaration) QuoteSafe(node);
    return true;
  }
};

/// Returns the name of the entity at a position, such as "amp" or "#38"; empty if there is none.
std::string_view EntityAt(std::string_view raw, std::size_t at) {
  constexpr std::size_t kLongest = 12;  // from the "&" to the ";"
  if (raw[at] != '&') return {};
  const auto end = raw.substr(at, kLongest + 1).find(';');
  return end == std::string_view::npos ? std::string_view() : raw.substr(at + 1, end - 1);
}

/// Returns the character of an entity, or nothing for an unknown entity.
std::optional<char32_t> CharacterOf(std::string_view entity) {
  static constexpr std::array<std::pair<std::string_view, char>, 5> kEntities = {
      {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}}};
  for (const auto& [name, character] : kEntities) {
    if (name == entity) return static_cast<char32_t>(character);
  }
  if (entity.size() < 2 || entity[0] != '#') return std::nullopt;
  const bool hexadecimal = entity[1] == 'x' || entity[1] == 'X';
  const std::string_view digits = entity.substr(hexadecimal ? 2 : 1);
  std::uint32_t code = 0;
  const auto [stop, status] = std::from_chars(digits.begin(), digits.end(), code, hexadecimal ? 16 : 10);
  if (status != std::errc() || stop != digits.end() || !dom::IsXmlCharacter(code)) return std::nullopt;
  return code;
}

/// Returns the number without surrounding white space and without a plus sign.
std::string_view NumberIn(std::string_view text) {
  while (!text.empty() && ascii::IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && ascii::IsSpace(text.back())) text.remove_suffix(1);
  if (text.starts_with('+')) text.remove_prefix(1);
  return text;
}

}  // namespace

bool NeedsConversion(std::string_view start) { return EncodingOf(start) != Encoding::kUtf8; }

std::string ToUtf8(std::string bytes) {
  const Encoding encoding = EncodingOf(bytes);
  if (encoding == Encoding::kUtf8) return bytes;
  std::string text;
  switch (encoding) {
    case Encoding::kUtf16Big:
      text = FromUtf16(bytes, std::endian::big);
      break;
    case Encoding::kUtf16Little:
      text = FromUtf16(bytes, std::endian::little);
      break;
    case Encoding::kLatin1:
    case Encoding::kWindows1252:
      text = FromSingleBytes(bytes, encoding);
      break;
    default:
      text = bytes.substr(kByteOrderMark.size());
  }
  const std::string_view declared = DeclaredEncoding(text);
  if (declared.data() != nullptr) {
    text.replace(static_cast<std::size_t>(declared.data() - text.data()), declared.size(), "UTF-8");
  }
  return text;
}

void Parse(pugi::xml_document& document, std::string_view bytes) {
  std::string converted;
  std::string_view text = bytes;
  if (NeedsConversion(bytes)) text = converted = ToUtf8(std::string(bytes));
  if (!IsUtf8(text)) throw PackageError("its text isn't in the encoding that it declares");
  const auto mark = [](char c) { return c == '<' || c == '='; };
  if (std::ssize(text) > limits::kXmlMarks &&
      std::count_if(text.begin(), text.end(), mark) > limits::kXmlMarks) {
    throw PackageError("it has more elements than Plotsmith supports");
  }
  const auto status = document.load_buffer(text.data(), text.size(), kParse, pugi::encoding_utf8);
  if (status.status == pugi::status_out_of_memory) throw std::bad_alloc();
  if (!status || !Root(document)) throw PackageError("its XML is damaged");
  PartWalker walker;
  document.traverse(walker);
  for (const pugi::xml_node& node : document.children()) {
    if (node.type() == pugi::node_doctype) throw PackageError(kHasDocumentType);
  }
  pugi::xml_node declaration = document.first_child();
  if (declaration.type() == pugi::node_declaration && declaration.attribute("encoding")) {
    declaration.attribute("encoding").set_value("UTF-8");
  }
}

std::string Serialize(const pugi::xml_document& document) {
  struct Writer : pugi::xml_writer {
    std::string bytes;
    void write(const void* data, std::size_t size) override {
      bytes.append(static_cast<const char*>(data), size);
    }
  } writer;
  document.save(writer, "", kSave, pugi::encoding_utf8);
  // A tree may contain half of a surrogate pair, but a file may not.
  return dom::XmlCharactersOf(writer.bytes);
}

std::string Decode(std::string_view raw) {
  const auto needsDecoding = [](char c) { return c == '&' || c == '\r'; };
  if (std::none_of(raw.begin(), raw.end(), needsDecoding)) return std::string(raw);
  std::string text;
  text.reserve(raw.size());
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] == '\r') {  // XML reads every line end as a line feed
      text += '\n';
      if (i + 1 < raw.size() && raw[i + 1] == '\n') ++i;
      continue;
    }
    const std::string_view entity = EntityAt(raw, i);
    if (const auto character = entity.empty() ? std::nullopt : CharacterOf(entity)) {
      runtime::AppendUtf8(text, *character);
      i += entity.size() + 1;
    } else {
      text += raw[i];
    }
  }
  return text;
}

std::string EncodeText(std::string_view text) { return Encode(text, TextPlace::kElement); }
std::string EncodeAttribute(std::string_view text) { return Encode(text, TextPlace::kAttribute); }

bool Is(pugi::xml_node node, std::string_view local) {
  // A single pass over the name is faster than measuring it and searching for the prefix.
  const char* const name = node.name();
  const char* rest = name;
  while (*rest != '\0' && *rest != ':') ++rest;
  rest = *rest == ':' ? rest + 1 : name;
  for (const char c : local) {
    if (*rest++ != c) return false;
  }
  return *rest == '\0';
}

std::string_view LocalName(std::string_view name) {
  const auto colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string_view Prefix(std::string_view name) {
  const auto colon = name.find(':');
  return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon + 1);
}

pugi::xml_node Child(pugi::xml_node parent, std::string_view local) {
  for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
    if (Is(child, local) && child.type() == pugi::node_element) return child;
  }
  return {};
}

std::vector<pugi::xml_node> Children(pugi::xml_node parent, std::string_view local) {
  std::vector<pugi::xml_node> children;
  for (pugi::xml_node child = Child(parent, local); child; child = NextSame(child)) children.push_back(child);
  return children;
}

pugi::xml_node AppendChild(pugi::xml_node parent, std::string_view local) {
  return parent.append_child((std::string(Prefix(parent.name())) + std::string(local)).c_str());
}

pugi::xml_node EnsureInOrder(pugi::xml_node parent, std::string_view local,
                             std::span<const std::string_view> order) {
  if (const auto child = Child(parent, local)) return child;
  pugi::xml_node child = AppendChild(parent, local);
  auto behind = std::find(order.begin(), order.end(), local);
  while (behind != order.end() && ++behind != order.end()) {
    if (const auto follower = Child(parent, *behind)) return parent.insert_move_before(child, follower);
  }
  return child;
}

pugi::xml_node NextSame(pugi::xml_node node) {
  const std::string_view local = LocalName(node);
  do {
    node = node.next_sibling();
  } while (node && !(Is(node, local) && node.type() == pugi::node_element));
  return node;
}

pugi::xml_node Root(const pugi::xml_document& document) { return document.document_element(); }

std::optional<std::string> FindAttribute(pugi::xml_node node, const char* name) {
  const pugi::xml_attribute attribute = node.attribute(name);
  if (!attribute) return std::nullopt;
  return Decode(attribute.value());
}

std::string Attribute(pugi::xml_node node, const char* name, std::string_view fallback) {
  return FindAttribute(node, name).value_or(std::string(fallback));
}

long long IntegerAttribute(pugi::xml_node node, const char* name, long long fallback) {
  const pugi::xml_attribute attribute = node.attribute(name);
  return attribute ? ParseInteger(attribute.value()).value_or(fallback) : fallback;
}

double NumberAttribute(pugi::xml_node node, const char* name, double fallback) {
  const pugi::xml_attribute attribute = node.attribute(name);
  return attribute ? ParseDouble(attribute.value()).value_or(fallback) : fallback;
}

bool BooleanAttribute(pugi::xml_node node, const char* name, bool fallback) {
  return ParseBoolean(node.attribute(name).value()).value_or(fallback);
}

void SetAttribute(pugi::xml_node node, const char* name, std::string_view value) {
  pugi::xml_attribute attribute = node.attribute(name);
  if (!attribute) attribute = node.append_attribute(name);
  attribute.set_value(EncodeAttribute(value).c_str());
}

std::string RelationshipId(pugi::xml_node node) {
  for (const pugi::xml_attribute& attribute : node.attributes()) {
    if (!Prefix(attribute.name()).empty() && LocalName(attribute.name()) == "id")
      return Decode(attribute.value());
  }
  return {};
}

std::multiset<std::string> RelationshipIdsIn(pugi::xml_node element) {
  std::multiset<std::string> ids;
  for (const pugi::xml_attribute& attribute : element.attributes()) {
    const std::string_view prefix = Prefix(attribute.name());
    if (!prefix.empty() && prefix != "xmlns:") ids.insert(Decode(attribute.value()));
  }
  for (const pugi::xml_node& child : element.children()) ids.merge(RelationshipIdsIn(child));
  return ids;
}

std::string Text(pugi::xml_node node) {
  std::string text;
  for (auto child = node.first_child(); child; child = child.next_sibling()) {
    if (child.type() == pugi::node_pcdata) text += Decode(child.value());
    if (child.type() == pugi::node_cdata) text += child.value();
  }
  return text;
}

void SetText(pugi::xml_node node, std::string_view text) {
  node.remove_children();
  node.append_child(pugi::node_pcdata).set_value(EncodeText(text).c_str());
}

std::string EnsurePrefix(pugi::xml_node node, std::string_view uri, std::string_view preferred) {
  for (pugi::xml_node scope = node; scope; scope = scope.parent()) {
    for (const pugi::xml_attribute& attribute : scope.attributes()) {
      if (Prefix(attribute.name()) == "xmlns:" && uri == attribute.value()) {
        return std::string(LocalName(attribute.name())) + ":";
      }
    }
  }
  pugi::xml_node root = node;
  while (root.parent() && root.parent().type() == pugi::node_element) root = root.parent();
  std::string prefix(preferred);
  while (root.attribute(("xmlns:" + prefix).c_str())) prefix += '_';
  root.append_attribute(("xmlns:" + prefix).c_str()).set_value(std::string(uri).c_str());
  return prefix + ":";
}

std::string NamespaceOf(pugi::xml_node node) {
  const std::string_view prefix = Prefix(node.name());
  const std::string name =
      prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix.substr(0, prefix.size() - 1));
  for (; node; node = node.parent()) {
    if (const auto attribute = node.attribute(name.c_str())) return attribute.value();
  }
  return {};
}

std::string Number(double value) {
  if (value == 0) return "0";  // also for -0
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return {buffer.data(), end};
}

std::optional<bool> ParseBoolean(std::string_view text) {
  if (text == "1" || text == "true" || text == "on") return true;
  if (text == "0" || text == "false" || text == "off") return false;
  return std::nullopt;
}

std::optional<double> ParseDouble(std::string_view text) {
  text = NumberIn(text);
  double value = 0;
  const auto [end, status] = std::from_chars(text.begin(), text.end(), value);
  if (status != std::errc() || end != text.end() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::optional<long long> ParseInteger(std::string_view text) {
  text = NumberIn(text);
  long long value = 0;
  const auto [end, status] = std::from_chars(text.begin(), text.end(), value);
  if (status != std::errc() || end != text.end()) return std::nullopt;
  return value;
}

}  // namespace plotsmith::xlsx::xml
