#include "qt/wizard/ChartPicture.h"

#include <algorithm>
#include <cstring>
#include <iostream>
#include <stdexcept>

#include "cli/Command.h"
#include "cli/render/LoadPainter.h"
#include "render/chart/ChartDrawing.h"
#include "runtime/RuntimeError.h"
#include "xlsx/Workbook.h"
#include "xlsx/chart/objects/Chart.h"
#include "xlsx/chart/part/ChartPart.h"

namespace plotsmith::qt {
namespace {

/// Returns the painter, or null if it isn't installed.
const render::Painter* FindPainter() {
  static const render::Painter* const painter = []() -> const render::Painter* {
    try {
      return &cli::LoadPainter();
    } catch (const cli::CommandError& e) {
      std::cerr << "plotsmith-wizard: " << e.what() << '\n';
      return nullptr;
    }
  }();
  return painter;
}

QImage ImageOf(const render::Raster& pixels) {
  QImage image(pixels.width, pixels.height, QImage::Format_RGB32);
  const auto width = static_cast<std::size_t>(pixels.width);
  for (int row = 0; row < pixels.height; ++row) {
    std::memcpy(image.scanLine(row), pixels.values.data() + static_cast<std::size_t>(row) * width,
                width * sizeof(std::uint32_t));
  }
  return image;
}

/// Returns the embedded host's chart, or null for a chart of another host.
const xlsx::Chart* HeldChart(const excel::Ref<excel::Chart>& chart) {
  return dynamic_cast<const xlsx::Chart*>(chart.shared().get());
}

}  // namespace

std::optional<QImage> PictureOf(const excel::Ref<excel::Chart>& chart, const QSize& pixels) {
  const render::Painter* const painter = FindPainter();
  const xlsx::Chart* const held = HeldChart(chart);
  if (painter == nullptr || held == nullptr || pixels.isEmpty()) return std::nullopt;
  try {
    return held->Part().Book().Viewed([&] {
      const double width = held->Size().width, scale = pixels.width() / width;
      render::Notes ignored;  // The window can't show what isn't drawn.
      return ImageOf(painter->Rasterize(
          render::DrawChart(held->Part(), width, pixels.height() / scale, painter->Measure(), ignored),
          scale));
    });
  } catch (const runtime::RuntimeError&) {
    return std::nullopt;
  } catch (const std::length_error&) {
    return std::nullopt;  // The picture is too large for any screen.
  }
}

QSize FittingSize(const excel::Ref<excel::Chart>& chart, const QSize& room) {
  const xlsx::Chart* const held = HeldChart(chart);
  if (held == nullptr) return {};
  const xlsx::Frame size = held->Size();
  return QSizeF(size.width, size.height).scaled(room, Qt::KeepAspectRatio).toSize();
}

qtbook::ChartPainter MakeChartPainter() {
  return [](QPainter& painter, const excel::Ref<excel::Chart>& chart, const QRectF& area) {
    const double ratio = painter.device()->devicePixelRatioF();
    const auto image = PictureOf(chart, (area.size() * ratio).toSize());
    if (!image) return false;
    painter.drawImage(area, *image);
    return true;
  };
}

}  // namespace plotsmith::qt
