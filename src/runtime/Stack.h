#pragma once

#include <cstddef>

namespace plotsmith::runtime {

/// Returns the number of bytes that are left on this thread's stack. Code whose depth depends on the user
/// checks this before each step and raises error 28, because a stack overflow would end the process.
std::size_t StackLeft();

}  // namespace plotsmith::runtime
