#pragma once

#include <functional>
#include <string>

#include "forms/script/FormState.h"

namespace plotsmith::test {

/// Where a window shows something else than its form says, a line each; empty if nowhere. `model` is the
/// state of the form, `shown` what a person sees; timers aren't seen. `adapt` gets the two states of a
/// control, and makes equal what a window of its kind can't show.
std::string StateDifferences(
    const forms::FormState& model, const forms::FormState& shown,
    const std::function<void(forms::ControlState& model, forms::ControlState& shown)>& adapt);

/// Whether a page may mark controls of the kind with a colour. What can be typed into or chosen from has a
/// colour of its own.
bool IsMarkable(const std::string& kind);

/// Leaves of the back colour whether it is the colour of the mark; windows tell no others.
void KeepMarkOnly(forms::ControlState& state);

}  // namespace plotsmith::test
