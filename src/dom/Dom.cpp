#include "dom/Dom.h"

#include <memory>
#include <sstream>

#include "dom/XmlCharacters.h"
#include "dom/XmlTree.h"
#include "runtime/RuntimeError.h"

namespace plotsmith::dom {

using runtime::RuntimeError;
using runtime::Variant;

/// The nodes of a document. One pugixml document contains both the tree and the nodes outside the tree,
/// because pugixml moves nodes only within one document.
struct IXMLDOMNode::Tree {
  Tree() : content(document.append_child()), detached(document.append_child()) {}

  pugi::xml_document document;
  pugi::xml_node content;
  pugi::xml_node detached;
  IXMLDOMParseError error;  ///< The error of the last text that was parsed.
};

pugi::xml_node IXMLDOMNode::Checked() const {
  if (!node_) throw RuntimeError(runtime::error::kObjectNotSet);
  return node_;
}

std::string IXMLDOMNode::nodeValue() const { return Checked().value(); }

IXMLDOMNode IXMLDOMNode::firstChild() const { return {tree_, Checked().first_child()}; }

std::string IXMLDOMNode::xml() const {
  std::ostringstream text;
  const pugi::xml_node self = Checked();
  if (self == tree_->content) {
    for (const auto& child : self.children()) child.print(text, "", pugi::format_raw);
  } else {
    self.print(text, "", pugi::format_raw);
  }
  return std::move(text).str();
}

IXMLDOMNodeList IXMLDOMNode::selectNodes(const char* query) const {
  const bool anywhere = query[0] == '/';
  const pugi::xml_node self = Checked();
  const pugi::xml_node context = anywhere ? tree_->content : self;
  const pugi::xpath_node_set found =
      context.select_nodes(anywhere ? ("." + std::string(query)).c_str() : query);
  IXMLDOMNodeList list;
  for (const pugi::xpath_node& match : found) list.push_back(IXMLDOMElement(tree_, match.node()));
  return list;
}

IXMLDOMElement IXMLDOMNode::selectSingleNode(const char* query) const {
  const IXMLDOMNodeList list = selectNodes(query);
  return list.empty() ? IXMLDOMElement() : list.front();
}

void IXMLDOMNode::appendChild(IXMLDOMNode& child) {
  const pugi::xml_node parent = Checked(), moved = child.Checked();
  if (child.tree_ == tree_) {
    if (!pugi::xml_node(parent).append_move(moved)) throw RuntimeError(runtime::error::kInvalidCall);
    return;
  }
  const pugi::xml_node copy = pugi::xml_node(parent).append_copy(moved);
  if (!copy) throw RuntimeError(runtime::error::kInvalidCall);
  moved.parent().remove_child(moved);
  child.tree_ = tree_;
  child.node_ = copy;
}

void IXMLDOMNode::removeChild(IXMLDOMNode& child) {
  if (child.Checked().parent() != Checked()) throw RuntimeError(runtime::error::kInvalidCall);
  tree_->detached.append_move(child.node_);
}

IXMLDOMNodeList IXMLDOMElement::childElements() const {
  IXMLDOMNodeList list;
  for (const auto& child : Checked().children()) {
    if (child.type() == pugi::node_element) list.push_back(IXMLDOMElement(tree_, child));
  }
  return list;
}

void IXMLDOMElement::setAttribute(const char* name, const Variant& value) {
  pugi::xml_node element = Checked();
  pugi::xml_attribute attribute = element.attribute(name);
  if (!attribute) attribute = element.append_attribute(name);
  attribute.set_value(XmlCharactersOf(runtime::CStr(value)).c_str());
}

Variant IXMLDOMElement::getAttribute(const char* name) const {
  const pugi::xml_attribute attribute = Checked().attribute(name);
  return attribute ? Variant(attribute.value()) : runtime::kNull;
}

std::vector<IXMLDOMAttribute> IXMLDOMElement::attributes() const {
  std::vector<IXMLDOMAttribute> list;
  for (const auto& attribute : Checked().attributes()) list.push_back({attribute.name(), attribute.value()});
  return list;
}

IXMLDOMDocument2 IXMLDOMDocument2::Create() {
  auto tree = std::make_shared<Tree>();
  const pugi::xml_node content = tree->content;
  return {std::move(tree), content};
}

bool IXMLDOMDocument2::loadXML(std::string_view xml) {
  Checked();
  node_.remove_children();
  tree_->error = AppendXml(node_, xml);
  if (tree_->error.reason.empty()) return true;
  node_.remove_children();
  return false;
}

const IXMLDOMParseError& IXMLDOMDocument2::parseError() const {
  Checked();
  return tree_->error;
}

IXMLDOMElement IXMLDOMDocument2::documentElement() const {
  Checked();
  for (const auto& child : node_.children()) {
    if (child.type() == pugi::node_element) return {tree_, child};
  }
  return {};
}

IXMLDOMElement IXMLDOMDocument2::createElement(const char* name) const {
  Checked();
  return {tree_, tree_->detached.append_child(name)};
}

IXMLDOMNode IXMLDOMDocument2::createTextNode(std::string_view text) const {
  Checked();
  pugi::xml_node node = tree_->detached.append_child(pugi::node_pcdata);
  node.set_value(XmlCharactersOf(text).c_str());
  return {tree_, node};
}

}  // namespace plotsmith::dom
