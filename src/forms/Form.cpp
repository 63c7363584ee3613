#include "forms/Form.h"

#include <algorithm>
#include <utility>

#include "forms/Buttons.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"

namespace plotsmith::forms {
namespace {

/// Returns the button of the form for which `wanted` returns true, or null.
CommandButton* FindButton(const Form& form, bool (CommandButton::*wanted)() const) {
  for (Control* control : form.Controls()) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && (button->*wanted)()) return button;
  }
  return nullptr;
}

}  // namespace

Form::Form(const char* name) : name_(name) {
  static std::uint64_t made = 0;
  id_ = ++made;
}

void Form::SetCaption(std::string value) {
  caption_ = std::move(value);
  ++changes_;
}

Control* Form::FindControl(std::string_view fullName) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->FullName() == fullName; });
  return found == controls_.end() ? nullptr : *found;
}

Layout Form::Layout() const {
  const auto inside = [this](const Control* container, const auto& self) -> forms::Layout {
    std::vector<forms::Layout> parts;
    for (const Control* control : controls_) {
      if (control->Container() != container) continue;
      if (dynamic_cast<const Frame*>(control) != nullptr) {
        parts.push_back(Framed(*control, self(control, self)));
      } else if (dynamic_cast<const Timer*>(control) == nullptr) {
        parts.push_back(Item(*control));
      }
    }
    return Column(std::move(parts));
  };
  return inside(nullptr, inside);
}

void Form::Load() {
  if (std::exchange(loaded_, true)) return;
  Form_Load();
}

void Form::Unload() {
  if (std::exchange(unloaded_, true)) return;
  Hide();
  if (loaded_) Form_Unload();
}

void Form::Hide() {
  visible_ = false;
  ++changes_;
}

void Form::Activate() {
  Form_Activate();
  if (!visible_ || activeControl_ != nullptr) return;
  if (Control* first = FirstInTabOrder()) first->UserFocus();
}

void Form::MoveFocus(Control& control) {
  if (activeControl_ == &control) return;
  Control* const left = std::exchange(activeControl_, &control);
  if (left != nullptr) Control::Raise(left->Validate);
  Control::Raise(control.GotFocus);
}

Control* Form::FirstInTabOrder() const {
  const auto canBeFirst = [](const Control* control) {
    // The tab stop of a group of options is the selected option.
    const auto* option = dynamic_cast<const OptionButton*>(control);
    return control->Obstacle().empty() && (option == nullptr || option->Value());
  };
  const auto found = std::find_if(controls_.begin(), controls_.end(), canBeFirst);
  return found == controls_.end() ? nullptr : *found;
}

bool Form::UserEnter() {
  auto* text = dynamic_cast<TextBox*>(activeControl_);
  if (text != nullptr && text->MultiLine()) return text->UserType(text->Text() + "\r\n");
  CommandButton* button = FindButton(*this, &CommandButton::Default);
  if (button == nullptr || !button->Obstacle().empty()) return false;
  // The typed text is final, as if the focus had moved to the button.
  if (activeControl_ != nullptr) Control::Raise(activeControl_->Validate);
  return button->UserPressByKey();
}

bool Form::UserEscape() {
  CommandButton* button = FindButton(*this, &CommandButton::Cancel);
  return button != nullptr && button->UserPressByKey();
}

bool Form::UserHelp() {
  auto* button = dynamic_cast<CommandButton*>(FindControl("cmdHelp"));
  return button != nullptr && button->UserPressByKey();
}

}  // namespace plotsmith::forms
