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

/// Draws a chart into an area, in pixels of the painter. Returns false if it can't, with nothing drawn.
using ChartPainter = std::function<bool(QPainter&, const excel::Ref<excel::Chart>&, const QRectF&)>;

/// The texts in the frame of a chart while there is no picture of it.
struct ChartCaption {
  QString title;  ///< the chart's, or the name of its shape
  QString type;   ///< in words, such as "Stacked bar chart"

  bool operator==(const ChartCaption&) const = default;
};
/// A chart that can't be read has its shape's name and no type.
ChartCaption CaptionOf(const ShownFrame& frame);

/// Paints what is drawn on a sheet: charts as pictures, or as frames with their titles, and all else as
/// outlines. Pictures are drawn when they first come into the window, and kept until they change or there are
/// too many of them.
class FramePainter {
 public:
  FramePainter();
  void SetChartPainter(ChartPainter painter);
  /// The charts may look different from now on.
  void LookAgain();
  /// `index` is the frame's among those of its sheet, `area` where it lies in the window, in pixels.
  void Paint(QPainter& painter, std::size_t index, const ShownFrame& frame, const QRect& area,
             const QPalette& palette, const QFont& font);

 private:
  struct Picture {
    QPixmap pixmap;  ///< null if the chart can't be drawn
    QSize size;      ///< for which it was drawn, in pixels of the screen
  };
  QPixmap PictureOf(std::size_t index, const ShownFrame& frame, const QSize& size, double ratio);
  QPixmap DrawPicture(const ShownFrame& frame, const QSize& size, double ratio) const;
  const ChartCaption& KeptCaption(std::size_t index, const ShownFrame& frame);

  ChartPainter chartPainter_;
  QCache<std::size_t, Picture> pictures_;  ///< what one costs is KiB
  std::map<std::size_t, ChartCaption> captions_;
};

}  // namespace plotsmith::qtbook
