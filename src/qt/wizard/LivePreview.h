#pragma once

#include <QtCore/QTimer>
#include <memory>
#include <string>

#include "qt/forms/QtView.h"
#include "qt/wizard/PreviewWindow.h"
#include "qt/wizard/PreviewWorker.h"
#include "xlsx/Application.h"

namespace plotsmith::qt {

/// Shows beside each layout page the chart that Finish would build from the data. Each change on the page
/// cancels the current preview and starts a new one.
class LivePreview {
 public:
  /// Makes a preview. Its window stays in front of `owner`.
  LivePreview(QtView& pages, std::shared_ptr<xlsx::Application> host, QWidget* owner);

  /// Checks for changes. Call this when the pages may have changed.
  void Update();
  /// Begins a new run. A preview window that the user has closed is shown again.
  void Restart();
  /// The window that shows the preview.
  const PreviewWindow& Window() const { return window_; }

 private:
  void StartAgain();
  void Begin();
  LayoutPage* Page() const;

  QtView& pages_;
  std::shared_ptr<xlsx::Application> host_;
  PreviewWindow window_;
  PreviewWorker worker_;
  QTimer pause_;      ///< Delays the preview while the user is still typing.
  std::string seen_;  ///< The state of the page at the last check.
};

}  // namespace plotsmith::qt
