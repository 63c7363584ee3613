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

/// An element of the chart that has shape properties, found anew at each use: it may be replaced, and `spPr`
/// may come and go. `path` names the object for the journal.
struct FormattedElement {
  std::shared_ptr<ChartPart> part;
  std::function<pugi::xml_node()> find;
  std::function<std::string()> path;

  /// Null where there are none.
  pugi::xml_node FindProperties() const { return xml::Child(find(), "spPr"); }
  pugi::xml_node Properties() const { return schema::Ensure(find(), "spPr"); }
  const Journal& Log() const { return part->Book().Journal(); }
};

}  // namespace plotsmith::xlsx
