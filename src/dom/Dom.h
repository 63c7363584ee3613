#pragma once

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Variant.h"

/// The document object model by the member names of MSXML, as far as the system uses it, over pugixml.
///
/// Handles are small values: copies name the same node, a default one is Nothing, and to use a member of
/// Nothing is error 91. A node that isn't in its tree (just created, or removed) stays usable.
namespace plotsmith::dom {

class IXMLDOMElement;

/// An attribute as its element has it.
struct IXMLDOMAttribute {
  std::string name;   ///< with its prefix if it has one
  std::string value;  ///< with its entities resolved
};

/// Why and where a text is no document. Without an error the reason is empty.
struct IXMLDOMParseError {
  std::string reason;        ///< the parser's words, without a full stop
  std::int32_t line = 0;     ///< from 1
  std::int32_t linepos = 0;  ///< the character in that line, from 1
};

/// What a query finds, in document order.
using IXMLDOMNodeList = std::vector<IXMLDOMElement>;

/// A node of a document: an element, a text, or the document itself.
class IXMLDOMNode {
 public:
  /// Nothing.
  IXMLDOMNode() = default;
  /// False for Nothing.
  explicit operator bool() const { return static_cast<bool>(node_); }
  /// Whether both name the same node, or both are Nothing.
  bool operator==(const IXMLDOMNode& other) const { return node_ == other.node_; }

  /// The text of a text node; empty for an element.
  std::string nodeValue() const;
  /// Of any kind; Nothing without children.
  IXMLDOMNode firstChild() const;
  /// The node and all below it as XML.
  std::string xml() const;

  /// Elements by a path of child names ("values/column"), or by "//name" anywhere in the document; in
  /// document order. selectSingleNode gives the first, or Nothing.
  ///@{
  IXMLDOMElement selectSingleNode(const char* query) const;
  IXMLDOMNodeList selectNodes(const char* query) const;
  ///@}

  /// Moves `child`, which may come from another document, to the end of this node's children. Error 5 for
  /// what can't be one, such as a node above this one. Of a node from another document only `child` follows
  /// the move: no other handle to it, or to what is below it, may be used from then on.
  ///@{
  void appendChild(IXMLDOMNode& child);
  void appendChild(IXMLDOMNode&& child) { appendChild(child); }
  ///@}

  /// `child` stays a node of the document, outside of its tree. Error 5 if it isn't a child of this node.
  void removeChild(IXMLDOMNode& child);

 protected:
  struct Tree;
  /// A handle to a node of that tree.
  IXMLDOMNode(std::shared_ptr<Tree> tree, pugi::xml_node node) : tree_(std::move(tree)), node_(node) {}
  /// The node; error 91 for Nothing.
  pugi::xml_node Checked() const;

  std::shared_ptr<Tree> tree_;  ///< kept alive by each handle to a node of it
  pugi::xml_node node_;         ///< null for Nothing

  friend class IXMLDOMDocument2;
};

/// An element, with its attributes.
class IXMLDOMElement : public IXMLDOMNode {
 public:
  using IXMLDOMNode::IXMLDOMNode;

  /// With its prefix if it has one.
  std::string tagName() const { return Checked().name(); }
  /// The child elements, in document order.
  IXMLDOMNodeList childElements() const;

  /// Adds the attribute or changes it, by the value's CStr. Characters that XML can't hold are left out.
  void setAttribute(const char* name, const runtime::Variant& value);
  /// A text; Null where there is no such attribute.
  runtime::Variant getAttribute(const char* name) const;
  /// In the order of the text.
  std::vector<IXMLDOMAttribute> attributes() const;

 private:
  friend class IXMLDOMNode;
  friend class IXMLDOMDocument2;
};

/// A document. Parsing never validates and never reaches outside the text; white space is kept, and line ends
/// become line feeds, as XML wants it.
class IXMLDOMDocument2 : public IXMLDOMNode {
 public:
  /// Nothing; see Create.
  IXMLDOMDocument2() = default;
  /// A new document without a root.
  static IXMLDOMDocument2 Create();

  /// Reads a new content; handles to the old one must not be used any more. False, with the document left
  /// empty, if `xml` isn't well-formed, or nests deeper than any definition would.
  bool loadXML(std::string_view xml);
  /// What was wrong with the text of the last loadXML.
  const IXMLDOMParseError& parseError() const;
  /// The root; Nothing in an empty document.
  IXMLDOMElement documentElement() const;

  /// A node of this document that is in its tree only when it has been appended. Of a text, characters that
  /// XML can't hold are left out.
  ///@{
  IXMLDOMElement createElement(const char* name) const;
  IXMLDOMNode createTextNode(std::string_view text) const;
  ///@}

 private:
  using IXMLDOMNode::IXMLDOMNode;
};

}  // namespace plotsmith::dom
