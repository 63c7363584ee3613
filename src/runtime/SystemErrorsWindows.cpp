#include <cstring>

#include "runtime/SystemErrors.h"

namespace plotsmith::runtime {

std::string SystemErrorText(int error) { return std::strerror(error); }

}  // namespace plotsmith::runtime
