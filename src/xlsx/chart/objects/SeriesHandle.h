#pragma once

#include <memory>
#include <pugixml.hpp>
#include <string>

#include "xlsx/base/Journal.h"
#include "xlsx/chart/part/ChartPart.h"

namespace plotsmith::xlsx {

/// A series of a chart, which the chart may lose while somebody still holds it.
struct SeriesHandle {
  std::shared_ptr<ChartPart> part;
  SeriesRef entry;

  /// Error 1004 when it is gone.
  pugi::xml_node Node() const;
  /// Its name in the journal.
  std::string Path() const;
  const Journal& Log() const;
};

}  // namespace plotsmith::xlsx
