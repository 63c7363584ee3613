#pragma once

#include <functional>
#include <memory>
#include <pugixml.hpp>
#include <string>

#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

/// A chart element with shape properties. Each use looks it up again, because the element may be replaced,
/// and its `spPr` added and removed, between two uses.
struct FormattedElement {
  std::shared_ptr<ChartPart> part;       ///< the chart part of the element
  std::function<pugi::xml_node()> find;  ///< looks the element up; a null node if it is missing
  std::function<std::string()> path;     ///< the object's path in the journal

  /// The shape properties; a null node if there are none.
  pugi::xml_node FindProperties() const { return xml::Child(find(), "spPr"); }
  /// The shape properties, which are made if they are missing.
  pugi::xml_node Properties() const { return schema::Ensure(find(), "spPr"); }
  /// The journal of the host's calls.
  const Journal& Log() const { return part->Book().Journal(); }
};

}  // namespace plotsmith::xlsx
