#pragma once

#include <QtCore/QCache>
#include <QtCore/QRectF>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmap>
#include <functional>
#include <map>

#include "host/excel/Chart.h"
#include "qt/book/SheetSource.h"

namespace plotsmith::qtbook {

/// Draws a chart into an area, in pixels of the painter. Returns false and draws nothing if it can't.
using ChartPainter = std::function<bool(QPainter&, const excel::Ref<excel::Chart>&, const QRectF&)>;

/// The texts in the frame of a chart without a picture.
struct ChartCaption {
  QString title;  ///< The chart's title, or the name of its shape.
  QString type;   ///< The type in words, such as "Stacked bar chart".

  bool operator==(const ChartCaption&) const = default;
};
/// Returns the texts of a chart. A chart that can't be read has the name of its shape and no type.
ChartCaption CaptionOf(const ShownFrame& frame);

/// Paints the shapes on a sheet: charts as pictures or as frames with their titles, and all others as
/// outlines. A picture is drawn when it first becomes visible, and kept until it changes or the cache is
/// full.
class FramePainter {
 public:
  FramePainter();
  /// Sets the function that draws charts. Without it, a chart is shown as a frame with title and type.
  void SetChartPainter(ChartPainter painter);
  /// Discards the pictures, because the charts may have changed.
  void DiscardPictures();
  /// Paints a frame. `index` is its index on the sheet, and `area` is its position in the window, in pixels.
  void Paint(QPainter& painter, std::size_t index, const ShownFrame& frame, const QRect& area,
             const QPalette& palette, const QFont& font);

 private:
  struct Picture {
    QPixmap pixmap;  ///< The picture; null if the chart can't be drawn.
    QSize size;      ///< The size for which it was drawn, in screen pixels.
  };
  QPixmap PictureOf(std::size_t index, const ShownFrame& frame, const QSize& size, double ratio);
  QPixmap DrawPicture(const ShownFrame& frame, const QSize& size, double ratio) const;
  const ChartCaption& KeptCaption(std::size_t index, const ShownFrame& frame);

  ChartPainter chartPainter_;
  QCache<std::size_t, Picture> pictures_;  ///< The pictures; the unit of cost is KiB.
  std::map<std::size_t, ChartCaption> captions_;
};

}  // namespace plotsmith::qtbook
