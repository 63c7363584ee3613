#include "dom/XmlDepth.h"

namespace plotsmith::dom {

bool NestsDeeperThan(const pugi::xml_document& document, int limit) {
  struct Walker : pugi::xml_tree_walker {
    explicit Walker(int most) : limit(most) {}
    bool for_each(pugi::xml_node& node) override {
      return node.type() != pugi::node_element || depth() < limit;
    }
    int limit;
  } walker(limit);
  return !const_cast<pugi::xml_document&>(document).traverse(walker);
}

}  // namespace plotsmith::dom
