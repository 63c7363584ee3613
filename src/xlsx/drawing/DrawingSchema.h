#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

/// Elements of a chart part, or of the shapes of a drawing, each put in where its schema wants it: one table
/// of children for each type of element. What isn't in a table stays where it is.
namespace plotsmith::xlsx::schema {

/// The child, made at its place if there is none.
pugi::xml_node Ensure(pugi::xml_node parent, std::string_view local);
template <class... Names>
pugi::xml_node Ensure(pugi::xml_node parent, std::string_view local, Names... rest) {
  return Ensure(Ensure(parent, local), rest...);
}
/// A new child at its place, behind those of its kind.
pugi::xml_node Insert(pugi::xml_node parent, std::string_view local);
/// Moves an element of the same document to its place under a parent, behind those of its kind.
void InsertMoved(pugi::xml_node parent, pugi::xml_node child);
/// The same with a copy of an element, from any document.
pugi::xml_node InsertCopy(pugi::xml_node parent, pugi::xml_node child);
void Remove(pugi::xml_node parent, std::string_view local);

/// The `val` attribute of a child; `fallback` where the child or its attribute is absent.
std::string Val(pugi::xml_node parent, std::string_view local, std::string_view fallback = {});
/// `fallback`, or nothing, where it isn't a number either. Whole numbers are of 32 bits, as all in the
/// schema.
long long IntegerVal(pugi::xml_node parent, std::string_view local, long long fallback);
std::optional<double> NumberVal(pugi::xml_node parent, std::string_view local);
/// Of a child that is a CT_Boolean, whose `val` is true when it isn't written.
bool BooleanVal(pugi::xml_node parent, std::string_view local, bool fallback);
void SetVal(pugi::xml_node parent, std::string_view local, std::string_view value);
void SetBooleanVal(pugi::xml_node parent, std::string_view local, bool value);
void SetBooleanAttribute(pugi::xml_node node, const char* name, bool value);

/// The number (`idx`) of an element that stands among others of its kind, like a label; -1 without one.
long long NumberOf(pugi::xml_node node);
/// The child of a kind and a number, or a null node; or made among the others by its number.
pugi::xml_node FindNumbered(pugi::xml_node parent, std::string_view local, long long number);
pugi::xml_node EnsureNumbered(pugi::xml_node parent, std::string_view local, long long number);

/// Whether the element is a plot group ("barChart"), an axis, or a filling.
bool IsGroup(pugi::xml_node node);
bool IsAxis(pugi::xml_node node);
bool IsFill(pugi::xml_node node);

}  // namespace plotsmith::xlsx::schema
