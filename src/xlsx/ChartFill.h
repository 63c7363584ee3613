#pragma once

#include <memory>

#include "host/excel/ChartArea.h"
#include "host/excel/PlotArea.h"

namespace plotsmith::xlsx {

class ChartPart;

excel::Ref<excel::ChartArea> MakeChartArea(std::shared_ptr<ChartPart> part);
excel::Ref<excel::PlotArea> MakePlotArea(std::shared_ptr<ChartPart> part);

}  // namespace plotsmith::xlsx
