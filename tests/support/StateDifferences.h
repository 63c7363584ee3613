#pragma once

#include <functional>
#include <string>

#include "forms/script/FormState.h"

namespace plotsmith::test {

/// Returns the differences between a window and its form, one per line, or "". `model` is the state of the
/// form, and `shown` is the visible state; timers aren't visible. `adapt` gets the two states of a control,
/// and removes differences that a window of this kind can't show.
std::string StateDifferences(
    const forms::FormState& model, const forms::FormState& shown,
    const std::function<void(forms::ControlState& model, forms::ControlState& shown)>& adapt);

/// Returns true if a page may mark controls of this kind with a colour. Input controls have their own colour.
bool IsMarkable(const std::string& kind);

/// Reduces the background colour to whether it is the colour of the mark, because windows show no others.
void KeepMarkOnly(forms::ControlState& state);

}  // namespace plotsmith::test
