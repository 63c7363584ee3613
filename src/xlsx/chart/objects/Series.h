#pragma once

#include <memory>

#include "host/excel/SeriesCollection.h"

/// The series of a chart, for the port.
namespace plotsmith::xlsx {

class ChartPart;

/// All series in plot order. A chart that can't be read has none.
excel::Ref<excel::SeriesCollection> MakeSeriesCollection(std::shared_ptr<ChartPart> part);

}  // namespace plotsmith::xlsx
