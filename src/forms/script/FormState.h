#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/Form.h"

namespace plotsmith::forms {

/// The visible state of a control as data. A member is absent if this kind of control doesn't have it. Lines
/// of texts end with "\n".
struct ControlState {
  std::string name;            ///< The name with the index in a control array, such as "optType(1)".
  std::string kind;            ///< The class, from the control's TypeName.
  std::string container;       ///< The name of the frame; empty for the form.
  std::string accessibleName;  ///< The name for screen readers.
  /// The properties of the control with the same names; `focus` is true if it has the focus.
  ///@{
  bool enabled = true;
  bool visible = true;
  bool focus = false;
  Color backColor = kButtonFace;
  ///@}

  std::optional<std::string> caption;            ///< The caption, with "&" before the letter for Alt.
  std::optional<std::string> text;               ///< The text in the box, or the current entry of a list.
  std::optional<bool> value;                     ///< Whether a check box is checked or an option is selected.
  std::optional<std::vector<std::string>> list;  ///< All entries.
  std::optional<std::int32_t> listIndex;         ///< The current entry from 0, or -1.
  std::optional<std::vector<std::vector<std::string>>> rows;  ///< The cells of a grid, headings first.
  std::int32_t fixedRows = 0;                                 ///< The number of heading rows.
  std::optional<std::vector<std::int32_t>> selected;          ///< The selected entries or rows, from 0.
  bool isDefault = false;                                     ///< Whether Enter presses the button.
  bool isCancel = false;                                      ///< Whether Escape presses the button.
};

/// The visible state of a form.
struct FormState {
  std::string name;                    ///< The name of the form, such as "frmPSSelectTable".
  std::string caption;                 ///< The title of its window.
  std::vector<ControlState> controls;  ///< The controls in tab order.
};

/// Returns the visible state of a control.
ControlState StateOf(const Control& control);
/// Returns the visible state of a form and its controls.
FormState StateOf(const Form& form);

/// Returns the properties that a script can check, with their names and their values as a script writes them:
/// "yes" and "no", "1" and "0" for a check box, lists joined with "|", colours as "0x8000000F".
std::vector<std::pair<std::string, std::string>> PropertiesOf(const ControlState& state);

}  // namespace plotsmith::forms
