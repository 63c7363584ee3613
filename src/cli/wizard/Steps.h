#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "forms/VSFlexGrid.h"

namespace plotsmith::cli {

/// A step of a verb on a page: the line of a script that does it, as the page is now; absent where nothing is
/// left to do. A ScriptError where the page doesn't allow it.
using Step = std::function<std::optional<std::string>(const forms::Form& page)>;
using Steps = std::vector<Step>;

/// Presses a button.
Step PressStep(const char* button);
/// Types a text into a box.
Step TypeStep(const char* control, std::string text, const char* option);
/// Chooses an option button that isn't chosen yet.
Step OptionStep(std::string control, std::string option);
/// Ticks a check box, or takes the tick away, if it isn't so yet.
Step TickStep(const char* control, bool checked, std::string option);
/// Chooses entries of a list or of a combo box by their texts, ignoring case, if they aren't chosen yet.
/// `kind` is what the entries are.
Step EntriesStep(const char* control, std::vector<std::string> texts, const char* option,
                 const char* kind = "column");
/// Chooses the first entry of a combo box.
Step FirstEntryStep(const char* control, const char* option);
/// Selects rows of a grid, by their places.
Step RowsStep(const char* grid, std::vector<std::int32_t> rows);

/// The page's control of that name; it is there.
template <class Kind>
const Kind& ControlOn(const forms::Form& page, std::string_view name) {
  return dynamic_cast<const Kind&>(*page.FindControl(name));
}

}  // namespace plotsmith::cli
