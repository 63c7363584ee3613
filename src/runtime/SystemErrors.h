#pragma once

#include <string>

namespace plotsmith::runtime {

/// What a value of errno means, in English in every locale: "No space left on device".
std::string SystemErrorText(int error);

}  // namespace plotsmith::runtime
