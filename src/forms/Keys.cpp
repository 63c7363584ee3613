#include "forms/Keys.h"

#include "forms/Form.h"
#include "forms/TextBox.h"

namespace plotsmith::forms {

bool TakesEnter(const Control* control) {
  const auto* text = dynamic_cast<const TextBox*>(control);
  return text != nullptr && text->MultiLine();
}

bool IsHeldKey(const KeyPress& press, bool isInLines) {
  if (!press.isRepeated) return false;
  return press.withAlt || press.key == Key::kEscape || (press.key == Key::kEnter && !isInLines);
}

bool UserKey(Form& form, Key key) {
  switch (key) {
    case Key::kEnter:
      return form.UserEnter();
    case Key::kEscape:
      return form.UserEscape();
    case Key::kHelp:
      return form.UserHelp();
    default:
      return false;
  }
}

}  // namespace plotsmith::forms
