#pragma once

#include <optional>
#include <pugixml.hpp>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Reads and changes XML parts of other programs, and keeps elements that Plotsmith doesn't know.
///
/// A part is parsed without decoding: entities, white space, comments and line ends are written back
/// unchanged. Elements are found by their local names, because each program chooses its own prefixes, and
/// because Strict and Transitional files differ only in the URIs of namespaces. Values are decoded when they
/// are read, and encoded when they are set.
namespace plotsmith::xlsx::xml {

/// The message for a part with a document type declaration, which no part may have (ECMA-376-2).
inline constexpr const char* kHasDocumentType =
    "it declares a document type, which isn't allowed in a workbook";

/// The byte order mark of UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Parses a part in UTF-8, UTF-16, Latin-1 or Windows-1252. Throws PackageError if it isn't well-formed or is
/// nested too deep.
void Parse(pugi::xml_document& document, std::string_view bytes);
/// Returns the document in UTF-8, with the XML declaration of the parsed text, if any.
std::string Serialize(const pugi::xml_document& document);
/// Converts a part to UTF-8 without a byte order mark, and changes its XML declaration accordingly.
std::string ToUtf8(std::string bytes);
/// Returns true if ToUtf8 would change a part; `start` is its text up to the end of the XML declaration.
bool NeedsConversion(std::string_view start);

/// Replaces the entities in a text by their characters.
std::string Decode(std::string_view raw);
/// Replaces characters that a text or an attribute's value can't contain by entities.
///@{
std::string EncodeText(std::string_view text);
std::string EncodeAttribute(std::string_view text);
///@}

/// The name without its prefix.
std::string_view LocalName(std::string_view name);
/// The name of an element without its prefix.
inline std::string_view LocalName(pugi::xml_node node) { return LocalName(node.name()); }
/// Returns true if the element has this local name.
bool Is(pugi::xml_node node, std::string_view local);
/// The prefix with its colon; empty if there is none.
std::string_view Prefix(std::string_view name);

/// Returns the first child element with the local name, or a null node.
pugi::xml_node Child(pugi::xml_node parent, std::string_view local);
/// Returns a descendant by the local names on the path to it; a null node if there is none.
template <class... Names>
pugi::xml_node Child(pugi::xml_node parent, std::string_view local, Names... rest) {
  return Child(Child(parent, local), rest...);
}
/// Returns all child elements with the local name.
std::vector<pugi::xml_node> Children(pugi::xml_node parent, std::string_view local);
/// Appends a child with its parent's prefix, and returns it.
pugi::xml_node AppendChild(pugi::xml_node parent, std::string_view local);
/// Returns a child. If it is missing, it is inserted before the children that follow it in `order`, the order
/// of the schema.
pugi::xml_node EnsureInOrder(pugi::xml_node parent, std::string_view local,
                             std::span<const std::string_view> order);
/// Returns the next sibling element with the same local name.
pugi::xml_node NextSame(pugi::xml_node node);
/// The root element.
pugi::xml_node Root(const pugi::xml_document& document);

/// Returns the decoded value of an attribute without a prefix, or nothing.
std::optional<std::string> FindAttribute(pugi::xml_node node, const char* name);
/// Returns the decoded value of an attribute, or `fallback` if it is absent.
std::string Attribute(pugi::xml_node node, const char* name, std::string_view fallback = {});
/// Returns an integer; `fallback` if the attribute is absent or isn't an integer.
long long IntegerAttribute(pugi::xml_node node, const char* name, long long fallback);
/// Returns the value of an attribute as a number, or `fallback` if it is absent or no number.
double NumberAttribute(pugi::xml_node node, const char* name, double fallback);
/// Returns a value of the type ST_OnOff, which includes xsd:boolean; `fallback` if the attribute is absent or
/// invalid.
bool BooleanAttribute(pugi::xml_node node, const char* name, bool fallback);
/// Sets an attribute, which is added if it is missing. The value is encoded.
void SetAttribute(pugi::xml_node node, const char* name, std::string_view value);
/// Returns the value of the attribute r:id, with any prefix; empty if it is absent.
std::string RelationshipId(pugi::xml_node node);
/// Returns the values of all attributes with a prefix, of an element and of the elements inside it. The ids
/// of relationships are among them (r:id, r:embed, r:link). Each attribute counts, so a value can be
/// repeated.
std::multiset<std::string> RelationshipIdsIn(pugi::xml_node element);

/// Returns the decoded text directly inside an element.
std::string Text(pugi::xml_node node);
/// Replaces the content of an element by a text, which is encoded.
void SetText(pugi::xml_node node, std::string_view text);

/// Returns the prefix (with its colon) of the namespace `uri` at `node`. If there is none, declares it on the
/// root element, as `preferred` or a variant of it.
std::string EnsurePrefix(pugi::xml_node node, std::string_view uri, std::string_view preferred);
/// Returns the URI of the element's namespace.
std::string NamespaceOf(pugi::xml_node node);

/// Reads "1", "true", "on", "0", "false" or "off". Returns nothing for any other text.
std::optional<bool> ParseBoolean(std::string_view text);
/// Returns a number as XML writes it, in the shortest form that reads back as the same number.
std::string Number(double value);
/// Reads a number as XML Schema writes it, in every locale; absent if the text isn't a number.
std::optional<double> ParseDouble(std::string_view text);
/// Reads a whole number; absent if the text isn't one or is out of range.
std::optional<long long> ParseInteger(std::string_view text);

}  // namespace plotsmith::xlsx::xml
