#pragma once

#include <QtCore/QSize>
#include <QtGui/QImage>
#include <memory>
#include <string>

#include "pages/LayoutPage.h"
#include "xlsx/Application.h"

namespace plotsmith::qt {

/// What a page would make of the chart.
struct Preview {
  QImage picture;       ///< null where no chart comes of it
  std::string message;  ///< what the page, or the build, has to say; empty for nothing
};

/// Presses the page's button Finish and draws the chart that comes of it, with as many pixels as have room in
/// `room`. The workbook, the system and the forms of this process are changed by that, and can't be used any
/// more: it is for a process that ends then.
Preview RunPreview(LayoutPage& page, const std::shared_ptr<xlsx::Application>& host, const QSize& room);

}  // namespace plotsmith::qt
