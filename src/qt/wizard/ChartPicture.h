#pragma once

#include <QtGui/QImage>
#include <optional>

#include "host/excel/Chart.h"
#include "qt/book/FramePainter.h"

namespace plotsmith::qt {

/// Draws charts as `plotsmith render` does. Where the part of Plotsmith that draws isn't installed, charts
/// stay frames, and stderr says why, once.
qtbook::ChartPainter MakeChartPainter();

/// A chart of the embedded host as a picture of exactly so many pixels of the screen; its texts and lines are
/// as large as the width tells. Absent for a chart that can't be read, and where nothing can be drawn.
std::optional<QImage> PictureOf(const excel::Ref<excel::Chart>& chart, const QSize& pixels);

/// The largest size with a chart's proportions that has room in `room`; empty where there is no such chart.
QSize FittingSize(const excel::Ref<excel::Chart>& chart, const QSize& room);

}  // namespace plotsmith::qt
