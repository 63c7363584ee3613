#include "tests/qt/support/Windows.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>

#include "qt/Texts.h"
#include "qt/wizard/WizardWindow.h"

namespace plotsmith::test {
namespace {

template <class Kind>
Kind* FindShown() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* found = dynamic_cast<Kind*>(widget); found != nullptr && found->isVisible()) return found;
  }
  return nullptr;
}

QWidget* BarOf(const QWidget& window) { return window.findChild<QWidget*>("bar"); }

}  // namespace

QWidget* FrontWindow() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* page = FindShown<qt::FormWindow>()) return page;
  QWidget* const book = BookWindow();
  return book != nullptr && BarOf(*book)->isVisible() ? book : nullptr;
}

std::string NameOf(const QWidget* window) {
  if (window == nullptr) return "";
  if (qobject_cast<const QFileDialog*>(window) != nullptr) return "file";
  if (qobject_cast<const QMessageBox*>(window) != nullptr) return "box";
  return dynamic_cast<const qt::WizardWindow*>(window) != nullptr ? "bar" : qt::TextOf(window->objectName());
}

qt::FormWindow* FrontPage() { return dynamic_cast<qt::FormWindow*>(FrontWindow()); }

QWidget* BookWindow() { return FindShown<qt::WizardWindow>(); }

std::string TextIn(const QWidget& window) {
  if (const auto* box = qobject_cast<const QMessageBox*>(&window)) return qt::TextOf(box->text());
  const auto* text = window.findChild<QLabel*>("lblOutcome");
  return text == nullptr ? "" : qt::TextOf(text->text());
}

}  // namespace plotsmith::test
