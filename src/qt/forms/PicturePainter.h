#pragma once

#include <QtCore/QRectF>

#include "pages/pictures/Picture.h"

class QPainter;

namespace plotsmith::qt {

/// Paints a picture in the middle of the area, as large as possible without distortion.
void PaintPicture(QPainter& painter, const pictures::Picture& picture, const QRectF& area);

}  // namespace plotsmith::qt
