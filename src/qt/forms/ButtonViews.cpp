#include "qt/forms/ButtonViews.h"

#include "qt/Texts.h"

namespace plotsmith::qt {

CommandButtonView::CommandButtonView(forms::CommandButton& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), button_(new QPushButton(parent)) {
  button_->setAutoDefault(false);
  button_->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(button_, &QPushButton::clicked, button_,
                   [this] { Report([this] { model_.UserPress(); }); });
  SetUpWidget();
}

void CommandButtonView::Show() {
  button_->setText(TextOf(model_.Caption()));
  button_->setDefault(model_.Default());
}

CheckBoxView::CheckBoxView(forms::CheckBox& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), box_(new QCheckBox(parent)) {
  box_->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(box_, &QCheckBox::clicked, box_,
                   [this](bool checked) { Report([this, checked] { model_.UserToggle(checked); }); });
  SetUpWidget();
}

void CheckBoxView::Show() {
  box_->setText(TextOf(model_.Caption()));
  box_->setChecked(model_.Value() == forms::CheckBox::kChecked);
}

OptionButtonView::OptionButtonView(forms::OptionButton& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), button_(new QRadioButton(parent)) {
  button_->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(button_, &QRadioButton::clicked, button_,
                   [this] { Report([this] { model_.UserChoose(); }); });
  SetUpWidget();
}

// Qt doesn't deselect the last of several exclusive options, but the model can.
void OptionButtonView::Show() {
  button_->setText(TextOf(model_.Caption()));
  button_->setAutoExclusive(false);
  button_->setChecked(model_.Value());
  button_->setAutoExclusive(true);
  button_->setFocusPolicy(model_.IsTabStop() ? Qt::StrongFocus : Qt::ClickFocus);
}

}  // namespace plotsmith::qt
