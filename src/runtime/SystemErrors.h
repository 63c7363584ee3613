#pragma once

#include <string>

namespace plotsmith::runtime {

/// Returns the text of an errno value, in English in every locale: "No space left on device".
std::string SystemErrorText(int error);

}  // namespace plotsmith::runtime
