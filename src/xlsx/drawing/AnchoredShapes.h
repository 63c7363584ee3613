#pragma once

#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Strings.h"
#include "xlsx/drawing/DrawnShape.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

/// The common base of the drawings of sheets and charts: a document of anchors, with one shape each. `Shape`
/// is the drawing's class of shapes, derived from DrawnShape.
template <class Shape>
class AnchoredShapes {
 public:
  virtual ~AnchoredShapes() = default;

  /// The shapes from back to front. A group is one shape.
  const std::vector<std::shared_ptr<Shape>>& Shapes() const { return shapes_; }
  /// The shape with a name, ignoring case; null if there is none.
  std::shared_ptr<Shape> FindShape(std::string_view name) const {
    for (const auto& shape : shapes_) {
      if (runtime::EqualsIgnoreCase(shape->NameText(), name)) return shape;
    }
    return nullptr;
  }
  /// Removes a shape and its anchor from the drawing, and the relationships that no other shape uses.
  void Remove(DrawnShape& shape) {
    pugi::xml_node anchor = shape.Anchor();
    const std::set<std::string> unused = ReleaseIds(anchor);
    std::erase_if(shapes_, [&](const auto& other) { return other.get() == &shape; });
    anchor.parent().remove_child(anchor);
    shape.Leave();
    changed_ = true;
    if (!part_.empty() && !unused.empty()) RemoveRelationships(unused);
  }

  /// Notes that the drawing must be written. This must be called after each change of the document except
  /// Remove.
  void MarkChanged() {
    changed_ = true;
    usedIds_.reset();
  }
  /// Returns true if the drawing was changed.
  bool Changed() const { return changed_; }

 protected:
  /// Returns an unused name: the stem and the first free number from `number` on.
  std::string FreeName(std::string_view stem, std::size_t number) const {
    std::set<std::string> taken;
    for (const auto& shape : shapes_) taken.insert(runtime::UCase(shape->NameText()));
    for (;; ++number) {
      std::string name = std::string(stem) + " " + std::to_string(number);
      if (!taken.contains(runtime::UCase(name))) return name;
    }
  }

  /// Removes relationships of the drawing's part from the package.
  virtual void RemoveRelationships(const std::set<std::string>& ids) = 0;

  std::string part_;                            ///< The name of the part; empty if there is none yet.
  pugi::xml_document document_;                 ///< The contents of the part.
  std::vector<std::shared_ptr<Shape>> shapes_;  ///< The shapes from back to front.
  bool changed_ = false;                        ///< Whether the part must be written.

 private:
  /// Returns the relationships that only this anchor uses, and counts it no longer.
  std::set<std::string> ReleaseIds(pugi::xml_node anchor) {
    if (!usedIds_) usedIds_ = xml::RelationshipIdsIn(xml::Root(document_));
    const std::multiset<std::string> ids = xml::RelationshipIdsIn(anchor);
    for (const std::string& id : ids) usedIds_->extract(id);
    std::set<std::string> unused(ids.begin(), ids.end());
    std::erase_if(unused, [this](const std::string& id) { return usedIds_->contains(id); });
    return unused;
  }

  /// The ids that the document uses, once for each use. They are collected at the first removal and kept,
  /// because collecting them for each of many shapes would take quadratic time.
  std::optional<std::multiset<std::string>> usedIds_;
};

}  // namespace plotsmith::xlsx
