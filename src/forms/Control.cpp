#include "forms/Control.h"

#include <utility>

#include "forms/Form.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"

namespace plotsmith::forms {

using runtime::RuntimeError;

Control::Control(Form& form, const char* name, Control* container)
    : form_(form), name_(name), container_(container) {
  form.controls_.push_back(this);
}

std::string Control::FullName() const { return index_ ? name_ + "(" + std::to_string(*index_) + ")" : name_; }

void Control::SetEnabled(bool value) {
  enabled_ = value;
  Changed();
}

void Control::SetVisible(bool value) {
  visible_ = value;
  Changed();
}

void Control::SetBackColor(Color value) {
  backColor_ = value;
  Changed();
}

Font& Control::Font() { throw RuntimeError(runtime::error::kNoSuchMember); }

void Control::SetPlace(const forms::Place& value) {
  place_ = value;
  Changed();
}

void Control::SetAccessibleName(std::string value) {
  accessibleName_ = std::move(value);
  Changed();
}

std::string Control::AccessibleName() const {
  if (!accessibleName_.empty()) return accessibleName_;
  const std::string caption(runtime::Trim(runtime::Replace(CaptionText(), "&", "")));
  if (!caption.empty() || container_ == nullptr) return caption.empty() ? name_ : caption;
  const std::string kind = KindText();
  return container_->AccessibleName() + (kind.empty() ? "" : ", " + kind);
}

std::string Control::AccessibleDescription() const {
  if (container_ == nullptr) return {};
  const std::string frame = container_->AccessibleName();
  return AccessibleName().starts_with(frame) ? std::string() : frame;
}

void Control::SetFocus() {
  if (!UserFocus()) throw RuntimeError(runtime::error::kInvalidCall);
}

std::string Control::Obstacle() const {
  if (!TakesFocus()) return "takes no input";
  if (!visible_) return "is hidden";
  return enabled_ ? "" : "is off";
}

bool Control::UserFocus() { return Reach(); }

bool Control::Reach() {
  if (!Obstacle().empty()) return false;
  form_.MoveFocus(*this);
  return true;
}

void CaptionControl::SetCaption(std::string value) {
  caption_ = std::move(value);
  Changed();
}

}  // namespace plotsmith::forms
