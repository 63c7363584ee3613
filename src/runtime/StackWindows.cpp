#include <cstdint>

#include "runtime/Stack.h"
// clang-format off
#include <windows.h>
// clang-format on

namespace plotsmith::runtime {

std::size_t StackLeft() {
  ULONG_PTR low = 0;
  ULONG_PTR high = 0;
  GetCurrentThreadStackLimits(&low, &high);
  return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) - low;
}

}  // namespace plotsmith::runtime
