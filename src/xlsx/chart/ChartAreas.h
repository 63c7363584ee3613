#pragma once

#include <memory>

#include "host/excel/ChartArea.h"
#include "host/excel/PlotArea.h"

namespace plotsmith::xlsx {

class ChartPart;
class SheetShape;

/// `frame` is the shape that frames the chart on a sheet.
excel::Ref<excel::ChartArea> MakeChartArea(std::shared_ptr<ChartPart> part, std::weak_ptr<SheetShape> frame);
excel::Ref<excel::PlotArea> MakePlotArea(std::shared_ptr<ChartPart> part, std::weak_ptr<SheetShape> frame);

}  // namespace plotsmith::xlsx
