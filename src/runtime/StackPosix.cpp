#include <cstdint>
#include <limits>
#include <pthread.h>

#include "runtime/Stack.h"

namespace plotsmith::runtime {
namespace {

/// Returns the lowest usable address of this thread's stack; 0 if the system doesn't know it.
std::uintptr_t StackEnd() {
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return 0;
  void* low = nullptr;
  std::size_t size = 0;
  std::size_t guard = 0;
  pthread_attr_getstack(&attributes, &low, &size);
  pthread_attr_getguardsize(&attributes, &guard);
  pthread_attr_destroy(&attributes);
  return reinterpret_cast<std::uintptr_t>(low) + guard;
}

}  // namespace

std::size_t StackLeft() {
  // The system reads a file to find the stack of the first thread, so the result is kept.
  thread_local const std::uintptr_t end = StackEnd();
  const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
  return end == 0 ? std::numeric_limits<std::size_t>::max() : here - end;
}

}  // namespace plotsmith::runtime
