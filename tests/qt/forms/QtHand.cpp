#include "tests/qt/forms/QtHand.h"

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QTableWidget>
#include <stdexcept>

#include "qt/Texts.h"

namespace plotsmith::test {
namespace {

/// Returns a point on the mark before the caption, which is at the right for right-to-left text.
QPoint OnMark(const QWidget& widget) {
  const int inside = 8;
  return {widget.layoutDirection() == Qt::RightToLeft ? widget.width() - inside : inside,
          widget.height() / 2};
}

/// Clicks on rows of a list or a table, so that exactly these are selected.
void ClickRows(QAbstractItemView& view, const std::vector<int>& rows) {
  const auto click = [&](const QModelIndex& index, Qt::KeyboardModifiers modifiers) {
    view.scrollTo(index);
    const QRect place = view.visualRect(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers,
                      place.intersected(view.viewport()->rect()).center());
  };
  if (rows.empty()) {
    view.setFocus(Qt::TabFocusReason);
    for (const QModelIndex& index : view.selectionModel()->selectedRows()) click(index, Qt::ControlModifier);
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    click(view.model()->index(rows[i], 0), i == 0 ? Qt::NoModifier : Qt::ControlModifier);
  }
}

/// Replaces the text of the box with the focus, character by character.
void TypeOver(QWidget& widget, const std::string& text) {
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&widget, Qt::Key_Delete);
  const QString typed = qt::TextOf(forms::WithLineEnds(text, "\n"));
  for (qsizetype i = 0; i < typed.size(); ++i) {
    QString character = typed.mid(i, typed[i].isHighSurrogate() ? 2 : 1);
    i += character.size() - 1;
    if (character == QLatin1String("\n")) {
      QTest::keyClick(&widget, Qt::Key_Return);
    } else if (character == QLatin1String("\t")) {
      // The Tab key leaves the box, so a tab can only be pasted.
      QApplication::clipboard()->setText(character);
      QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
    } else {
      QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, character, Qt::NoModifier);
    }
  }
}

}  // namespace

template <class Kind>
Kind& QtHand::Find(const forms::Control& control) const {
  auto* widget = front_()->findChild<Kind*>(qt::TextOf(control.FullName()));
  if (widget == nullptr) throw std::logic_error("no widget is named " + control.FullName());
  return *widget;
}

void QtHand::SelectRows(forms::EventQueue& queue, forms::VSFlexGrid& grid, std::vector<std::int32_t> rows) {
  for (std::int32_t& row : rows) row -= grid.FixedRows();
  ClickRows(Find<QTableWidget>(grid), rows);
  post_(queue);
}

void QtHand::DoubleClickRow(forms::EventQueue& queue, forms::VSFlexGrid& grid, std::int32_t row) {
  auto& table = Find<QTableWidget>(grid);
  ClickRows(table, {row - grid.FixedRows()});
  const QModelIndex index = table.model()->index(row - grid.FixedRows(), 0);
  QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, table.visualRect(index).center());
  post_(queue);
}

void QtHand::SelectEntries(forms::EventQueue& queue, forms::ListBox& list,
                           std::vector<std::int32_t> entries) {
  ClickRows(Find<QListWidget>(list), entries);
  post_(queue);
}

void QtHand::ChooseEntry(forms::EventQueue& queue, forms::ComboBox& combo, std::int32_t entry) {
  auto& box = Find<QComboBox>(combo);
  QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, {box.width() - 5, box.height() / 2});
  QAbstractItemView* const entries = box.view();
  QTest::keyClick(entries, Qt::Key_Home);
  for (std::int32_t i = 0; i < entry; ++i) QTest::keyClick(entries, Qt::Key_Down);
  QTest::keyClick(entries, Qt::Key_Return);
  post_(queue);
}

void QtHand::ChooseOption(forms::EventQueue& queue, forms::OptionButton& option) {
  auto& button = Find<QRadioButton>(option);
  QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, OnMark(button));
  post_(queue);
}

void QtHand::Toggle(forms::EventQueue& queue, forms::CheckBox& box, bool checked) {
  auto& widget = Find<QCheckBox>(box);
  const int clicks = widget.isChecked() == checked ? 2 : 1;
  for (int i = 0; i < clicks; ++i) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, OnMark(widget));
  }
  post_(queue);
}

void QtHand::TypeText(forms::EventQueue& queue, forms::TextBox& box, std::string text) {
  auto& widget = Find<QWidget>(box);
  auto* const area = qobject_cast<QPlainTextEdit*>(&widget);
  QTest::mouseClick(area == nullptr ? &widget : area->viewport(), Qt::LeftButton);
  TypeOver(widget, text);
  post_(queue);
}

void QtHand::TypeText(forms::EventQueue& queue, forms::ComboBox& combo, std::string text) {
  auto& box = Find<QComboBox>(combo);
  QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
  TypeOver(box, text);
  post_(queue);
}

void QtHand::Press(forms::EventQueue& queue, forms::CommandButton& button) {
  QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
  post_(queue);
}

void QtHand::Focus(forms::EventQueue& queue, forms::Control& control) {
  Find<QWidget>(control).setFocus(Qt::TabFocusReason);
  post_(queue);
}

void QtHand::Key(int key) {
  QWidget* const window = front_();
  QWidget* const focus = window->focusWidget();
  QTest::keyClick(focus == nullptr ? window : focus, static_cast<Qt::Key>(key));
}

void QtHand::Enter(forms::EventQueue& queue, forms::Form&) {
  Key(Qt::Key_Return);
  post_(queue);
}

void QtHand::Escape(forms::EventQueue& queue, forms::Form&) {
  Key(Qt::Key_Escape);
  post_(queue);
}

void QtHand::Close(forms::EventQueue& queue, forms::Form&) {
  front_()->close();
  post_(queue);
}

}  // namespace plotsmith::test
