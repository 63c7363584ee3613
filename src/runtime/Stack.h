#pragma once

#include <cstddef>

namespace plotsmith::runtime {

/// How many bytes of its stack this thread has left. Code that nests as deep as a user likes asks before each
/// step, and ends with error 28: a stack that overflows ends the whole process.
std::size_t StackLeft();

}  // namespace plotsmith::runtime
