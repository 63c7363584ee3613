#include "tests/qt/forms/WidgetState.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableWidget>

#include "qt/Texts.h"
#include "tests/support/StateDifferences.h"

namespace plotsmith::test {
namespace {

using forms::ControlState;
using qt::TextOf;

void Read(const QListWidget& list, ControlState& state) {
  state.list.emplace();
  state.selected.emplace();
  for (int i = 0; i < list.count(); ++i) {
    state.list->push_back(TextOf(list.item(i)->text()));
    if (list.item(i)->isSelected()) state.selected->push_back(i);
  }
}

void Read(const QComboBox& box, ControlState& state) {
  state.list.emplace();
  for (int i = 0; i < box.count(); ++i) state.list->push_back(TextOf(box.itemText(i)));
  state.listIndex = box.currentIndex();
  state.text = TextOf(box.currentText());
}

void Read(const QTableWidget& table, ControlState& state) {
  state.rows.emplace();
  state.selected.emplace();
  state.fixedRows = table.horizontalHeader()->isHidden() ? 0 : 1;
  if (state.fixedRows == 1) {
    auto& heads = state.rows->emplace_back();
    for (int col = 0; col < table.columnCount(); ++col) {
      heads.push_back(TextOf(table.horizontalHeaderItem(col)->text()));
    }
  }
  for (int row = 0; row < table.rowCount(); ++row) {
    auto& cells = state.rows->emplace_back();
    for (int col = 0; col < table.columnCount(); ++col) cells.push_back(TextOf(table.item(row, col)->text()));
    if (table.selectionModel()->isRowSelected(row)) state.selected->push_back(row + state.fixedRows);
  }
}

/// Returns true if the widget has the mark's colour. Input widgets have their own colour, although they
/// inherit the role of the frame around them.
bool IsMarked(const QWidget& widget) {
  const bool hasFrameColor = qobject_cast<const QGroupBox*>(&widget) != nullptr ||
                             qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                             qobject_cast<const QLabel*>(&widget) != nullptr;
  return hasFrameColor && widget.backgroundRole() == QPalette::ToolTipBase;
}

ControlState Read(const QWidget& widget) {
  ControlState state;
  state.name = TextOf(widget.objectName());
  state.accessibleName = TextOf(widget.accessibleName());
  state.enabled = widget.isEnabled();
  state.visible = widget.isVisible();
  state.focus = widget.window()->focusWidget() == &widget;
  state.backColor = IsMarked(widget) ? forms::kToolTipBackground : forms::kButtonFace;
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    state.caption = TextOf(button->text());
    if (button->isCheckable()) state.value = button->isChecked();
  }
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) state.isDefault = button->isDefault();
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) state.caption = TextOf(box->title());
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) state.caption = TextOf(label->text());
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) state.text = TextOf(edit->text());
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget))
    state.text = TextOf(edit->document()->toRawText().replace(QChar::ParagraphSeparator, '\n'));
  if (const auto* list = qobject_cast<const QListWidget*>(&widget)) Read(*list, state);
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) Read(*box, state);
  if (const auto* table = qobject_cast<const QTableWidget*>(&widget)) Read(*table, state);
  return state;
}

}  // namespace

forms::FormState StateOfWidgets(const qt::FormWindow& window) {
  forms::FormState state{TextOf(window.objectName()), TextOf(window.windowTitle()), {}};
  for (const forms::Control* control : window.Model().Controls()) {
    const auto* widget = window.findChild<QWidget*>(TextOf(control->FullName()));
    if (widget != nullptr) state.controls.push_back(Read(*widget));
  }
  return state;
}

std::string DifferencesFromModel(const qt::FormWindow& window) {
  return StateDifferences(forms::StateOf(window.Model()), StateOfWidgets(window),
                          [](ControlState& model, ControlState& widget) {
                            model.kind.clear();
                            model.container.clear();
                            model.isCancel = false;
                            model.listIndex = widget.listIndex;
                          });
}

}  // namespace plotsmith::test
