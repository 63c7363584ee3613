#pragma once

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Variant.h"

/// The document object model, with MSXML's names for the members that the system uses, implemented with
/// pugixml.
///
/// A handle is a small value. Copies of a handle refer to the same node. A default handle is Nothing, and
/// using a member of Nothing raises error 91. A node outside the tree (just created, or removed) stays
/// usable.
namespace plotsmith::dom {

class IXMLDOMElement;

/// An attribute of an element.
struct IXMLDOMAttribute {
  std::string name;   ///< The name, including its prefix.
  std::string value;  ///< The value, with entities resolved.
};

/// The reason and position of a parse error. Without an error the reason is empty.
struct IXMLDOMParseError {
  std::string reason;        ///< The parser's message, without a full stop.
  std::int32_t line = 0;     ///< The line, counted from 1.
  std::int32_t linepos = 0;  ///< The character in the line, counted from 1.
};

/// The result of a query, in document order.
using IXMLDOMNodeList = std::vector<IXMLDOMElement>;

/// A node of a document: an element, a text, or the document itself.
class IXMLDOMNode {
 public:
  /// Makes Nothing.
  IXMLDOMNode() = default;
  /// Returns false for Nothing.
  explicit operator bool() const { return static_cast<bool>(node_); }
  /// Returns true if both refer to the same node, or if both are Nothing.
  bool operator==(const IXMLDOMNode& other) const { return node_ == other.node_; }

  /// The text of a text node. It is empty for an element.
  std::string nodeValue() const;
  /// The first child of any kind, or Nothing if there are no children.
  IXMLDOMNode firstChild() const;
  /// The node and its descendants as XML.
  std::string xml() const;

  /// Find elements by a path of child names ("values/column"), or anywhere in the document by "//name".
  /// "axes[1]/axis" are the children of the first `axes` only. The order is document order. selectSingleNode
  /// returns the first element, or Nothing.
  ///@{
  IXMLDOMElement selectSingleNode(const char* query) const;
  IXMLDOMNodeList selectNodes(const char* query) const;
  ///@}

  /// Moves `child` to the end of this node's children. `child` may come from another document. Raises error 5
  /// if it can't be a child, for example because it is an ancestor of this node. After a move from another
  /// document, `child` is the only valid handle; other handles to it or to its descendants must not be used.
  ///@{
  void appendChild(IXMLDOMNode& child);
  void appendChild(IXMLDOMNode&& child) { appendChild(child); }
  ///@}

  /// Removes a child from the tree. `child` stays a node of the document. Raises error 5 if it isn't a child
  /// of this node.
  void removeChild(IXMLDOMNode& child);

 protected:
  struct Tree;
  /// Makes a handle to a node of a tree.
  IXMLDOMNode(std::shared_ptr<Tree> tree, pugi::xml_node node) : tree_(std::move(tree)), node_(node) {}
  /// Returns the node. Raises error 91 for Nothing.
  pugi::xml_node Checked() const;

  std::shared_ptr<Tree> tree_;  ///< The tree, shared by all handles to its nodes.
  pugi::xml_node node_;         ///< The node, or null for Nothing.

  friend class IXMLDOMDocument2;
};

/// An element with its attributes.
class IXMLDOMElement : public IXMLDOMNode {
 public:
  using IXMLDOMNode::IXMLDOMNode;

  /// The name of the element, including its prefix.
  std::string tagName() const { return Checked().name(); }
  /// The child elements, in document order.
  IXMLDOMNodeList childElements() const;

  /// Adds or changes an attribute. The value is converted with CStr; characters that XML can't contain are
  /// left out.
  void setAttribute(const char* name, const runtime::Variant& value);
  /// The value of an attribute as a string, or Null if it doesn't exist.
  runtime::Variant getAttribute(const char* name) const;
  /// The attributes in document order.
  std::vector<IXMLDOMAttribute> attributes() const;

 private:
  friend class IXMLDOMNode;
  friend class IXMLDOMDocument2;
};

/// A document. The parser doesn't validate and doesn't load external resources. White space is kept, and line
/// ends become line feeds, as XML requires.
class IXMLDOMDocument2 : public IXMLDOMNode {
 public:
  /// Makes Nothing. See Create.
  IXMLDOMDocument2() = default;
  /// Makes a new document without a root element.
  static IXMLDOMDocument2 Create();

  /// Replaces the contents of the document. Handles to the old contents become invalid. Returns false and
  /// leaves the document empty if `xml` isn't well-formed or nests too deeply for any definition.
  bool loadXML(std::string_view xml);
  /// The error of the last loadXML.
  const IXMLDOMParseError& parseError() const;
  /// The root element, or Nothing if the document is empty.
  IXMLDOMElement documentElement() const;

  /// Create a node of this document. The node is outside the tree until it is appended. Characters that XML
  /// can't contain are left out of a text node.
  ///@{
  IXMLDOMElement createElement(const char* name) const;
  IXMLDOMNode createTextNode(std::string_view text) const;
  ///@}

 private:
  using IXMLDOMNode::IXMLDOMNode;
};

}  // namespace plotsmith::dom
