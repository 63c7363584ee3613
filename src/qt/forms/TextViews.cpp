#include "qt/forms/TextViews.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <algorithm>
#include <string>
#include <string_view>

#include "qt/Texts.h"

namespace plotsmith::qt {
namespace {

/// Replaces characters that can't be typed with blanks.
void ReplaceUntypeable(QString& text, std::u16string_view allowed) {
  std::u16string units = text.toStdU16String();
  forms::ReplaceUntypeable(units, allowed);
  text = QString::fromStdU16String(units);
}

/// Returns the text with a line end for each kind of line end in the box. QPlainTextEdit::toPlainText would
/// convert no-break spaces to blanks.
QString LinesIn(const QPlainTextEdit& edit) {
  QString text = edit.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
      .replace(QChar::LineSeparator, QLatin1Char('\n'));
}

class LineView final : public ControlView {
 public:
  LineView(forms::TextBox& model, QWidget* parent, const Post& post)
      : ControlView(model, post), model_(model), edit_(new QLineEdit(parent)) {
    QObject::connect(edit_, &QLineEdit::textEdited, edit_, [this](const QString& text) {
      Report([this, text] { model_.UserType(TextOf(OneLine(text))); });
    });
    QObject::connect(edit_, &QLineEdit::inputRejected, edit_, [] { QApplication::beep(); });
    SetUpWidget();
  }
  QWidget& Widget() override { return *edit_; }

 protected:
  void Show() override {
    const QString text = TextOf(model_.Text());
    // A change of the limit moves the cursor.
    const auto limit = static_cast<int>(model_.Limit());
    if (limit > 0 && edit_->maxLength() != limit) edit_->setMaxLength(limit);
    if (edit_->text() != text) {
      const int cursor = edit_->cursorPosition();
      edit_->setText(text);
      edit_->setCursorPosition(cursor);
    }
    edit_->setAlignment(model_.Alignment() == forms::Alignment::kCenter
                            ? Qt::AlignCenter
                            : Qt::AlignLeading | Qt::AlignVCenter);
  }

 private:
  forms::TextBox& model_;
  QLineEdit* edit_;
};

class LinesView final : public ControlView {
 public:
  LinesView(forms::TextBox& model, QWidget* parent, const Post& post)
      : ControlView(model, post), model_(model), edit_(new QPlainTextEdit(parent)) {
    edit_->setTabChangesFocus(true);
    QObject::connect(edit_, &QPlainTextEdit::textChanged, edit_, [this] {
      const QSignalBlocker blocker(edit_);
      CutOff();
      QString text = LinesIn(*edit_);
      ReplaceUntypeable(text, u"\n\t");
      Report([this, text] { model_.UserType(TextOf(text)); });
    });
    SetUpWidget();
  }
  QWidget& Widget() override { return *edit_; }

 protected:
  void Show() override {
    const QString text = TextOf(forms::WithLineEnds(model_.Text(), "\n"));
    if (LinesIn(*edit_) == text) return;
    const QSignalBlocker blocker(edit_);
    const int place = edit_->textCursor().position();
    edit_->setPlainText(text);
    QTextCursor cursor = edit_->textCursor();
    cursor.setPosition(std::min(place, static_cast<int>(text.size())));
    edit_->setTextCursor(cursor);
  }

 private:
  /// Returns the number of UTF-16 units beyond the limit. A line end counts as two units, as in the model.
  qsizetype TooMany() const {
    const auto most = static_cast<qsizetype>(model_.Limit());
    if (most == 0) return 0;
    const QString text = LinesIn(*edit_);
    return text.size() + text.count(QLatin1Char('\n')) - most;
  }

  /// Removes the part of the last input that exceeds the limit.
  void CutOff() {
    if (TooMany() > 0) QApplication::beep();
    QTextCursor cursor = edit_->textCursor();
    for (qsizetype over = TooMany(); over > 0 && !cursor.atStart(); over = TooMany()) {
      const qsizetype units =
          std::max<qsizetype>(over / 2, 1);  // In the worst case, all of them are line ends.
      int from = std::max(cursor.position() - static_cast<int>(units), 0);
      if (edit_->document()->characterAt(from).isLowSurrogate()) --from;
      cursor.setPosition(from, QTextCursor::KeepAnchor);
      cursor.removeSelectedText();
    }
  }

  forms::TextBox& model_;
  QPlainTextEdit* edit_;
};

}  // namespace

std::unique_ptr<ControlView> MakeTextBoxView(forms::TextBox& model, QWidget* parent, const Post& post) {
  if (model.MultiLine()) return std::make_unique<LinesView>(model, parent, post);
  return std::make_unique<LineView>(model, parent, post);
}

QString OneLine(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  ReplaceUntypeable(text, u"");
  return text;
}

}  // namespace plotsmith::qt
