#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/Form.h"

namespace plotsmith::forms {

/// What a person sees of a control, as data. A member is absent for kinds of controls that don't have it.
/// Lines of texts end in "\n".
struct ControlState {
  std::string name;            ///< with the index of a control array: "optType(1)"
  std::string kind;            ///< the class, by the control's TypeName
  std::string container;       ///< the name of the frame; empty for the form itself
  std::string accessibleName;  ///< what a screen reader says
  bool enabled = true;
  bool visible = true;
  bool focus = false;
  Color backColor = kButtonFace;
  std::optional<std::string> caption;                         ///< with "&" in front of the letter for Alt
  std::optional<std::string> text;                            ///< in the box; of a list the current entry
  std::optional<bool> value;                                  ///< whether a box is ticked, an option chosen
  std::optional<std::vector<std::string>> list;               ///< all entries
  std::optional<std::int32_t> listIndex;                      ///< from 0; -1 without a current entry
  std::optional<std::vector<std::vector<std::string>>> rows;  ///< cells of a grid, heads first
  std::int32_t fixedRows = 0;                                 ///< how many of the rows are heads
  std::optional<std::vector<std::int32_t>> selected;          ///< entries or rows, from 0
  bool isDefault = false;                                     ///< Enter presses the button
  bool isCancel = false;                                      ///< Escape presses the button
};

/// What a person sees of a form.
struct FormState {
  std::string name;
  std::string caption;
  std::vector<ControlState> controls;  ///< in tab order
};

ControlState StateOf(const Control& control);
FormState StateOf(const Form& form);

/// The properties that a script can ask for, by their names, with their values as a script writes them:
/// "yes" and "no", "1" and "0" for a check box, lists joined with "|", colours as "0x8000000F".
std::vector<std::pair<std::string, std::string>> PropertiesOf(const ControlState& state);

}  // namespace plotsmith::forms
