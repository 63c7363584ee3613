#include "qt/wizard/WizardWindow.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>
#include <utility>

#include "qt/book/BookView.h"
#include "qt/wizard/EventLoop.h"
#include "qt/wizard/PressAfterShow.h"

namespace plotsmith::qt {
namespace {

constexpr QSize kFirstSize(1120, 700);

}  // namespace

WizardWindow::WizardWindow(std::shared_ptr<xlsx::Application> host, const QString& name)
    : book_(new qtbook::BookView(std::move(host), this)),
      bar_(new QWidget(this)),
      text_(new QLabel(bar_)),
      row_(new QHBoxLayout(bar_)) {
  setObjectName(QStringLiteral("WizardWindow"));
  SetBookName(name);
  bar_->setObjectName(QStringLiteral("bar"));
  bar_->setAutoFillBackground(true);
  bar_->setBackgroundRole(QPalette::ToolTipBase);
  bar_->hide();
  text_->setObjectName(QStringLiteral("lblOutcome"));
  text_->setTextFormat(Qt::PlainText);
  text_->setForegroundRole(QPalette::ToolTipText);
  text_->setWordWrap(true);
  row_->addWidget(text_, 1);

  auto* const whole = new QWidget(this);
  auto* const column = new QVBoxLayout(whole);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(book_, 1);
  setCentralWidget(whole);
  auto* const help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this, [this] { HelpAsked(); });
  resize(kFirstSize);
}

void WizardWindow::SetBookName(const QString& name) { setWindowTitle(name + QStringLiteral(" - Plotsmith")); }

void WizardWindow::ShowBar(const QString& text, const QStringList& buttons) {
  for (QPushButton* old : bar_->findChildren<QPushButton*>()) delete old;
  text_->setText(text);
  for (int i = 0; i < buttons.size(); ++i) {
    auto* const button = new QPushButton(buttons[i], bar_);
    button->setObjectName(QStringLiteral("btn%1").arg(i));
    button->setAutoDefault(true);  // Enter presses the button with the focus.
    connect(button, &QPushButton::clicked, this, [this, i] {
      answer_ = i;
      answered_ = true;
    });
    row_->addWidget(button);
    if (i == 0) {
      button->setDefault(true);
      button->setFocus();
    }
  }
  bar_->show();
  delete std::exchange(pressAfterShow_, new PressAfterShow(*bar_));
}

int WizardWindow::Ask(const QString& text, const QStringList& buttons) {
  answered_ = false;
  answer_ = kClosed;
  ShowBar(text, buttons);
  activateWindow();
  asks_ = true;
  ProcessEventsUntil([this] { return answered_; });
  asks_ = false;
  bar_->hide();
  return answer_;
}

void WizardWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (asks_) {
    answered_ = true;
  } else {
    CloseAsked();
  }
}

}  // namespace plotsmith::qt
