#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

/// Reads and writes elements of chart parts and drawings. New elements are inserted in the order of the
/// schema, which one table for each type of element lists. Elements that aren't in a table stay where they
/// are.
namespace plotsmith::xlsx::schema {

/// Returns the child with a name, which is inserted in order if it is missing.
pugi::xml_node Ensure(pugi::xml_node parent, std::string_view local);
/// Returns a descendant by the names on the path to it. Missing elements are made.
template <class... Names>
pugi::xml_node Ensure(pugi::xml_node parent, std::string_view local, Names... rest) {
  return Ensure(Ensure(parent, local), rest...);
}
/// Inserts a child in order, after other children of the same name.
pugi::xml_node Insert(pugi::xml_node parent, std::string_view local);
/// Moves an element of the same document into a parent, in order, after other children of the same name.
void InsertMoved(pugi::xml_node parent, pugi::xml_node child);
/// Inserts a copy of an element of any document, in order. Returns the copy.
pugi::xml_node InsertCopy(pugi::xml_node parent, pugi::xml_node child);
/// Removes all children of a name.
void Remove(pugi::xml_node parent, std::string_view local);

/// The `val` attribute of a child; `fallback` if the child or its attribute is absent.
std::string Val(pugi::xml_node parent, std::string_view local, std::string_view fallback = {});
/// The `val` attribute of a child as an integer; `fallback` if it is absent or no integer. All integers of
/// the schema have 32 bits.
long long IntegerVal(pugi::xml_node parent, std::string_view local, long long fallback);
/// The `val` attribute of a child as a number; absent if it isn't there or isn't a number.
std::optional<double> NumberVal(pugi::xml_node parent, std::string_view local);
/// The `val` attribute of a CT_Boolean child; `fallback` if the child is absent. An absent `val` means true.
bool BooleanVal(pugi::xml_node parent, std::string_view local, bool fallback);
/// Sets the `val` attribute of a child, which is made if it is missing.
void SetVal(pugi::xml_node parent, std::string_view local, std::string_view value);
/// Sets the `val` attribute of a child to 1 or 0. The child is made if it is missing.
void SetBooleanVal(pugi::xml_node parent, std::string_view local, bool value);
/// Sets an attribute to 1 or 0.
void SetBooleanAttribute(pugi::xml_node node, const char* name, bool value);

/// The number (`idx`) of an element that can occur several times, such as a label; -1 if it has none.
long long NumberOf(pugi::xml_node node);
/// The child with a name and a number; a null node if there is none.
pugi::xml_node FindNumbered(pugi::xml_node parent, std::string_view local, long long number);
/// The child with a name and a number. If it is missing, it is inserted in the order of the numbers.
pugi::xml_node EnsureNumbered(pugi::xml_node parent, std::string_view local, long long number);

/// Returns true if the element is a plot group such as "barChart".
bool IsGroup(pugi::xml_node node);
/// Returns true if the element is an axis.
bool IsAxis(pugi::xml_node node);
/// Returns true if the element is a fill.
bool IsFill(pugi::xml_node node);

}  // namespace plotsmith::xlsx::schema
