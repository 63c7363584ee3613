#include "qt/forms/PicturePainter.h"

#include <QtGui/QPainter>
#include <QtGui/QPolygonF>
#include <algorithm>

namespace plotsmith::qt {
namespace {

QColor ColorOf(pictures::Rgb color) { return {color.red, color.green, color.blue}; }

QPointF PointOf(pictures::Point point) { return {point.x, point.y}; }

void PaintForm(QPainter& painter, const pictures::Polygon& polygon) {
  QPolygonF points;
  for (const pictures::Point& point : polygon.aPoints) points << PointOf(point);
  painter.drawPolygon(points);
}

void PaintForm(QPainter& painter, const pictures::Ellipse& ellipse) {
  painter.drawEllipse(PointOf(ellipse.oCenter), ellipse.dRadiusX, ellipse.dRadiusY);
}

}  // namespace

void PaintPicture(QPainter& painter, const pictures::Picture& picture, const QRectF& area) {
  const double scale = std::min(area.width() / picture.dWidth, area.height() / picture.dHeight);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.center());
  painter.scale(scale, scale);
  painter.translate(-picture.dWidth / 2, -picture.dHeight / 2);
  for (const pictures::Shape& shape : picture.aShapes) {
    painter.setBrush(ColorOf(shape.oFill));
    painter.setPen(shape.oOutline ? QPen(ColorOf(shape.oOutline->oColor), shape.oOutline->dWidth)
                                  : QPen(Qt::NoPen));
    std::visit([&](const auto& form) { PaintForm(painter, form); }, shape.oForm);
  }
  painter.restore();
}

}  // namespace plotsmith::qt
