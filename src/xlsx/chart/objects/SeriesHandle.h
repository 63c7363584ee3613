#pragma once

#include <memory>
#include <pugixml.hpp>
#include <string>

#include "xlsx/base/Journal.h"
#include "xlsx/chart/part/ChartPart.h"

namespace plotsmith::xlsx {

/// A series of a chart, which may be deleted while an object still refers to it.
struct SeriesHandle {
  std::shared_ptr<ChartPart> part;  ///< The chart part of the series.
  SeriesRef entry;                  ///< The entry, whose node is null after the series was deleted.

  /// The series element; raises error 1004 if the series was deleted.
  pugi::xml_node Node() const;
  /// The path of the series in the journal.
  std::string Path() const;
  /// The journal of the host's calls.
  const Journal& Log() const;
};

}  // namespace plotsmith::xlsx
