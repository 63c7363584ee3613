#pragma once

#include <memory>

#include "host/excel/SeriesCollection.h"

/// The series of a chart, for the port.
namespace plotsmith::xlsx {

class ChartPart;

/// All of them in plot order; none of a chart that can't be read.
excel::Ref<excel::SeriesCollection> MakeSeriesCollection(std::shared_ptr<ChartPart> part);

}  // namespace plotsmith::xlsx
