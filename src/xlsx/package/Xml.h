#pragma once

#include <optional>
#include <pugixml.hpp>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// XML parts that other programs wrote, read and changed without disturbing what we don't know.
///
/// A part is parsed without decoding: entities, white space, comments and line ends stay as they were
/// written, and go out as they came. Elements are found by their local names, as the prefix is the writer's
/// own choice, and Strict and Transitional files differ only in the namespaces' addresses. What is read or
/// set as a value passes through Decode or Encode.
namespace plotsmith::xlsx::xml {

/// What is said of a part with a document type, which no part may have (ECMA-376-2).
inline constexpr const char* kHasDocumentType =
    "it declares a document type, which no part of a workbook may";

/// Parses a part in UTF-8, UTF-16, Latin-1 or Windows-1252. Throws PackageError if it isn't well-formed, or
/// too deep.
void Parse(pugi::xml_document& document, std::string_view bytes);
/// UTF-8, with the declaration that the part came with, or none.
std::string Serialize(const pugi::xml_document& document);
/// UTF-8 without a byte order mark, from whatever encoding the bytes are in; the declaration then says so.
std::string ToUtf8(std::string bytes);
/// Whether ToUtf8 would change a part that begins so; `start` goes up to the end of the declaration.
bool NeedsConversion(std::string_view start);

std::string Decode(std::string_view raw);
std::string EncodeText(std::string_view text);
std::string EncodeAttribute(std::string_view text);

std::string_view LocalName(std::string_view name);
inline std::string_view LocalName(pugi::xml_node node) { return LocalName(node.name()); }
inline bool Is(pugi::xml_node node, std::string_view local) { return LocalName(node) == local; }
/// The prefix with its colon, or empty.
std::string_view Prefix(std::string_view name);

/// The first child element of the local name, or a null node. A path of several names goes down.
pugi::xml_node Child(pugi::xml_node parent, std::string_view local);
template <class... Names>
pugi::xml_node Child(pugi::xml_node parent, std::string_view local, Names... rest) {
  return Child(Child(parent, local), rest...);
}
std::vector<pugi::xml_node> Children(pugi::xml_node parent, std::string_view local);
/// A new last child, with its parent's prefix.
pugi::xml_node AppendChild(pugi::xml_node parent, std::string_view local);
/// A child, made where there is none: in front of those that come behind it in the order of the schema.
pugi::xml_node EnsureInOrder(pugi::xml_node parent, std::string_view local,
                             std::span<const std::string_view> order);
/// The next sibling element of the same local name.
pugi::xml_node NextSame(pugi::xml_node node);
/// The root element.
pugi::xml_node Root(const pugi::xml_document& document);

/// The decoded value of an attribute without a prefix, nothing if it is absent.
std::optional<std::string> FindAttribute(pugi::xml_node node, const char* name);
std::string Attribute(pugi::xml_node node, const char* name, std::string_view fallback = {});
/// A whole number; `fallback` if the attribute is absent or isn't one.
long long IntegerAttribute(pugi::xml_node node, const char* name, long long fallback);
double NumberAttribute(pugi::xml_node node, const char* name, double fallback);
/// ST_OnOff, and so xsd:boolean; `fallback` if the attribute is absent or is neither.
bool BooleanAttribute(pugi::xml_node node, const char* name, bool fallback);
void SetAttribute(pugi::xml_node node, const char* name, std::string_view value);
/// The value of the attribute that links to a relationship (r:id, whatever the prefix), or empty.
std::string RelationshipId(pugi::xml_node node);
/// The values of all attributes of an element and those inside of it that may link to a relationship (r:id,
/// r:embed, r:link, ...): those with a prefix.
std::set<std::string> RelationshipIdsIn(pugi::xml_node element);

/// The decoded text directly inside an element.
std::string Text(pugi::xml_node node);
void SetText(pugi::xml_node node, std::string_view text);

/// The prefix (with colon) under which `uri` is known at `node`; declares it on the root element, under
/// `preferred` or a variant of it, where it isn't.
std::string EnsurePrefix(pugi::xml_node node, std::string_view uri, std::string_view preferred);
/// The namespace that the element itself is in.
std::string NamespaceOf(pugi::xml_node node);

/// "1", "true", "on" and their opposites; nothing for anything else.
std::optional<bool> ParseBoolean(std::string_view text);
/// Numbers as XML wants them, shortest form that reads back the same.
std::string Number(double value);
std::optional<double> ParseDouble(std::string_view text);
std::optional<long long> ParseInteger(std::string_view text);

}  // namespace plotsmith::xlsx::xml
