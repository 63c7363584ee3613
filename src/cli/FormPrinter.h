#pragma once

#include <ostream>

#include "forms/script/FormState.h"

namespace plotsmith::cli {

/// Prints the visible state of a form, one line for each control. The controls of a frame are below it.
/// Selected entries and rows are marked with ">", and hidden pictures are left out.
void PrintForm(std::ostream& out, const forms::FormState& form);

/// Prints the state of a form as a JSON object, with all members of each control.
void PrintFormAsJson(std::ostream& out, const forms::FormState& form);

}  // namespace plotsmith::cli
