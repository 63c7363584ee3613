#pragma once

#include <QtCore/QRectF>

#include "pages/pictures/Picture.h"

class QPainter;

namespace plotsmith::qt {

/// Paints a picture as large as the area allows, in its middle, in its own proportions.
void PaintPicture(QPainter& painter, const pictures::Picture& picture, const QRectF& area);

}  // namespace plotsmith::qt
