#include "tests/support/StateDifferences.h"

#include <algorithm>

namespace plotsmith::test {
namespace {

using forms::ControlState;

template <class Value>
void Compare(std::string& differences, const std::string& what, const Value& model, const Value& shown) {
  if (!(model == shown)) differences += what + " differs\n";
}

void Compare(std::string& differences, const ControlState& model, const ControlState& shown) {
  const auto compare = [&](const char* what, const auto& left, const auto& right) {
    Compare(differences, model.name + "." + what, left, right);
  };
  compare("TypeName", model.kind, shown.kind);
  compare("Container", model.container, shown.container);
  compare("AccessibleName", model.accessibleName, shown.accessibleName);
  compare("Enabled", model.enabled, shown.enabled);
  compare("Visible", model.visible, shown.visible);
  compare("focus", model.focus, shown.focus);
  compare("BackColor", model.backColor, shown.backColor);
  compare("Caption", model.caption, shown.caption);
  compare("Text", model.text, shown.text);
  compare("Value", model.value, shown.value);
  compare("List", model.list, shown.list);
  compare("ListIndex", model.listIndex, shown.listIndex);
  compare("Rows", model.rows, shown.rows);
  compare("FixedRows", model.fixedRows, shown.fixedRows);
  compare("Selected", model.selected, shown.selected);
  compare("Default", model.isDefault, shown.isDefault);
  compare("Cancel", model.isCancel, shown.isCancel);
}

}  // namespace

bool IsMarkable(const std::string& kind) {
  return kind == "Frame" || kind == "OptionButton" || kind == "CheckBox" || kind == "Label";
}

void KeepMarkOnly(ControlState& state) {
  if (state.backColor != forms::kToolTipBackground) state.backColor = forms::kButtonFace;
}

std::string StateDifferences(const forms::FormState& model, const forms::FormState& shown,
                             const std::function<void(ControlState& model, ControlState& shown)>& adapt) {
  std::string differences;
  Compare(differences, "Name", model.name, shown.name);
  Compare(differences, "Caption", model.caption, shown.caption);
  std::size_t seen = 0;
  for (ControlState control : model.controls) {
    if (control.kind == "Timer") continue;
    ++seen;
    const auto found = std::ranges::find(shown.controls, control.name, &ControlState::name);
    if (found == shown.controls.end()) {
      differences += control.name + " has no window\n";
      continue;
    }
    ControlState other = *found;
    if (!IsMarkable(control.kind)) control.backColor = other.backColor = forms::kButtonFace;
    KeepMarkOnly(control);
    if (control.kind == "ListBox") control.text = other.text = std::nullopt;  // the selection shows it
    adapt(control, other);
    Compare(differences, control, other);
  }
  if (seen != shown.controls.size()) differences += "the number of controls differs\n";
  return differences;
}

}  // namespace plotsmith::test
