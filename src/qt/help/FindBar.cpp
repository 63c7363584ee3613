#include "qt/help/FindBar.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>

namespace plotsmith::qt {

FindBar::FindBar(QTextBrowser& browser, QWidget* parent)
    : QWidget(parent), browser_(browser), text_(new QLineEdit(this)), result_(new QLabel(this)) {
  auto* const label = new QLabel("F&ind:", this);
  label->setBuddy(text_);
  auto* const next = new QPushButton("&Next", this);
  auto* const previous = new QPushButton("&Previous", this);
  auto* const close = new QPushButton("&Close", this);
  text_->setObjectName("findText");
  text_->setAccessibleName("Text to find in this topic");
  result_->setObjectName("findResult");
  auto* const row = new QHBoxLayout(this);
  for (QWidget* const widget : {static_cast<QWidget*>(label), static_cast<QWidget*>(text_),
                                static_cast<QWidget*>(next), static_cast<QWidget*>(previous)}) {
    row->addWidget(widget);
  }
  row->addWidget(result_, 1);
  row->addWidget(close);
  connect(text_, &QLineEdit::textEdited, this, [this] { FindTyped(); });
  connect(next, &QPushButton::clicked, this, [this] { FindNext(); });
  connect(previous, &QPushButton::clicked, this, [this] { FindPrevious(); });
  connect(close, &QPushButton::clicked, this, [this] { Close(); });
  hide();
}

void FindBar::Open() {
  show();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void FindBar::Close() {
  hide();
  result_->clear();
  browser_.setFocus(Qt::OtherFocusReason);
}

void FindBar::FindNext() { Find({}); }

void FindBar::FindPrevious() { Find(QTextDocument::FindBackward); }

void FindBar::FindTyped() {
  QTextCursor cursor = browser_.textCursor();
  cursor.setPosition(cursor.selectionStart());
  browser_.setTextCursor(cursor);
  Find({});
}

void FindBar::Find(QTextDocument::FindFlags flags) {
  result_->clear();
  if (text_->text().isEmpty()) return;
  if (browser_.find(text_->text(), flags)) return;
  const QTextCursor before = browser_.textCursor();
  browser_.moveCursor(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
  if (browser_.find(text_->text(), flags)) return;
  browser_.setTextCursor(before);
  result_->setText("This topic doesn't have the text.");
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && text_->hasFocus()) {
    event->modifiers().testFlag(Qt::ShiftModifier) ? FindPrevious() : FindNext();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace plotsmith::qt
