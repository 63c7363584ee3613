#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>
#include <functional>

#include "qt/wizard/PreviewRun.h"

namespace plotsmith::qt {

/// The window that shows a preview beside a page. It takes no focus. Once a person has closed it, it stays
/// closed until Reopen.
class PreviewWindow final : public QWidget {
 public:
  /// Stays in front of `owner`.
  explicit PreviewWindow(QWidget* owner);

  /// Comes up beside a page, on the side that has room for it; stays away where none has.
  void ShowBeside(const QWidget& page);
  void Reopen() { closed_ = false; }
  bool WasClosed() const { return closed_; }

  /// The room for a picture, in pixels of the screen.
  QSize Room() const;
  /// Without a picture in it, the last one stays, dimmed.
  void Show(Preview preview);
  /// Forgets what is shown.
  void Clear();
  const Preview& Shown() const { return shown_; }

  /// The room has changed.
  std::function<void()> Resized = [] {};

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  /// Moves the window to the side of the page with the most room; false if none has enough.
  bool PlaceBeside(const QRect& page, const QRect& screen);
  int MessageHeight(const QString& message) const;

  Preview shown_;
  bool outdated_ = false;  ///< the picture is of an earlier state of the page
  bool closed_ = false;
  bool placed_ = false;
};

}  // namespace plotsmith::qt
