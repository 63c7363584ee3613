#pragma once

#include "forms/Form.h"
#include "forms/script/Hand.h"
#include "forms/script/ScriptLine.h"

namespace plotsmith::forms {

/// Returns true if the line of a script is an action on a form.
bool IsGesture(const Words& words);

/// Performs the action of a line on the front form. Throws ScriptError if this isn't possible: there is no
/// such control or entry, the control is of another kind, or it is disabled or hidden.
void MakeGesture(const Words& words, Form& form, Hand& hand, EventQueue& queue);

/// Returns the control with the name. Throws a ScriptError that lists the form's controls if there is none.
Control& ControlOf(const Form& form, const std::string& name);

}  // namespace plotsmith::forms
