#include "xlsx/chart/objects/SeriesHandle.h"

#include <algorithm>

#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"

namespace plotsmith::xlsx {

pugi::xml_node SeriesHandle::Node() const {
  if (!entry->node) throw Refusal("Method of object 'Series' failed");
  return entry->node;
}

std::string SeriesHandle::Path() const {
  const auto& all = part->Series();
  const auto at = std::find(all.begin(), all.end(), entry);
  return "Chart.SeriesCollection(" + std::to_string(at - all.begin() + 1) + ")";
}

const Journal& SeriesHandle::Log() const { return part->Book().Journal(); }

}  // namespace plotsmith::xlsx
