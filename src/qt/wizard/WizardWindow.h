#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QMainWindow>
#include <functional>
#include <memory>

#include "xlsx/Application.h"

class QHBoxLayout;
class QLabel;

namespace plotsmith::qtbook {
class BookView;
}

namespace plotsmith::qt {

class SecondPress;

/// The window behind the pages: the workbook, and above it, once a run is over, a line that says what came of
/// it and asks what is to be done.
class WizardWindow final : public QMainWindow {
 public:
  /// `name` is that of the workbook's file.
  WizardWindow(std::shared_ptr<xlsx::Application> host, const QString& name);

  /// The name of the workbook's file, which the title shows.
  void SetBookName(const QString& name);
  qtbook::BookView& Book() { return *book_; }
  /// What Ask answers where the window was closed instead.
  static constexpr int kClosed = -1;
  /// Shows a line with buttons, and waits until one is pressed: its place in `buttons`, from 0. The first one
  /// is the default. The buttons are named btn0, btn1 and so on.
  int Ask(const QString& text, const QStringList& buttons);

  /// The window is to be closed while a page is open.
  std::function<void()> CloseAsked = [] {};
  /// F1 in this window.
  std::function<void()> HelpAsked = [] {};

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void ShowBar(const QString& text, const QStringList& buttons);

  qtbook::BookView* book_;
  QWidget* bar_;
  QLabel* text_;
  QHBoxLayout* row_;
  SecondPress* secondPress_ = nullptr;
  bool asks_ = false;
  int answer_ = kClosed;
  bool answered_ = false;
};

}  // namespace plotsmith::qt
