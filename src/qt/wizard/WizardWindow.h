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

class PressAfterShow;

/// The window behind the pages. It shows the workbook and, after a run, a bar with the result and the next
/// actions.
class WizardWindow final : public QMainWindow {
 public:
  /// Makes a window. `name` is the name of the workbook's file.
  WizardWindow(std::shared_ptr<xlsx::Application> host, const QString& name);

  /// Sets the name of the workbook's file, which the title shows.
  void SetBookName(const QString& name);
  /// The view of the workbook.
  qtbook::BookView& Book() { return *book_; }
  /// The result of Ask if the window was closed.
  static constexpr int kClosed = -1;
  /// Shows a bar with buttons and waits until one is pressed. Returns its index in `buttons`, from 0. The
  /// first button is the default. The buttons have the object names btn0, btn1 and so on.
  int Ask(const QString& text, const QStringList& buttons);

  /// Called when the user closes the window while a page is open.
  std::function<void()> CloseAsked = [] {};
  /// Called when the user presses F1 in this window.
  std::function<void()> HelpAsked = [] {};

 protected:
  /// Calls CloseAsked, or ends the question that the bar shows. The window stays open.
  void closeEvent(QCloseEvent* event) override;

 private:
  void ShowBar(const QString& text, const QStringList& buttons);

  qtbook::BookView* book_;
  QWidget* bar_;
  QLabel* text_;
  QHBoxLayout* row_;
  PressAfterShow* pressAfterShow_ = nullptr;
  bool asks_ = false;
  int answer_ = kClosed;
  bool answered_ = false;
};

}  // namespace plotsmith::qt
