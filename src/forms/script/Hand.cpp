#include "forms/script/Hand.h"

#include <utility>

namespace plotsmith::forms {

void ModelHand::Post(EventQueue& queue, const Control& control, std::function<bool()> gesture) {
  queue.Post(control.Parent(), [this, &control, gesture = std::move(gesture)] {
    if (!gesture()) Refused(control.FullName() + " " + control.Obstacle());
  });
}

void ModelHand::SelectRows(EventQueue& queue, VSFlexGrid& grid, std::vector<std::int32_t> rows) {
  Post(queue, grid, [&grid, rows = std::move(rows)] { return grid.UserSelect(rows); });
}

void ModelHand::DoubleClickRow(EventQueue& queue, VSFlexGrid& grid, std::int32_t row) {
  Post(queue, grid, [&grid, row] { return grid.UserDoubleClick(row); });
}

void ModelHand::SelectEntries(EventQueue& queue, ListBox& list, std::vector<std::int32_t> entries) {
  Post(queue, list, [&list, entries = std::move(entries)] { return list.UserSelect(entries); });
}

void ModelHand::ChooseEntry(EventQueue& queue, ComboBox& combo, std::int32_t entry) {
  Post(queue, combo, [&combo, entry] { return combo.UserChoose(entry); });
}

void ModelHand::ChooseOption(EventQueue& queue, OptionButton& option) {
  Post(queue, option, [&option] { return option.UserChoose(); });
}

void ModelHand::Toggle(EventQueue& queue, CheckBox& box, bool checked) {
  Post(queue, box, [&box, checked] { return box.UserToggle(checked); });
}

void ModelHand::TypeText(EventQueue& queue, TextBox& box, std::string text) {
  Post(queue, box, [&box, text = std::move(text)] { return box.UserType(text); });
}

void ModelHand::TypeText(EventQueue& queue, ComboBox& combo, std::string text) {
  Post(queue, combo, [&combo, text = std::move(text)] { return combo.UserType(text); });
}

void ModelHand::Press(EventQueue& queue, CommandButton& button) {
  Post(queue, button, [&button] { return button.UserPress(); });
}

void ModelHand::Focus(EventQueue& queue, Control& control) {
  Post(queue, control, [&control] { return control.UserFocus(); });
}

void ModelHand::Enter(EventQueue& queue, Form& form) {
  queue.Post(form, [this, &form] {
    if (!form.UserEnter()) Refused("Enter presses no button of " + form.Name() + " at present");
  });
}

void ModelHand::Escape(EventQueue& queue, Form& form) {
  queue.Post(form, [this, &form] {
    if (!form.UserEscape()) Refused("Escape presses no button of " + form.Name() + " at present");
  });
}

void ModelHand::Close(EventQueue& queue, Form& form) {
  queue.Post(form, [&form] { form.UserClose(); });
}

}  // namespace plotsmith::forms
