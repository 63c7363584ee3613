#include <cstring>

#include "runtime/SystemErrors.h"

namespace plotsmith::runtime {

std::string SystemErrorText(int error) {
  const char* const text = strerrordesc_np(error);
  return text == nullptr ? "error " + std::to_string(error) : text;
}

}  // namespace plotsmith::runtime
