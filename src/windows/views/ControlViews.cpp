#include "windows/views/ControlViews.h"

#include <algorithm>

#include "forms/Lists.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"
#include "windows/views/ButtonViews.h"
#include "windows/views/GridView.h"
#include "windows/views/ListViews.h"
#include "windows/views/PlainViews.h"
#include "windows/views/TextBoxView.h"

namespace plotsmith::windows {
namespace {

constexpr int kGap = 7;  // at 96 dots per inch

template <class View, class Model>
std::unique_ptr<ControlView> MakeIf(forms::Control& control, const Stage& stage) {
  auto* model = dynamic_cast<Model*>(&control);
  return model == nullptr ? nullptr : std::make_unique<View>(*model, stage);
}

using Maker = std::unique_ptr<ControlView> (*)(forms::Control&, const Stage&);
constexpr Maker kMakers[] = {
    MakeIf<CheckBoxView, forms::CheckBox>, MakeIf<OptionButtonView, forms::OptionButton>,
    MakeIf<ComboBoxView, forms::ComboBox>, MakeIf<ListBoxView, forms::ListBox>,
    MakeIf<TextBoxView, forms::TextBox>,   MakeIf<GridView, forms::VSFlexGrid>,
    MakeIf<FrameView, forms::Frame>,       MakeIf<LabelView, forms::Label>,
    MakeIf<ImageView, forms::Image>,       MakeIf<ProgressBarView, forms::ProgressBar>};

template <class Kind>
bool AreBoth(const forms::Control& left, const forms::Control& right) {
  return dynamic_cast<const Kind*>(&left) != nullptr && dynamic_cast<const Kind*>(&right) != nullptr;
}

/// Returns true if the arrow keys move from a control to the next one, as among options and among buttons.
bool AreInOneGroup(const forms::Control& before, const forms::Control& control) {
  return before.Container() == control.Container() &&
         (AreBoth<forms::OptionButton>(before, control) || AreBoth<forms::CommandButton>(before, control));
}

}  // namespace

std::unique_ptr<ControlView> MakeControlView(forms::Control& control, const Stage& stage,
                                             forms::SecondPress& presses) {
  if (auto* button = dynamic_cast<forms::CommandButton*>(&control)) {
    return std::make_unique<CommandButtonView>(*button, stage, presses);
  }
  for (const Maker make : kMakers) {
    if (auto view = make(control, stage)) return view;
  }
  return nullptr;
}

ControlViews::ControlViews(forms::Form& form, const Stage& stage, forms::SecondPress& presses) {
  for (forms::Control* control : form.Controls()) {
    auto view = MakeControlView(*control, stage, presses);
    if (view == nullptr) continue;
    if (views_.empty() || !AreInOneGroup(views_.back()->Model(), *control)) view->BeginGroup();
    views_.push_back(std::move(view));
  }
}

ControlView* ControlViews::Find(const forms::Control& control) const {
  const auto found =
      std::ranges::find_if(views_, [&](const auto& view) { return &view->Model() == &control; });
  return found == views_.end() ? nullptr : found->get();
}

void ControlViews::UseFonts(Fonts& fonts) {
  dpi_ = fonts.Dpi();
  for (const auto& view : views_) view->UseFonts(fonts);
}

forms::Size ControlViews::LeastSize(const forms::Control& control) const {
  const ControlView* const view = Find(control);
  return view == nullptr ? forms::Size() : view->LeastSize();
}

int ControlViews::WidthOf(const forms::Control& control, int characters) const {
  const ControlView* const view = Find(control);
  return view == nullptr ? 0 : view->WidthOf(characters);
}

int ControlViews::HeightOf(const forms::Control& control, int lines) const {
  const ControlView* const view = Find(control);
  return view == nullptr ? 0 : view->HeightOf(lines);
}

forms::Edges ControlViews::EdgesOf(const forms::Control& frame) const {
  const auto* const view = dynamic_cast<const FrameView*>(Find(frame));
  return view == nullptr ? forms::Edges() : view->Edges();
}

int ControlViews::Gap() const { return MulDiv(kGap, static_cast<int>(dpi_), USER_DEFAULT_SCREEN_DPI); }

}  // namespace plotsmith::windows
