#include "qt/wizard/WizardDesktop.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QApplication>
#include <utility>

#include "common/App.h"
#include "forms/TextBox.h"
#include "qt/Texts.h"
#include "qt/help/HelpWindow.h"
#include "qt/wizard/MessageBox.h"

namespace plotsmith::qt {

namespace {

constexpr qint64 kYieldInterval = 30;  // milliseconds

}  // namespace

WizardDesktop::WizardDesktop(std::shared_ptr<QtView> pages) : pages_(std::move(pages)) {}
WizardDesktop::~WizardDesktop() = default;

QWidget* WizardDesktop::Owner() const {
  QWidget* const page = pages_->Front();
  return page != nullptr && page->isVisible() ? page : owner_;
}

std::int32_t WizardDesktop::MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                                   std::string_view title) {
  const bool isQuestion = buttons == desktop::Buttons::kOkCancel;
  const auto answer = ShowMessageBox(
      Owner(), icon == desktop::Icon::kCritical ? QMessageBox::Critical : QMessageBox::NoIcon,
      TextOf(forms::WithLineEnds(text, "\n")),
      isQuestion ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::StandardButtons(QMessageBox::Ok),
      QMessageBox::Ok, title);
  const bool isOk = answer == QMessageBox::Ok;
  if (isQuestion && isOk) Confirm();
  return isOk || !isQuestion ? desktop::kOk : desktop::kCancel;
}

double WizardDesktop::Timer() {
  // A tick of the busy window also requests the time.
  if (!yields_ && (!sinceYield_.isValid() || sinceYield_.hasExpired(kYieldInterval))) {
    const QScopedValueRollback<bool> yields(yields_, true);
    App.Forms->DoEvents();
    sinceYield_.start();
  }
  return ConsoleDesktop::Timer();
}

HelpWindow& WizardDesktop::Help() {
  if (help_ == nullptr) help_ = std::make_unique<HelpWindow>();
  return *help_;
}

void WizardDesktop::ShowHelp(std::intptr_t, const std::string&, std::int32_t topic) {
  Help().ShowTopic(topic);
}

void WizardDesktop::SetMousePointer(std::int32_t pointer) {
  const bool isWaiting = QApplication::overrideCursor() != nullptr;
  if (pointer == desktop::kPointerHourglass && !isWaiting) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (pointer == desktop::kPointerDefault && isWaiting) QApplication::restoreOverrideCursor();
}

}  // namespace plotsmith::qt
