#pragma once

#include <ostream>

#include "forms/script/FormState.h"

namespace plotsmith::cli {

/// What a person sees of a form, a line for each control, those in a frame below it. Selected entries and
/// rows are marked with ">", and pictures that don't show are left out.
void PrintForm(std::ostream& out, const forms::FormState& form);

/// The same as a JSON object, with all that is known of each control.
void PrintFormAsJson(std::ostream& out, const forms::FormState& form);

}  // namespace plotsmith::cli
