#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>
#include <functional>

#include "qt/wizard/PreviewRun.h"

namespace plotsmith::qt {

/// The window with the preview beside a page. It never gets the focus. After the user has closed it, it stays
/// closed until Reopen.
class PreviewWindow final : public QWidget {
 public:
  /// Makes a window that stays in front of `owner`.
  explicit PreviewWindow(QWidget* owner);

  /// Shows the window beside a page, on the side with enough space. It is hidden if neither side has enough.
  void ShowBeside(const QWidget& page);
  /// Allows the window to be shown again after the user has closed it.
  void Reopen() { closed_ = false; }
  /// Returns true if the user has closed the window.
  bool WasClosed() const { return closed_; }

  /// The available size for the picture in screen pixels.
  QSize Room() const;
  /// Shows a preview. If it has no picture, the last picture stays and is dimmed.
  void Show(Preview preview);
  /// Removes the picture and the message.
  void Clear();
  /// The preview in the window.
  const Preview& Shown() const { return shown_; }

  /// Called when the available size has changed.
  std::function<void()> Resized = [] {};

 protected:
  /// Paint the preview, report a new size, and record that the user closed the window.
  ///@{
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  ///@}

 private:
  /// Moves the window to the side of the page with more space. Returns false if there isn't enough.
  bool PlaceBeside(const QRect& page, const QRect& screen);
  int MessageHeight(const QString& message) const;

  Preview shown_;
  bool outdated_ = false;  ///< Whether the picture shows an earlier state of the page.
  bool closed_ = false;
  bool placed_ = false;
};

}  // namespace plotsmith::qt
