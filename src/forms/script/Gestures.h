#pragma once

#include "forms/Form.h"
#include "forms/script/Hand.h"
#include "forms/script/ScriptLine.h"

namespace plotsmith::forms {

/// Whether the line is a gesture on a form.
bool IsGesture(const Words& words);

/// Lets the hand make the gesture of a line on the form in front. A ScriptError where it can't be made: there
/// is no such control or entry, the control is of another kind, or it is off or hidden.
void MakeGesture(const Words& words, Form& form, Hand& hand, EventQueue& queue);

/// The control of the name; a ScriptError that lists the form's controls if there is none.
Control& ControlOf(const Form& form, const std::string& name);

}  // namespace plotsmith::forms
