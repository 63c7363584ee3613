#pragma once

#include <QtGui/QImage>
#include <optional>

#include "host/excel/Chart.h"
#include "qt/book/FramePainter.h"

namespace plotsmith::qt {

/// Returns a function that draws charts like `plotsmith render`. If the render module isn't installed, charts
/// are shown as frames, and the reason is printed once on stderr.
qtbook::ChartPainter MakeChartPainter();

/// Returns the picture of a chart with a size of exactly `pixels` screen pixels. Texts and lines are scaled
/// with the width. Returns nothing if the chart can't be read or drawn.
std::optional<QImage> PictureOf(const excel::Ref<excel::Chart>& chart, const QSize& pixels);

/// Returns the largest size with the chart's proportions that fits into `room`, or an empty size if there is
/// no chart.
QSize FittingSize(const excel::Ref<excel::Chart>& chart, const QSize& room);

}  // namespace plotsmith::qt
