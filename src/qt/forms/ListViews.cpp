#include "qt/forms/ListViews.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLineEdit>
#include <algorithm>
#include <vector>

#include "qt/Texts.h"
#include "qt/forms/FirstRow.h"
#include "qt/forms/TextViews.h"

namespace plotsmith::qt {
namespace {

QStringList EntriesOf(const forms::EntryList& list) {
  QStringList entries;
  for (std::int32_t i = 0; i < list.ListCount(); ++i) entries += TextOf(list.List(i));
  return entries;
}

template <class Box>
QStringList ShownEntries(const Box& box, QString (*textAt)(const Box&, int)) {
  QStringList entries;
  for (int i = 0; i < box.count(); ++i) entries += textAt(box, i);
  return entries;
}

}  // namespace

ComboBoxView::ComboBoxView(forms::ComboBox& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), box_(new QComboBox(parent)) {
  box_->setFocusPolicy(Qt::StrongFocus);
  box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  if (model.Style() == forms::ComboStyle::kDropDownCombo) {
    box_->setEditable(true);
    box_->setInsertPolicy(QComboBox::NoInsert);
    box_->setCompleter(nullptr);  // Typed text must not be completed.
    QObject::connect(box_->lineEdit(), &QLineEdit::textEdited, box_, [this](const QString& text) {
      Report([this, text] { model_.UserType(TextOf(OneLine(text))); });
    });
  }
  QObject::connect(box_, &QComboBox::activated, box_,
                   [this](int entry) { Report([this, entry] { model_.UserChoose(entry); }); });
  SetUpWidget();
}

void ComboBoxView::Show() {
  const QSignalBlocker blocker(box_);
  const QStringList entries = EntriesOf(model_);
  if (ShownEntries<QComboBox>(*box_, [](const QComboBox& box, int i) { return box.itemText(i); }) !=
      entries) {
    box_->clear();
    box_->addItems(entries);
  }
  box_->setCurrentIndex(model_.ListIndex());
  // On Linux, Qt reports the current entry in place of the name of a combo box.
  box_->setAccessibleDescription(TextOf(model_.AccessibleName()));
  if (!box_->isEditable()) return;
  const QString text = TextOf(model_.Text());
  if (box_->currentText() != text) box_->setEditText(text);
}

ListBoxView::ListBoxView(forms::ListBox& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), list_(new FromFirstRow<QListWidget>(parent)) {
  list_->setSelectionMode(model.MultiSelect() == forms::MultiSelect::kExtended
                              ? QAbstractItemView::ExtendedSelection
                              : QAbstractItemView::SingleSelection);
  list_->setUniformItemSizes(true);
  QObject::connect(list_, &QListWidget::itemSelectionChanged, list_, [this] { ReportSelection(); });
  SetUpWidget();
}

void ListBoxView::ReportSelection() {
  std::vector<std::int32_t> entries;
  for (const QModelIndex& index : list_->selectionModel()->selectedIndexes()) entries.push_back(index.row());
  std::sort(entries.begin(), entries.end());
  Report([this, entries = std::move(entries)] { model_.UserSelect(entries); });
}

void ListBoxView::Show() {
  const QSignalBlocker blocker(list_);
  const QStringList entries = EntriesOf(model_);
  if (ShownEntries<QListWidget>(
          *list_, [](const QListWidget& list, int i) { return list.item(i)->text(); }) != entries) {
    list_->clear();
    list_->addItems(entries);
  }
  for (int i = 0; i < list_->count(); ++i) {
    QListWidgetItem* const item = list_->item(i);
    if (item->isSelected() != model_.Selected(i)) item->setSelected(model_.Selected(i));
  }
  const auto selected = list_->selectedItems();
  if (!selected.isEmpty() && !selected.contains(list_->currentItem())) {
    list_->selectionModel()->setCurrentIndex(list_->indexFromItem(selected.front()),
                                             QItemSelectionModel::NoUpdate);
    list_->scrollToItem(selected.front());
  }
}

}  // namespace plotsmith::qt
