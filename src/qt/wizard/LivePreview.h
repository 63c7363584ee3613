#pragma once

#include <QtCore/QTimer>
#include <memory>
#include <string>

#include "qt/forms/QtView.h"
#include "qt/wizard/PreviewWindow.h"
#include "qt/wizard/PreviewWorker.h"
#include "xlsx/Application.h"

namespace plotsmith::qt {

/// Shows, beside each layout page, the chart that Finish would build of it from the real data. Each change on
/// the page begins a new preview, and ends the one that is being made.
class LivePreview {
 public:
  /// `owner` is the window that the preview stays in front of.
  LivePreview(QtView& pages, std::shared_ptr<xlsx::Application> host, QWidget* owner);

  /// To be called when the pages may have changed.
  void Look();
  /// A new run begins: a window that was closed comes back.
  void Restart();
  const PreviewWindow& Window() const { return window_; }

 private:
  void LookLater();
  void Begin();
  LayoutPage* Page() const;

  QtView& pages_;
  std::shared_ptr<xlsx::Application> host_;
  PreviewWindow window_;
  PreviewWorker worker_;
  QTimer pause_;      ///< hands that are in the middle of something don't want each step of it
  std::string seen_;  ///< what the page had when it was last looked at
};

}  // namespace plotsmith::qt
