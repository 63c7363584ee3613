#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "forms/VSFlexGrid.h"

namespace plotsmith::cli {

/// A step of a verb on a page. It returns the line of a script for the current state of the page, or nothing
/// if nothing is left to do. It throws ScriptError if the page doesn't allow it.
using Step = std::function<std::optional<std::string>(const forms::Form& page)>;
/// The steps on a page, in order.
using Steps = std::vector<Step>;

/// Presses a button.
Step PressStep(const char* button);
/// Types a text into a box.
Step TypeStep(const char* control, std::string text, const char* option);
/// Types a text that the workbook contains into a box of one line. Blanks replace its line ends, and the part
/// that is too long for the box is cut off.
Step FittingTextStep(const char* control, std::string text);
/// Selects an option button unless it is selected.
Step OptionStep(std::string control, std::string option);
/// Checks or unchecks a check box if necessary.
Step TickStep(const char* control, bool checked, std::string option);
/// Selects entries of a list or of a combo box by their texts, ignoring case, unless they are selected.
/// `kind` is the kind of entries.
Step EntriesStep(const char* control, std::vector<std::string> texts, const char* option,
                 const char* kind = "column");
/// Selects an entry of a combo box by index unless it is selected.
Step EntryStep(const char* control, std::int32_t index, const char* option);
/// Selects rows of a grid by index.
Step RowsStep(const char* grid, std::vector<std::int32_t> rows);

/// Returns the page's control with that name, which must exist.
template <class Kind>
const Kind& ControlOn(const forms::Form& page, std::string_view name) {
  return dynamic_cast<const Kind&>(*page.FindControl(name));
}

}  // namespace plotsmith::cli
