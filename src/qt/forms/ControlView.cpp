#include "qt/forms/ControlView.h"

#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <utility>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"
#include "qt/Texts.h"
#include "qt/forms/ButtonViews.h"
#include "qt/forms/GridView.h"
#include "qt/forms/ListViews.h"
#include "qt/forms/PlainViews.h"
#include "qt/forms/TextViews.h"

namespace plotsmith::qt {
namespace {

constexpr double kDesignedSize = 8;  // points
constexpr const char* kDesignedTypeface = "Tahoma";

template <class View, class Model>
std::unique_ptr<ControlView> MakeIf(forms::Control& control, QWidget* parent, const Post& post) {
  auto* model = dynamic_cast<Model*>(&control);
  return model == nullptr ? nullptr : std::make_unique<View>(*model, parent, post);
}

using Maker = std::unique_ptr<ControlView> (*)(forms::Control&, QWidget*, const Post&);
constexpr Maker kMakers[] = {MakeIf<CommandButtonView, forms::CommandButton>,
                             MakeIf<CheckBoxView, forms::CheckBox>,
                             MakeIf<OptionButtonView, forms::OptionButton>,
                             MakeIf<ComboBoxView, forms::ComboBox>,
                             MakeIf<ListBoxView, forms::ListBox>,
                             MakeIf<GridView, forms::VSFlexGrid>,
                             MakeIf<FrameView, forms::Frame>,
                             MakeIf<LabelView, forms::Label>,
                             MakeIf<ImageView, forms::Image>,
                             MakeIf<ProgressBarView, forms::ProgressBar>};

}  // namespace

QFont FontOf(const forms::Font& font) {
  QFont result = QApplication::font();
  if (!font.Name.empty() && font.Name != kDesignedTypeface) {
    result.setFamilies(QStringList{TextOf(font.Name)} + result.families());
  }
  result.setPointSizeF(result.pointSizeF() * font.Size / kDesignedSize);
  result.setBold(font.Bold);
  return result;
}

std::unique_ptr<ControlView> MakeControlView(forms::Control& control, QWidget* parent, const Post& post) {
  if (auto* box = dynamic_cast<forms::TextBox*>(&control)) return MakeTextBoxView(*box, parent, post);
  for (const Maker make : kMakers) {
    if (auto view = make(control, parent, post)) return view;
  }
  return nullptr;
}

void ControlView::SetUpWidget() { Widget().setObjectName(TextOf(model_.FullName())); }

void ControlView::Report(std::function<void()> gesture) {
  ++waiting_;
  post_([this, gesture = std::move(gesture)] {
    --waiting_;
    touched_ = true;
    gesture();
  });
}

void ControlView::DiscardGestures() {
  waiting_ = 0;
  touched_ = true;
}

void ControlView::Update() {
  // The widget is newer than the control, for example because the user types while a page works.
  if (waiting_ > 0) return;
  if (model_.Changes() == shown_ && !std::exchange(touched_, false)) return;
  touched_ = false;
  shown_ = model_.Changes();
  QWidget& widget = Widget();
  widget.setEnabled(model_.Enabled());
  widget.setVisible(model_.Visible());
  widget.setAccessibleName(TextOf(model_.AccessibleName()));
  widget.setAccessibleDescription(TextOf(model_.AccessibleDescription()));
  ShowColors();
  ShowFont();
  Show();
}

// The model uses three colours: button faces, tool tips, and white for editable controls. Each becomes a role
// of the palette, so that dark and high-contrast themes work.
void ControlView::ShowColors() {
  QWidget& widget = Widget();
  const bool isMarked = model_.BackColor() == forms::kToolTipBackground;
  widget.setBackgroundRole(isMarked ? QPalette::ToolTipBase : QPalette::NoRole);
  widget.setForegroundRole(isMarked ? QPalette::ToolTipText : QPalette::NoRole);
  // Controls in a frame show the frame's background.
  if (dynamic_cast<forms::Frame*>(&model_) != nullptr) widget.setAutoFillBackground(isMarked);
}

void ControlView::ShowFont() {
  if (dynamic_cast<forms::FontControl*>(&model_) != nullptr) Widget().setFont(FontOf(model_.Font()));
}

}  // namespace plotsmith::qt
