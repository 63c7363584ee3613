#include "forms/script/FormState.h"

#include <cstdio>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"

namespace plotsmith::forms {
namespace {

std::string Folded(std::string_view text) { return WithLineEnds(text, "\n"); }

void Describe(const EntryList& list, ControlState& state) {
  state.list.emplace();
  for (std::int32_t i = 0; i < list.ListCount(); ++i) state.list->push_back(Folded(list.List(i)));
  state.listIndex = list.ListIndex();
}

void Describe(const ListBox& list, ControlState& state) {
  state.selected.emplace();
  for (std::int32_t i = 0; i < list.ListCount(); ++i) {
    if (list.Selected(i)) state.selected->push_back(i);
  }
}

void Describe(const VSFlexGrid& grid, ControlState& state) {
  state.rows.emplace();
  state.selected.emplace();
  state.fixedRows = grid.FixedRows();
  for (std::int32_t row = 0; row < grid.Rows(); ++row) {
    auto& cells = state.rows->emplace_back();
    for (std::int32_t col = 0; col < grid.Cols(); ++col) cells.push_back(Folded(grid.TextMatrix(row, col)));
    if (grid.IsSelected(row)) state.selected->push_back(row);
  }
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string all;
  for (std::size_t i = 0; i < texts.size(); ++i) all += (i > 0 ? "|" : "") + texts[i];
  return all;
}

/// Returns the texts of the selected entries, or of the first column in the selected rows.
std::string SelectedTexts(const ControlState& state) {
  std::vector<std::string> texts;
  for (const std::int32_t place : *state.selected) {
    const auto at = static_cast<std::size_t>(place);
    if (state.list) {
      texts.push_back((*state.list)[at]);
    } else {
      texts.push_back((*state.rows)[at].empty() ? std::string() : (*state.rows)[at].front());
    }
  }
  return Joined(texts);
}

std::string HexText(Color color) {
  char text[11];
  std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(color));
  return text;
}

std::string YesOrNo(bool value) { return value ? "yes" : "no"; }

}  // namespace

ControlState StateOf(const Control& control) {
  ControlState state;
  state.name = control.FullName();
  state.kind = control.TypeName();
  state.container = control.Container() == nullptr ? "" : control.Container()->FullName();
  state.accessibleName = control.AccessibleName();
  state.enabled = control.Enabled();
  state.visible = control.Visible();
  state.focus = control.Parent().ActiveControl() == &control;
  state.backColor = control.BackColor();
  if (const auto* captioned = dynamic_cast<const CaptionControl*>(&control))
    state.caption = captioned->Caption();
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) state.text = Folded(box->Text());
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) {
    state.value = check->Value() != CheckBox::kUnchecked;
  }
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) state.value = option->Value();
  if (const auto* list = dynamic_cast<const EntryList*>(&control)) Describe(*list, state);
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) state.text = Folded(combo->Text());
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    state.text = Folded(list->Text());
    Describe(*list, state);
  }
  if (const auto* grid = dynamic_cast<const VSFlexGrid*>(&control)) Describe(*grid, state);
  if (const auto* button = dynamic_cast<const CommandButton*>(&control)) {
    state.isDefault = button->Default();
    state.isCancel = button->Cancel();
  }
  return state;
}

FormState StateOf(const Form& form) {
  FormState state{form.Name(), form.Caption(), {}};
  for (const Control* control : form.Controls()) state.controls.push_back(StateOf(*control));
  return state;
}

std::vector<std::pair<std::string, std::string>> PropertiesOf(const ControlState& state) {
  std::vector<std::pair<std::string, std::string>> properties = {{"Enabled", YesOrNo(state.enabled)},
                                                                 {"Visible", YesOrNo(state.visible)},
                                                                 {"BackColor", HexText(state.backColor)}};
  const auto add = [&](const char* name, std::string value) {
    properties.emplace_back(name, std::move(value));
  };
  if (state.caption) add("Caption", *state.caption);
  if (state.value)
    add("Value", state.kind == "CheckBox" ? (*state.value ? "1" : "0") : YesOrNo(*state.value));
  if (state.text) add("Text", *state.text);
  if (state.listIndex) add("ListIndex", std::to_string(*state.listIndex));
  if (state.list) {
    add("ListCount", std::to_string(state.list->size()));
    add("List", Joined(*state.list));
  }
  if (state.rows) add("Rows", std::to_string(state.rows->size()));
  if (state.selected) {
    if (state.list) add("SelCount", std::to_string(state.selected->size()));
    add("Selected", SelectedTexts(state));
  }
  return properties;
}

}  // namespace plotsmith::forms
