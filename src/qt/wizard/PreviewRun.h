#pragma once

#include <QtCore/QSize>
#include <QtGui/QImage>
#include <memory>
#include <string>

#include "pages/LayoutPage.h"
#include "xlsx/Application.h"

namespace plotsmith::qt {

/// The preview of a chart.
struct Preview {
  QImage picture;       ///< The picture; null if no chart can be built.
  std::string message;  ///< The messages of the page or of the build; may be empty.
};

/// Presses the page's Finish button and draws the resulting chart, as large as `room` allows. This changes
/// the workbook, the system and the forms of this process, so that they can't be used any more. Call it only
/// in a process that ends afterwards.
Preview RunPreview(LayoutPage& page, const std::shared_ptr<xlsx::Application>& host, const QSize& room);

}  // namespace plotsmith::qt
