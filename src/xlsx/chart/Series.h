#pragma once

#include <memory>

#include "host/excel/SeriesCollection.h"

namespace plotsmith::xlsx {

class ChartPart;

excel::Ref<excel::SeriesCollection> MakeSeriesCollection(std::shared_ptr<ChartPart> part);

}  // namespace plotsmith::xlsx
